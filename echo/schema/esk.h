// The settings records of the general finite-element analysis program (esk).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::esk {

struct Properties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType grp = DEFAULT_OUTPUT;
    OutPutType load = DEFAULT_OUTPUT;
    OutPutType lsum = DEFAULT_OUTPUT;
    OutPutType esk_reac = DEFAULT_OUTPUT;
    OutPutType line = DEFAULT_OUTPUT;
    OutPutType disp = DEFAULT_OUTPUT;
    OutPutType esk_forc = DEFAULT_OUTPUT;
    OutPutType nost = DEFAULT_OUTPUT;
    OutPutType bedd = DEFAULT_OUTPUT;
};

struct Data {
    Properties prop;
};

constexpr auto describe(const Properties*) {
    return bond::record<Properties>("tiv.echo.esk.Properties",
        option("full", &Properties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("grp", &Properties::grp, QT_TRANSLATE_NOOP("EchoData", "Group parameters")),
        option("load", &Properties::load, QT_TRANSLATE_NOOP("EchoData", "Loads")),
        option("lsum", &Properties::lsum, QT_TRANSLATE_NOOP("EchoData", "Sum of loads")),
        option("esk_reac", &Properties::esk_reac, QT_TRANSLATE_NOOP("EchoData", "Support reactions")),
        option("line", &Properties::line, QT_TRANSLATE_NOOP("EchoData", "Distributed support reactions")),
        option("disp", &Properties::disp, QT_TRANSLATE_NOOP("EchoData", "Displacements")),
        option(
            "esk_forc", &Properties::esk_forc, QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")),
        option(
            "nost", &Properties::nost, QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments at nodes")),
        option("bedd", &Properties::bedd, QT_TRANSLATE_NOOP("EchoData", "Bedding stresses")));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.esk.Data", bond::field("prop", &Data::prop));
}

struct EigeProperties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType eige = DEFAULT_OUTPUT;
    OutPutType grp = DEFAULT_OUTPUT;
};

struct EigeData {
    EigeProperties prop;
};

constexpr auto describe(const EigeProperties*) {
    return bond::record<EigeProperties>("tiv.echo.esk.EigeProperties",
        option("full", &EigeProperties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("eige", &EigeProperties::eige, QT_TRANSLATE_NOOP("EchoData", "Eigenvalues")),
        option("grp", &EigeProperties::grp, QT_TRANSLATE_NOOP("EchoData", "Group parameters")));
}

constexpr auto describe(const EigeData*) {
    return bond::record<EigeData>("tiv.echo.esk.EigeData", bond::field("prop", &EigeData::prop));
}

}  // namespace tiv::echo::esk
