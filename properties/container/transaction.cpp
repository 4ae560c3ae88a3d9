#include "properties/container/transaction.h"

#include "properties/container/store.h"

#include <stdexcept>
#include <utility>

namespace tiv::container::model {

using detail::Entry;
using detail::Journal;
using detail::Record;

namespace {

Changes changesOf(const Journal& journal) {
    Changes changes;
    for (const Record& record : journal.records) {
        const bool before = record.before.value != nullptr;
        const bool after = record.entry->object.value != nullptr;
        if (!before && !after) continue;
        std::vector<Key>& keys = !before ? changes.created : after ? changes.modified : changes.erased;
        keys.push_back(record.entry->key);
    }
    return changes;
}

}  // namespace

Transaction::Transaction(Model& model) : store_(model.store_) {
    if (store_->journal)
        throw std::runtime_error(
            "Transaction in progress. Hierarchical transactions not supported (yet). Should we?");
    journal_ = std::make_unique<Journal>();
    store_->journal = journal_.get();
}

Transaction::~Transaction() {
    if (!journal_) return;
    // Removed objects move into the journal. They are destroyed with it, when no transaction is open any more,
    // because their destructors may use the model.
    for (const Record& record : journal_->records) {
        std::swap(record.entry->object, record.before);
        const detail::Object& restored = record.entry->object;
        if (record.copy) restored.type->restore(restored.value.get(), record.copy.get());
        if (!restored.value) store_->remove(record.entry);
    }
    store_->journal = nullptr;
    journal_.reset();
}

Journal& Transaction::openJournal() const {
    if (!journal_) throw std::runtime_error("The transaction has already ended.");
    return *journal_;
}

void Transaction::insertObject(const Key& key, detail::Object object) {
    Journal& journal = openJournal();
    if (const Entry* entry = store_->find(key)) {
        if (entry->object.value) throw std::runtime_error("Key already exists.");
        entry->object = std::move(object);  // empty entries are journalled
        return;
    }
    // The ordered index refuses a key that is neither less nor greater than another, such as NaN.
    const auto [place, isNew] = store_->entries.emplace(key, std::move(object));
    if (!isNew) throw std::runtime_error("Key already exists.");
    const Entry* entry = &*place;
    try {
        journal.records.push_back({entry, {}, {}});
    } catch (...) {
        store_->remove(entry);
        throw;
    }
}

void Transaction::erase(const Key& key) {
    Journal& journal = openJournal();
    const Entry* entry = store_->find(key);
    if (!entry || !entry->object.value) throw std::runtime_error("Unknown key.");
    const Record* record = journal.find(entry);
    if (!record)
        journal.records.push_back({entry, entry->object, {}});
    else if (record->before.value != entry->object.value)
        journal.discarded.push_back(entry->object.value);
    entry->object = {};
}

void Transaction::end() {
    const Journal& open = openJournal();
    const bool observed = store_->observers && !store_->observers->empty();
    const Changes changes = observed ? changesOf(open) : Changes();

    // Nothing throws from here until the observers are called. They may destroy this transaction and the
    // model, and erased objects live until the last one returns: journal and store are held here.
    const std::shared_ptr<detail::Store> store = std::move(store_);
    const std::unique_ptr<Journal> journal = std::move(journal_);
    store->journal = nullptr;
    for (const Record& record : journal->records)
        if (!record.entry->object.value) store->remove(record.entry);
    if (changes.created.empty() && changes.modified.empty() && changes.erased.empty()) return;
    if (const std::exception_ptr first = (*store->observers)(changes)) std::rethrow_exception(first);
}

}  // namespace tiv::container::model
