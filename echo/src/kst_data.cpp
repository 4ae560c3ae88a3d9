// Construction stages.
#include "echo/schema/kst.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {43, 44, 45};

constexpr ServedType types[] = {
    serves<kst::Data>(EchoData::KST, options),
};

constexpr Program program{types, OtherTypes::AlsoInserted};

}  // namespace

KSTData::KSTData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
