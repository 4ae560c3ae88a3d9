// The settings record of the loading program (tiviload).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::tiviload {

struct Properties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType act = DEFAULT_OUTPUT;
    OutPutType load = DEFAULT_OUTPUT;
};

struct Data {
    Properties prop;
};

constexpr auto describe(const Properties*) {
    return bond::record<Properties>("tiv.echo.tiviload.Properties",
        option("full", &Properties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all other options")),
        option("act", &Properties::act, QT_TRANSLATE_NOOP("EchoData", "Actions")),
        option("load", &Properties::load, QT_TRANSLATE_NOOP("EchoData", "Loading")));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.tiviload.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::tiviload
