// Finite elements.
#include "echo/schema/esk.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

// sic: no field is called "forc", so the internal forces are stored and written but never shown.
constexpr OptionNumber staticOptions[] = {0, 1, 2, 3, 4, 5, 6, {7, "prop.forc"}, 8, 9};
constexpr OptionNumber eigenvalueOptions[] = {0, 10, 1};

constexpr ServedType types[] = {
    serves<esk::Data>(EchoData::ESK, staticOptions),
    serves<esk::EigeData>(EchoData::ESK_EIGE, eigenvalueOptions),
};

// sic: host tools match on the source and the line of this report.
constexpr Program program{types, OtherTypes::Refused, {"echo/src/esk_data", 99}};

}  // namespace

EskData::EskData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
