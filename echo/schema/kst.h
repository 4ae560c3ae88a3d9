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
        option("cs", &Properties::cs, QT_TRANSLATE_NOOP("EchoData", "Construction Stages")),
        option("grp", &Properties::grp, QT_TRANSLATE_NOOP("EchoData", "Groups")),
        option("lc", &Properties::lc, QT_TRANSLATE_NOOP("EchoData", "Loadcases")));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.kst.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::kst
