#include "echo/src/inspector.h"

#include "echo/src/internal_data.h"
#include "echo/src/levels.h"
#include "properties/qt/src/qt_inspector_widget.h"

#include <algorithm>

namespace tiv::echo::data {

QWidget* makeInspector(InternalInterface& table, QWidget* parent) {
    offerLevels(*table.properties);
    auto* inspector =
        new properties::QtInspectorWidget(parent, table.properties, table.selection, table.model);
    inspector->setPropertyFilterFunction([keys = table.visibleKeys](const std::string& key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    });
    inspector->setRetranslateFunction([properties = table.properties] { offerLevels(*properties); });
    table.selection->select(recordKey());
    return inspector;
}

}  // namespace tiv::echo::data
