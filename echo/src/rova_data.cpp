// Load trains.
#include "echo/schema/rova.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {61, 62, 63, 64};

constexpr ServedType types[] = {
    serves<rova::Data>(EchoData::ROVA, options),
};

constexpr Program program{types, OtherTypes::Written};

}  // namespace

RovaData::RovaData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
