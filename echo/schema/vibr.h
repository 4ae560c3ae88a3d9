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
        option("full", &EarthquakeProperties::full, "Default of all options"),
        option("disp", &EarthquakeProperties::disp, "Displacements"),
        option("velo", &EarthquakeProperties::velo, "Velocities"),
        option("acce", &EarthquakeProperties::acce, "Accelerations"),
        option("node", &EarthquakeProperties::node, "Nodal values"),
        option("elem", &EarthquakeProperties::elem, "Elements"),
        option("mass", &EarthquakeProperties::mass, "Masses in nodes"),
        option("eige", &EarthquakeProperties::eige, "Natural frequencies"),
        option("forc", &EarthquakeProperties::forc, "Internal forces and moments"));
}

constexpr auto describe(const EarthquakeData*) {
    return bond::record<EarthquakeData>(
        "tiv.echo.vibr.EarthquakeData", bond::field("prop", &EarthquakeData::prop));
}

}  // namespace tiv::echo::vibr
