// Earthquake and vibration.
#include "echo/schema/vibr.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {0, 6, 36, 37, 38, 39, 40, 41, 42};

constexpr ServedType types[] = {
    serves<vibr::EarthquakeData>(EchoData::VIBR, options),
};

constexpr Program program{types, OtherTypes::Written};

}  // namespace

VibrData::VibrData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
