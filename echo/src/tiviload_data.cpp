// Loading.
#include "echo/schema/tiviload.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {55, 56, 57};

constexpr ServedType types[] = {
    serves<tiviload::Data>(EchoData::TIVILOAD, options),
};

constexpr Program program{types, OtherTypes::Written};

}  // namespace

TiviloadData::TiviloadData(EchoData::ProgrammTypes type, int database)
    : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
