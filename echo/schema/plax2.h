// The settings record of the beam-statics program (plax2).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::plax2 {

struct Properties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType node = DEFAULT_OUTPUT;
    OutPutType beam = DEFAULT_OUTPUT;
    OutPutType spri = DEFAULT_OUTPUT;
    OutPutType boun = DEFAULT_OUTPUT;
    OutPutType sect = DEFAULT_OUTPUT;
    OutPutType mat = DEFAULT_OUTPUT;
    OutPutType load = DEFAULT_OUTPUT;
    OutPutType forc = DEFAULT_OUTPUT;
    OutPutType defo = DEFAULT_OUTPUT;
    OutPutType bdef = DEFAULT_OUTPUT;
    OutPutType reac = DEFAULT_OUTPUT;
    OutPutType rein = DEFAULT_OUTPUT;
    OutPutType nstr = DEFAULT_OUTPUT;
    OutPutType step = DEFAULT_OUTPUT;
};

struct Data {
    Properties prop;
};

constexpr auto describe(const Properties*) {
    return bond::record<Properties>("tiv.echo.plax2.Properties",
        option("full", &Properties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("node", &Properties::node, QT_TRANSLATE_NOOP("EchoData", "Node coordinates, constraints")),
        option("beam", &Properties::beam, QT_TRANSLATE_NOOP("EchoData", "Beams (structure)")),
        option("spri", &Properties::spri, QT_TRANSLATE_NOOP("EchoData", "Spring elements (structures)")),
        option("boun",
            &Properties::boun,
            QT_TRANSLATE_NOOP("EchoData", "Distributed supported elements (structures)")),
        option("sect", &Properties::sect, QT_TRANSLATE_NOOP("EchoData", "Cross Section values")),
        option("mat", &Properties::mat, QT_TRANSLATE_NOOP("EchoData", "Material constants")),
        option("load", &Properties::load, QT_TRANSLATE_NOOP("EchoData", "Loads")),
        option("forc", &Properties::forc, QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")),
        option("defo", &Properties::defo, QT_TRANSLATE_NOOP("EchoData", "Beam deformations")),
        option("bdef", &Properties::bdef, QT_TRANSLATE_NOOP("EchoData", "Nodal displacements")),
        option("reac", &Properties::reac, QT_TRANSLATE_NOOP("EchoData", "Support reactions")),
        option("rein", &Properties::rein, QT_TRANSLATE_NOOP("EchoData", "Reinforcements")),
        option("nstr", &Properties::nstr, QT_TRANSLATE_NOOP("EchoData", "Strains and stiffnesses")),
        option("step", &Properties::step, QT_TRANSLATE_NOOP("EchoData", "Output of all iterations")));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.plax2.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::plax2
