// The settings record of the superposition program (mexora).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::mexora {

struct Properties {
    OutPutType mexora_full = DEFAULT_OUTPUT;
    OutPutType mexora_tabs = DEFAULT_OUTPUT;
    OutPutType mexora_load = NO_OUTPUT;
};

struct Data {
    Properties prop;
};

constexpr auto describe(const Properties*) {
    return bond::record<Properties>("tiv.echo.mexora.Properties",
        option("mexora_full",
            &Properties::mexora_full,
            QT_TRANSLATE_NOOP("EchoData", "Default of all other options")),
        option("mexora_tabs",
            &Properties::mexora_tabs,
            QT_TRANSLATE_NOOP("EchoData", "General tables of the combinations and generated load cases")),
        option("mexora_load", &Properties::mexora_load, QT_TRANSLATE_NOOP("EchoData", "Used load cases")));
}

constexpr auto describe(const Data*) {
    return bond::record<Data>("tiv.echo.mexora.Data", bond::field("prop", &Data::prop));
}

}  // namespace tiv::echo::mexora
