// Beam statics.
#include "echo/schema/plax2.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {11, 12, 14, 15, 16, 19, 20, 13, 17, 21, 22, 18, 23, 24, 25};

constexpr ServedType types[] = {
    serves<plax2::Data>(EchoData::PLAX2, options),
};

constexpr Program program{types, OtherTypes::Written};

}  // namespace

Plax2Data::Plax2Data(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
