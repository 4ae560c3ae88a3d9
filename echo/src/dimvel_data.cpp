// Design of quadrilateral elements; without any, no option applies.
#include "echo/schema/dimvel.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber brucOptions[] = {46, 47, 48, 49, 50, 51, 52};
constexpr OptionNumber rissOptions[] = {46, 47, 48, 49, 50, 53, 54};

constexpr ServedType types[] = {
    serves<dimvel::BrucData>(EchoData::DIMVEL_BRUC, brucOptions),
    serves<dimvel::RissData>(EchoData::DIMVEL_RISS, rissOptions),
};

// sic: host tools match on the source and the line of this report.
constexpr Program program{types, OtherTypes::Refused, {"echo/src/dimvel_data", 100}};

}  // namespace

DimvelData::DimvelData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
