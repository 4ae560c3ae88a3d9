// The settings records of the cross-section program (qsx).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::qsx {

struct BrucProperties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType shea = DEFAULT_OUTPUT;
    OutPutType lc = DEFAULT_OUTPUT;
    OutPutType desi = DEFAULT_OUTPUT;
    OutPutType rein = DEFAULT_OUTPUT;
};

struct BrucData {
    BrucProperties prop;
};

constexpr auto describe(const BrucProperties*) {
    return bond::record<BrucProperties>("tiv.echo.qsx.BrucProperties",
        option("full", &BrucProperties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("shea", &BrucProperties::shea, QT_TRANSLATE_NOOP("EchoData", "Shear design")),
        option("lc", &BrucProperties::lc, QT_TRANSLATE_NOOP("EchoData", "Individual loadcases")),
        option("desi", &BrucProperties::desi, QT_TRANSLATE_NOOP("EchoData", "Dimensioning")),
        option("rein", &BrucProperties::rein, QT_TRANSLATE_NOOP("EchoData", "Reinforcements")));
}

constexpr auto describe(const BrucData*) {
    return bond::record<BrucData>("tiv.echo.qsx.BrucData", bond::field("prop", &BrucData::prop));
}

struct RissProperies {  // sic: the name is the struct's schema identity
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType shea = DEFAULT_OUTPUT;
    OutPutType lc = DEFAULT_OUTPUT;
    OutPutType nstr = DEFAULT_OUTPUT;
    OutPutType crac = DEFAULT_OUTPUT;
};

struct RissData {
    RissProperies prop;
};

constexpr auto describe(const RissProperies*) {
    return bond::record<RissProperies>("tiv.echo.qsx.RissProperies",
        option("full", &RissProperies::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("shea", &RissProperies::shea, QT_TRANSLATE_NOOP("EchoData", "Shear design")),
        option("lc", &RissProperies::lc, QT_TRANSLATE_NOOP("EchoData", "Individual loadcases")),
        option("nstr", &RissProperies::nstr, QT_TRANSLATE_NOOP("EchoData", "Dimensioning")),
        option("crac", &RissProperies::crac, QT_TRANSLATE_NOOP("EchoData", "Reinforcements")));
}

constexpr auto describe(const RissData*) {
    return bond::record<RissData>("tiv.echo.qsx.RissData", bond::field("prop", &RissData::prop));
}

struct ElPlProperties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType sect = DEFAULT_OUTPUT;
    OutPutType forc = DEFAULT_OUTPUT;
    OutPutType lc = DEFAULT_OUTPUT;
    OutPutType stre = DEFAULT_OUTPUT;
    OutPutType tabs = DEFAULT_OUTPUT;
    OutPutType nstr = DEFAULT_OUTPUT;
    OutPutType usep = DEFAULT_OUTPUT;
};

struct ElPlData {
    ElPlProperties prop;
};

constexpr auto describe(const ElPlProperties*) {
    return bond::record<ElPlProperties>("tiv.echo.qsx.ElPlProperties",
        option("full", &ElPlProperties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("sect", &ElPlProperties::sect, QT_TRANSLATE_NOOP("EchoData", "Cross Section values")),
        option("forc", &ElPlProperties::forc, QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")),
        option("lc", &ElPlProperties::lc, QT_TRANSLATE_NOOP("EchoData", "Individual loadcases")),
        option("stre",
            &ElPlProperties::stre,
            QT_TRANSLATE_NOOP("EchoData", "Stresses, Utilisation Level, Flexural Buckling")),
        option("tabs", &ElPlProperties::tabs, QT_TRANSLATE_NOOP("EchoData", "Tabular summaries")),
        option("nstr", &ElPlProperties::nstr, QT_TRANSLATE_NOOP("EchoData", "Non-linear stresses")),
        option(
            "usep", &ElPlProperties::usep, QT_TRANSLATE_NOOP("EchoData", "Used participy factors")));  // sic
}

constexpr auto describe(const ElPlData*) {
    return bond::record<ElPlData>("tiv.echo.qsx.ElPlData", bond::field("prop", &ElPlData::prop));
}

}  // namespace tiv::echo::qsx
