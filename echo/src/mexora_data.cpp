// Superposition.
#include "echo/schema/mexora.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {58, 59, 60};

constexpr ServedType types[] = {
    serves<mexora::Data>(EchoData::MEXORA, options),
};

constexpr Program program{types, OtherTypes::Written};

}  // namespace

MexoraData::MexoraData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
