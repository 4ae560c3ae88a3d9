// Superposition.
#include "echo/schema/mexora.h"

#include "echo/src/program_classes.h"

namespace tiv::echo::data {
namespace {

constexpr OptionNumber options[] = {58, 59, 60};

constexpr Variant variants[] = {
    variant<mexora::Data>(EchoData::MEXORA, options),
};

constexpr Program program{variants, OtherTypes::Written};

}  // namespace

MexoraData::MexoraData(EchoData::ProgrammTypes type, int database) : ProgramData(type, database, program) {}

}  // namespace tiv::echo::data
