// Loading.
#include "echo/schema/tiviload.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {55, 56, 57};

constexpr Variant variants[] = {
    variant<tiviload::Data>(EchoData::TIVILOAD, options),
};

constexpr Program program{variants, OtherTypes::Written};

}  // namespace

TiviloadData::TiviloadData(EchoData::ProgrammTypes type, int database)
    : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
