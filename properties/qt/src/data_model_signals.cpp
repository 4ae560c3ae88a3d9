#include "properties/qt/src/data_model_signals.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tiv::properties {

DataModelSignals::DataModelSignals(std::shared_ptr<container::model::Model> model,
    std::shared_ptr<Selection> selection, const RecordAccess* record)
    : model_(std::move(model)),
      selection_(std::move(selection)),
      record_(record),
      modelConnection_(model_->onChange([this](const auto& changes) { onModelChange(changes); })),
      selectionConnection_(selection_->onChange([this] { emit recordChanged(); })) {}

const container::model::Key* DataModelSignals::key() const {
    const container::model::Key* key = selection_->selected();
    if (!key) return nullptr;
    if (!record_) return model_->contains(*key) ? key : nullptr;
    try {
        record_->read(*model_, *key);
        return key;
    } catch (const std::runtime_error&) {  // no object, or one of another type
        return nullptr;
    }
}

QVariant DataModelSignals::value(const Property& property) const {
    const container::model::Key* record = key();
    return record ? properties::value(property, *model_, *record) : QVariant();
}

void DataModelSignals::onModelChange(const container::model::Changes& changes) {
    const container::model::Key* key = selection_->selected();
    if (!key) return;
    for (const auto* keys : {&changes.modified, &changes.created, &changes.erased})
        if (std::find(keys->begin(), keys->end(), *key) != keys->end()) return emit recordChanged();
}

}  // namespace tiv::properties
