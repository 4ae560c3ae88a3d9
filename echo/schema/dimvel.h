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
        option("full", &BrucProperties::full, "Default of all other options"),
        option("para", &BrucProperties::para, "Design parameter"),
        option("beme", &BrucProperties::beme, "Design results"),
        option("rtab", &BrucProperties::rtab, "Reinforcement compilation"),
        option("indx", &BrucProperties::indx, "Steel index"),
        option("dmom", &BrucProperties::dmom, "Internal forces of the design"),
        option("punc", &BrucProperties::punc, "Punching checks"));
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
        option("full", &RissProperties::full, "Default of all other options"),
        option("para", &RissProperties::para, "Design parameter"),
        option("beme", &RissProperties::beme, "Design results"),
        option("rtab", &RissProperties::rtab, "Reinforcement compilation"),
        option("indx", &RissProperties::indx, "Steel index"),
        option("sigs", &RissProperties::sigs, "Concrete compressive stress"),
        option("dehn", &RissProperties::dehn, "Fatigue design"));
}

constexpr auto describe(const RissData*) {
    return bond::record<RissData>("tiv.echo.dimvel.RissData", bond::field("prop", &RissData::prop));
}

}  // namespace tiv::echo::dimvel
