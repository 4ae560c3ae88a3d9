// What every analysis program's echo table shares: the interface, the state, the rule that says which
// options a project has, and the factory.
#pragma once

#include "properties/container/key.h"
#include "properties/container/model.h"
#include "properties/definitions/property.h"
#include "properties/definitions/selection_manager.h"
#include "tiv/echo/echo_data.h"

#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tiv::echo::data {

// Which kinds of element the project holds. The fixed ones have no query yet.
struct ElementTypeFlags {
    bool fixed0 = true;
    bool quads = false;
    bool brics = false;
    bool fixed3 = true;
    bool beams = false;
    bool fixed5 = true;
    bool cables = false;
    bool springs = false;
    bool fixed8 = true;
};

// Whether an option (0 to 64, utils.h) is shown and written in such a project.
bool isOptionApplicable(const ElementTypeFlags& flags, int option);

class InternalInterface {
 public:
    // Arguments and results as in EchoData.
    virtual QString getXMLData() = 0;
    virtual void insertXMLData(const QString& text) = 0;
    virtual std::vector<QString> getTELINP(bool defaultsOnly, bool extensive, int language) = 0;
    virtual ~InternalInterface() = default;

    InternalInterface(const InternalInterface&) = delete;
    InternalInterface& operator=(const InternalInterface&) = delete;

    // Holds one settings record under `recordKey`; none for a program without options.
    const std::shared_ptr<container::model::Model> model;
    // The record's fields as the inspector knows them, with the levels offered for each.
    const std::shared_ptr<properties::Properties> properties;
    // The key of the record that inspectors show.
    const std::shared_ptr<properties::SelectionManager<container::model::Key>> selection;
    // The keys of the options that apply to the project, in the order of the inspector.
    std::vector<std::string> visibleKeys;
    ElementTypeFlags flags;
    const EchoData::ProgrammTypes programType;

 protected:
    // Asks the database which kinds of element the project holds.
    InternalInterface(EchoData::ProgrammTypes type, int database);
    // Makes the option's key visible if the option applies to the project.
    void showOption(const std::string& key, int option);
};

// Where a property's configuration holds the keywords of its option (QString: "REAC, REAK").
inline constexpr std::string_view keywordPath = "echo.keyword";

// The key of the settings record in every model.
const container::model::Key& recordKey();

// The echo table of a program type. An unknown type is reported and gives a table without options.
std::shared_ptr<InternalInterface> makeInternalData(EchoData::ProgrammTypes type, int database);

}  // namespace tiv::echo::data
