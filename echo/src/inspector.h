// Builds the property inspector of an echo table.
#pragma once

#include <memory>

class QWidget;

namespace tiv::echo::data {

class InternalInterface;

// A new inspector that shows the table's visible options with the levels offered for each. Owned by the
// caller or by `parent`. It may outlive the table: its rows then stay readable and refuse edits.
QWidget* makeInspector(const std::shared_ptr<InternalInterface>& table, QWidget* parent);

}  // namespace tiv::echo::data
