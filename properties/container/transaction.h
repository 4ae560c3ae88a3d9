// The one way to change a Model: several changes that happen together or not at all.
//
//     Transaction transaction(model);
//     transaction.insert(0, Properties{});
//     model.handle<Properties>(0).modify().full = FULL_OUTPUT;
//     transaction.end();      // without it the destructor takes both changes back
//
// Every function that throws leaves model and transaction as they were; failures are std::runtime_error
// with the texts given here. After end() the transaction can only be destroyed: its functions throw
// "The transaction has already ended.".
#pragma once

#include "properties/container/model.h"

#include <memory>
#include <utility>

namespace tiv::container::model {

namespace detail {
struct Journal;
}

class Transaction {
 public:
    // Opens the model's one transaction. "Transaction in progress. Hierarchical transactions not supported
    // (yet). Should we?" (one line) while another is open; that one stays open.
    explicit Transaction(Model& model);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    // Rolls back unless end() was called: removes created objects, brings erased ones back, restores
    // modified ones. Objects keep their identity, so that handles stay valid. Cannot fail. Removed objects
    // are destroyed last, when the model has no open transaction.
    ~Transaction();

    // Inserts the object. "Key already exists." unless the key is free or was erased before;
    // also for a key that cannot be told from another one by "<", such as a second number when one is NaN.
    template <Storable T>
    void insert(const Key& key, T object) {
        insertObject(key, {&detail::storedType<T>, std::make_shared<T>(std::move(object))});
    }

    // Erases the object, which stays alive until end() or the destructor is done. "Unknown key." if there
    // is none.
    void erase(const Key& key);

    // Commits the changes, then calls the observers. When one of them throws, the changes stand, the others
    // are called, and the first exception is thrown. std::bad_alloc leaves the transaction open.
    void end();

 private:
    void insertObject(const Key& key, detail::Object object);
    detail::Journal& openJournal() const;

    std::shared_ptr<detail::Store> store_;
    std::unique_ptr<detail::Journal> journal_;  // null: ended
};

}  // namespace tiv::container::model
