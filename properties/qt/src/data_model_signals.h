// The record that an inspector shows: which one is selected, its values, and a Qt signal when it changes.
#pragma once

#include "properties/container/model.h"
#include "properties/definitions/property.h"
#include "properties/definitions/selection_manager.h"

#include <boost/signals2/connection.hpp>

#include <QObject>
#include <QVariant>

#include <memory>

namespace tiv::properties {

class DataModelSignals : public QObject {
    Q_OBJECT
 public:
    using Selection = SelectionManager<container::model::Key>;

    // Shares both with their owner. Only objects of the type `record` count as records; null: all objects.
    DataModelSignals(std::shared_ptr<container::model::Model> model, std::shared_ptr<Selection> selection,
        const RecordAccess* record);

    container::model::Model& model() const { return *model_; }
    // The key of the selected record; null while none is selected, or no record is stored under the key.
    const container::model::Key* key() const;
    // A property's value in the record; invalid while there is none.
    QVariant value(const Property& property) const;

 signals:
    // The selected record was changed, created or erased, or another one was selected.
    void recordChanged();

 private:
    void onModelChange(const container::model::Changes& changes);

    std::shared_ptr<container::model::Model> model_;
    std::shared_ptr<Selection> selection_;
    const RecordAccess* record_;
    boost::signals2::scoped_connection modelConnection_;
    boost::signals2::scoped_connection selectionConnection_;
};

}  // namespace tiv::properties
