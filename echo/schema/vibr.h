// The settings record of the earthquake and vibration program (vibr).
#pragma once

#include "echo/schema/output_type.h"

namespace tiv::echo::vibr {

struct EarthquakeProperties {
    OutPutType full = DEFAULT_OUTPUT;
    OutPutType disp = DEFAULT_OUTPUT;
    OutPutType velo = DEFAULT_OUTPUT;
    OutPutType acce = DEFAULT_OUTPUT;
    OutPutType node = DEFAULT_OUTPUT;
    OutPutType elem = DEFAULT_OUTPUT;
    OutPutType mass = DEFAULT_OUTPUT;
    OutPutType eige = DEFAULT_OUTPUT;
    OutPutType forc = DEFAULT_OUTPUT;
};

struct EarthquakeData {
    EarthquakeProperties prop;
};

constexpr auto describe(const EarthquakeProperties*) {
    return bond::record<EarthquakeProperties>("tiv.echo.vibr.EarthquakeProperties",
        option("full", &EarthquakeProperties::full, QT_TRANSLATE_NOOP("EchoData", "Default of all options")),
        option("disp", &EarthquakeProperties::disp, QT_TRANSLATE_NOOP("EchoData", "Displacements")),
        option("velo", &EarthquakeProperties::velo, QT_TRANSLATE_NOOP("EchoData", "Velocities")),
        option("acce", &EarthquakeProperties::acce, QT_TRANSLATE_NOOP("EchoData", "Accelerations")),
        option("node", &EarthquakeProperties::node, QT_TRANSLATE_NOOP("EchoData", "Nodal values")),
        option("elem", &EarthquakeProperties::elem, QT_TRANSLATE_NOOP("EchoData", "Elements")),
        option("mass", &EarthquakeProperties::mass, QT_TRANSLATE_NOOP("EchoData", "Masses in nodes")),
        option("eige", &EarthquakeProperties::eige, QT_TRANSLATE_NOOP("EchoData", "Natural frequencies")),
        option("forc",
            &EarthquakeProperties::forc,
            QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")));
}

constexpr auto describe(const EarthquakeData*) {
    return bond::record<EarthquakeData>(
        "tiv.echo.vibr.EarthquakeData", bond::field("prop", &EarthquakeData::prop));
}

}  // namespace tiv::echo::vibr
