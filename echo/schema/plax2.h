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
        option("full", &Properties::full, "Default of all options"),
        option("node", &Properties::node, "Node coordinates, constraints"),
        option("beam", &Properties::beam, "Beams (structure)"),
        option("spri", &Properties::spri, "Spring elements (structures)"),
        option("boun", &Properties::boun, "Distributed supported elements (structures)"),
        option("sect", &Properties::sect, "Cross Section values"),
        option("mat", &Properties::mat, "Material constants"),
        option("load", &Properties::load, "Loads"),
        option("forc", &Properties::forc, "Internal forces and moments"),
        option("defo", &Properties::defo, "Beam deformations"),
        option("bdef", &Properties::bdef, "Nodal displacements"),
        option("reac", &Properties::reac, "Support reactions"),
        option("rein", &Properties::rein, "Reinforcements"),
        option("nstr", &Properties::nstr, "Strains and stiffnesses"),
        option("step", &Properties::step, "Output of all iterations"));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.plax2.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::plax2
