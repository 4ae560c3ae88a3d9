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
        option("full", &Properties::full, "Default of all options"),
        option("grp", &Properties::grp, "Group parameters"),
        option("load", &Properties::load, "Loads"),
        option("lsum", &Properties::lsum, "Sum of loads"),
        option("esk_reac", &Properties::esk_reac, "Support reactions"),
        option("line", &Properties::line, "Distributed support reactions"),
        option("disp", &Properties::disp, "Displacements"),
        option("esk_forc", &Properties::esk_forc, "Internal forces and moments"),
        option("nost", &Properties::nost, "Internal forces and moments at nodes"),
        option("bedd", &Properties::bedd, "Bedding stresses"));
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
        option("full", &EigeProperties::full, "Default of all options"),
        option("eige", &EigeProperties::eige, "Eigenvalues"),
        option("grp", &EigeProperties::grp, "Group parameters"));
}

constexpr auto describe(const EigeData*) {
    return bond::record<EigeData>("tiv.echo.esk.EigeData", bond::field("prop", &EigeData::prop));
}

}  // namespace tiv::echo::esk
