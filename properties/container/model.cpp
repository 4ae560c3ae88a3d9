#include "properties/container/model.h"

#include "properties/container/store.h"

#include <stdexcept>

namespace tiv::container::model {

Model::Model() : store_(std::make_shared<detail::Store>()) {}
Model::~Model() = default;

const detail::Object& Model::find(const Key& key, const std::type_info& type) const {
    const detail::Entry* entry = store_->find(key);
    if (!entry || !entry->object.value) throw std::runtime_error("Unknown key.");
    if (*entry->object.type->info != type) throw std::runtime_error("Type mismatch.");
    return entry->object;
}

bool Model::contains(const Key& key) const {
    const detail::Entry* entry = store_->find(key);
    return entry && entry->object.value;
}

std::vector<Key> Model::keys() const {
    std::vector<Key> result;
    for (const detail::Entry& entry : store_->entries.get<1>())
        if (entry.object.value) result.push_back(entry.key);
    return result;
}

boost::signals2::connection Model::onChange(const std::function<void(const Changes&)>& observer) {
    if (!store_->observers) store_->observers.emplace();
    return store_->observers->connect(observer);
}

void* detail::ObjectReference::modify() const {
    const std::shared_ptr<Store> openStore = store.lock();
    if (!openStore || !openStore->journal)
        throw std::runtime_error("modify() may only be called within a transaction.");

    Journal& journal = *openStore->journal;
    const Entry* entry = openStore->find(key);
    const bool journalled = journal.find(entry) != nullptr;
    const std::shared_ptr<void> value = object.lock();
    if (!value || !entry || entry->object.value != value) {
        // Alive and not the key's object: this transaction has put another in its place, or observers of an
        // earlier transaction that erased it are still running.
        const bool erased = journalled && (value || !entry->object.value);
        throw std::runtime_error(
            erased ? "Trying to access erased object." : "Trying to access expired object.");
    }
    if (!journalled) journal.records.push_back({entry, entry->object, entry->object.type->copy(value.get())});
    return value.get();
}

}  // namespace tiv::container::model
