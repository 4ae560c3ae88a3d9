// The settings record of the construction-stage program (kst).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::kst {

struct Properties {
    OutPutType cs = DEFAULT_OUTPUT;
    OutPutType grp = DEFAULT_OUTPUT;
    OutPutType lc = DEFAULT_OUTPUT;
};

struct Data {
    Properties prop;
};

constexpr auto describe(const Properties*) {
    return bond::record<Properties>("tiv.echo.kst.Properties",
        option("cs", &Properties::cs, "Construction Stages"),
        option("grp", &Properties::grp, "Groups"),
        option("lc", &Properties::lc, "Loadcases"));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.kst.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::kst
