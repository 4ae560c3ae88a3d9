// What an inspector hears from the object model and the selection, as Qt signals.
#pragma once

#include "properties/container/model.h"
#include "properties/definitions/selection_manager.h"

#include <boost/signals2/connection.hpp>

#include <QObject>

#include <memory>

namespace tiv::properties {

class DataModelSignals : public QObject {
    Q_OBJECT
 public:
    using Selection = SelectionManager<container::model::Key>;

    // Shares both with their owner.
    DataModelSignals(std::shared_ptr<container::model::Model> model, std::shared_ptr<Selection> selection);

    container::model::Model& model() const { return *model_; }
    // The key of the selected record; null while none is selected, or none is stored under it.
    const container::model::Key* record() const;

 signals:
    // The selected record was changed, created or erased, or another one was selected.
    void recordChanged();

 private:
    void onModelChange(const container::model::Changes& changes);

    std::shared_ptr<container::model::Model> model_;
    std::shared_ptr<Selection> selection_;
    boost::signals2::scoped_connection modelConnection_;
    boost::signals2::scoped_connection selectionConnection_;
};

}  // namespace tiv::properties
