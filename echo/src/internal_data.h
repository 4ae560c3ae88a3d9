// What the echo tables of all analysis programs share: the interface, the state, the rule for which options
// apply to a project, and the factory.
#pragma once

#include "properties/container/key.h"
#include "properties/container/model.h"
#include "properties/definitions/property.h"
#include "tiv/echo/echo_data.h"

#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tiv::properties {
template <class Value>
class SelectionManager;
}

namespace tiv::echo::data {

// Which kinds of element the project holds. The database has no query for the fixed ones.
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

inline constexpr int programTypeCount = EchoData::ROVA + 1;

// Whether an option (a row of the table in utils.cpp) is shown and written in such a project.
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
    // The definitions of the record's fields, which never change: all tables of a record share them.
    const properties::Properties* const properties;
    // A copy for the inspectors of this table, with the levels offered in the application's language. Null
    // until there is an inspector.
    std::shared_ptr<properties::Properties> inspected;
    // The key of the record that inspectors show.
    const std::shared_ptr<properties::SelectionManager<container::model::Key>> selection;
    // The keys of the options that apply to the project, in the order of the inspector.
    std::vector<std::string> visibleKeys;
    ElementTypeFlags flags;
    const EchoData::ProgrammTypes programType;

 protected:
    // Reads from the database which kinds of element the project holds. `definitions` must have static lifetime.
    InternalInterface(EchoData::ProgrammTypes type, int database, const properties::Properties& definitions);
    // Makes the option's key visible if the option applies to the project.
    void showOption(const std::string& key, int option);
};

// Where a property's configuration holds the keywords of its option (QString: "REAC, REAK").
inline constexpr std::string_view keywordPath = "echo.keyword";

// The translator of the definitions of a record, with this qualified name of its schema.
std::shared_ptr<const translation::Xlator> makeXlator(const std::string& structName);

// The definitions of a table without options. Constants of this library are never destroyed, because a host's
// last EchoData may be a global object.
const properties::Properties& noDefinitions();

// The key of the settings record in every model.
const container::model::Key& recordKey();

// The echo table of a program type. An unknown type is reported and gives a table without options.
std::shared_ptr<InternalInterface> makeInternalData(EchoData::ProgrammTypes type, int database);

}  // namespace tiv::echo::data
