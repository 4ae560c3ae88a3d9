// Builds the property inspector of an echo table.
#pragma once

class QWidget;

namespace tiv::echo::data {

class InternalInterface;

// A new inspector that shows the table's visible options with the levels offered for each. Owned by the
// caller or by `parent`; it shares the table's model, properties and selection and may outlive it.
QWidget* makeInspector(InternalInterface& table, QWidget* parent);

}  // namespace tiv::echo::data
