// The settings record of the load-train program (rova).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::rova {

struct RovaProperties {
    OutPutType rova_load = NORMAL_OUTPUT;
    OutPutType rova_eval = NO_OUTPUT;
    OutPutType rova_lpos = FULL_OUTPUT;
    OutPutType rova_res = NO_OUTPUT;
};

struct Data {
    RovaProperties prop;
};

constexpr auto describe(const RovaProperties*) {
    return bond::record<RovaProperties>("tiv.echo.rova.RovaProperties",
        option("rova_load", &RovaProperties::rova_load, QT_TRANSLATE_NOOP("EchoData", "Loadtrains")),
        option("rova_eval", &RovaProperties::rova_eval, QT_TRANSLATE_NOOP("EchoData", "Evaluation")),
        option("rova_lpos", &RovaProperties::rova_lpos, QT_TRANSLATE_NOOP("EchoData", "Load positions")),
        option("rova_res", &RovaProperties::rova_res, QT_TRANSLATE_NOOP("EchoData", "Results")));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.rova.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::rova
