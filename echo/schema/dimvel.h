// The settings records of the design program (dimvel).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::dimvel {

struct BrucProperties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType para = DEFAULT_OUTPUT;
    OutPutType beme = DEFAULT_OUTPUT;
    OutPutType rtab = DEFAULT_OUTPUT;
    OutPutType indx = DEFAULT_OUTPUT;
    OutPutType dmom = DEFAULT_OUTPUT;
    OutPutType punc = DEFAULT_OUTPUT;
};

struct BrucData {
    BrucProperties prop;
};

constexpr auto describe(const BrucProperties*) {
    return bond::record<BrucProperties>("tiv.echo.dimvel.BrucProperties",
        option("full", &BrucProperties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all other options")),
        option("para", &BrucProperties::para, QT_TRANSLATE_NOOP("EchoData", "Design parameter")),
        option("beme", &BrucProperties::beme, QT_TRANSLATE_NOOP("EchoData", "Design results")),
        option("rtab", &BrucProperties::rtab, QT_TRANSLATE_NOOP("EchoData", "Reinforcement compilation")),
        option("indx", &BrucProperties::indx, QT_TRANSLATE_NOOP("EchoData", "Steel index")),
        option("dmom", &BrucProperties::dmom, QT_TRANSLATE_NOOP("EchoData", "Internal forces of the design")),
        option("punc", &BrucProperties::punc, QT_TRANSLATE_NOOP("EchoData", "Punching checks")));
}

constexpr auto describe(const BrucData*) {
    return bond::record<BrucData>("tiv.echo.dimvel.BrucData", bond::field("prop", &BrucData::prop));
}

struct RissProperties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType para = DEFAULT_OUTPUT;
    OutPutType beme = DEFAULT_OUTPUT;
    OutPutType rtab = DEFAULT_OUTPUT;
    OutPutType indx = DEFAULT_OUTPUT;
    OutPutType sigs = DEFAULT_OUTPUT;
    OutPutType dehn = DEFAULT_OUTPUT;
};

struct RissData {
    RissProperties prop;
};

constexpr auto describe(const RissProperties*) {
    return bond::record<RissProperties>("tiv.echo.dimvel.RissProperties",
        option("full", &RissProperties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all other options")),
        option("para", &RissProperties::para, QT_TRANSLATE_NOOP("EchoData", "Design parameter")),
        option("beme", &RissProperties::beme, QT_TRANSLATE_NOOP("EchoData", "Design results")),
        option("rtab", &RissProperties::rtab, QT_TRANSLATE_NOOP("EchoData", "Reinforcement compilation")),
        option("indx", &RissProperties::indx, QT_TRANSLATE_NOOP("EchoData", "Steel index")),
        option("sigs", &RissProperties::sigs, QT_TRANSLATE_NOOP("EchoData", "Concrete compressive stress")),
        option("dehn", &RissProperties::dehn, QT_TRANSLATE_NOOP("EchoData", "Fatigue design")));
}

constexpr auto describe(const RissData*) {
    return bond::record<RissData>("tiv.echo.dimvel.RissData", bond::field("prop", &RissData::prop));
}

}  // namespace tiv::echo::dimvel
