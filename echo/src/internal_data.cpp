#include "echo/src/internal_data.h"

#include "echo/src/program_classes.h"
#include "properties/definitions/selection_manager.h"
#include "tiv/dbo/dbo.h"
#include "tiv/smartassert/smart_assert.h"

#include <iterator>

namespace tiv::echo::data {
namespace {

// Looks a label or tooltip up in the library's catalogue, by its source text.
QString inCatalogue(const std::string& /*key*/, const char* sourceText) {
    return EchoData::tr(sourceText);
}

template <class Program>
std::shared_ptr<InternalInterface> make(EchoData::ProgrammTypes type, int database) {
    return std::make_shared<Program>(type, database);
}

}  // namespace

bool isOptionApplicable(const ElementTypeFlags& flags, int option) {
    if (option < 5 || option > 54) return true;
    if (option >= 46) return flags.quads;
    switch (option) {
        case 5:
        case 16:
            return flags.fixed0;
        case 9:
            return flags.fixed8;
        case 12:
        case 14:
        case 21:
        case 22:
            return flags.beams;
        case 15:
            return flags.springs;
        case 6:
        case 7:
        case 8:
        case 10:
        case 28:
        case 30:
            return true;
        default:
            break;
    }
    if (option >= 36) return true;
    return flags.beams || flags.fixed5 || flags.cables;  // 11, 13, 17 to 20, 23 to 27, 29, 31 to 35
}

InternalInterface::InternalInterface(
    EchoData::ProgrammTypes type, int database, const properties::Properties& definitions)
    : model(std::make_shared<container::model::Model>()),
      properties(&definitions),
      selection(std::make_shared<properties::SelectionManager<container::model::Key>>()),
      programType(type) {
    flags.quads = dbo::hasQuads(database, nullptr);
    flags.brics = dbo::hasBrics(database, nullptr);
    flags.beams = dbo::hasBeams(database, nullptr);
    flags.cables = dbo::hasCables(database, nullptr);
    flags.springs = dbo::hasSprings(database, nullptr);
}

void InternalInterface::showOption(const std::string& key, int option) {
    if (isOptionApplicable(flags, option)) visibleKeys.push_back(key);
}

std::shared_ptr<const translation::Xlator> makeXlator(const std::string& structName) {
    auto xlator = std::make_shared<translation::Xlator>(&inCatalogue);
    translation::configure_xlator(*xlator, structName);
    return xlator;
}

const properties::Properties& noDefinitions() {
    static const auto& none = *new properties::Properties{{}, makeXlator({})};
    return none;
}

const container::model::Key& recordKey() {
    static const auto& key = *new container::model::Key(0);  // never destroyed
    return key;
}

std::shared_ptr<InternalInterface> makeInternalData(EchoData::ProgrammTypes type, int database) {
    constexpr decltype(&make<DummyData>) programs[] = {
        make<QsxData>,       // QSX_BRUC
        make<QsxData>,       // QSX_RISS
        make<QsxData>,       // QSX_ELPL
        make<EskData>,       // ESK
        make<EskData>,       // ESK_EIGE
        make<DimvelData>,    // DIMVEL_BRUC
        make<DimvelData>,    // DIMVEL_RISS
        make<KSTData>,       // KST
        make<VibrData>,      // VIBR
        make<MexoraData>,    // MEXORA
        make<Plax2Data>,     // PLAX2
        make<TiviloadData>,  // TIVILOAD
        make<KurtaData>,     // KURTA
        make<RovaData>,      // ROVA
    };
    static_assert(std::size(programs) == programTypeCount);
    if (type < programTypeCount) return programs[type](type, database);
    // sic: host tools match on the reported text, source and line.
    smartassert::SmartAssert(R"(0 && "invalid prog_type")", "echo/src/internal_data", 120);
    return make<DummyData>(type, database);
}

}  // namespace tiv::echo::data
