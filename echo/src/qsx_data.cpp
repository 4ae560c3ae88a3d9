// Cross sections.
#include "echo/schema/qsx.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber brucOptions[] = {31, 32, 30, 33, 34};
constexpr OptionNumber rissOptions[] = {31, 32, 30, 28, 35};
constexpr OptionNumber elPlOptions[] = {11, 19, 17, 30, 26, 27, 28, 29};

constexpr ServedType types[] = {
    serves<qsx::BrucData>(EchoData::QSX_BRUC, brucOptions),
    serves<qsx::RissData>(EchoData::QSX_RISS, rissOptions),
    serves<qsx::ElPlData>(EchoData::QSX_ELPL, elPlOptions),
};

// sic: host tools match on the source and the line of this report.
constexpr Program program{types, OtherTypes::Refused, {"echo/src/qsx_data", 121}};

}  // namespace

QsxData::QsxData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
