#include "properties/qt/src/data_model_signals.h"

#include <algorithm>
#include <utility>

namespace tiv::properties {

DataModelSignals::DataModelSignals(
    std::shared_ptr<container::model::Model> model, std::shared_ptr<Selection> selection)
    : model_(std::move(model)),
      selection_(std::move(selection)),
      modelConnection_(model_->onChange([this](const auto& changes) { onModelChange(changes); })),
      selectionConnection_(selection_->onChange([this] { emit recordChanged(); })) {}

const container::model::Key* DataModelSignals::record() const {
    const container::model::Key* key = selection_->selected();
    return key && model_->contains(*key) ? key : nullptr;
}

void DataModelSignals::onModelChange(const container::model::Changes& changes) {
    const container::model::Key* key = selection_->selected();
    if (!key) return;
    for (const auto* keys : {&changes.modified, &changes.created, &changes.erased})
        if (std::find(keys->begin(), keys->end(), *key) != keys->end()) return emit recordChanged();
}

}  // namespace tiv::properties
