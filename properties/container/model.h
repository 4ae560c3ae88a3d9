// The store of typed objects under keys, in which an echo table keeps its settings record. The program
// tables insert, read and replace it; the inspector reads and edits it.
//
//     Model model;
//     Transaction filling(model);
//     filling.insert(0, Properties{});
//     filling.end();
//     model.read<Properties>(0).full;            // DEFAULT_OUTPUT
//     model.onChange([](const Changes& changes) { refresh(changes.modified); });
//
// Objects are inserted and erased by a Transaction and changed through an ObjectHandle, inside a
// transaction as well. Reading needs none, and includes the changes of the open transaction. Failures are
// std::runtime_error with the texts given here, and leave the model as it was. Not thread-safe.
#pragma once

#include "properties/container/key.h"
#include "properties/container/object.h"
#include "properties/container/object_handle.h"

#include <functional>
#include <memory>
#include <typeinfo>
#include <vector>

namespace boost::signals2 {
class connection;  // callers of Model::onChange() include it: it is large
}

namespace tiv::container::model {

// What one transaction has changed, each list in the order in which the keys were first touched. `created`
// were absent before and are present now, `erased` the other way round; `modified` are the others. A key
// that was erased and inserted again is modified: its object, perhaps its type, is another one.
struct Changes {
    std::vector<Key> created, modified, erased;
};

class Model {
 public:
    // Throws std::bad_alloc.
    Model();
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;
    // An open transaction keeps the objects: it can still be ended or destroyed. Handles are then detached.
    ~Model();

    // The object under the key. "Unknown key." if there is none, "Type mismatch." if its type is not exactly
    // T. The reference holds until the end of the transaction that erases the object.
    template <Storable T>
    const T& read(const Key& key) const {
        return *static_cast<const T*>(find(key, typeid(T)).value.get());
    }

    // A handle on the object under the key; fails as read() does.
    template <Storable T>
    ObjectHandle<T> handle(const Key& key) {
        return ObjectHandle<T>({store_, key, find(key, typeid(T)).value});
    }

    bool contains(const Key& key) const;

    // The keys of all objects, in key order.
    std::vector<Key> keys() const;

    // The observer is called once for every later transaction that changed something, when it has ended and
    // no transaction is open. An observer may read, run a transaction of its own, connect and disconnect
    // (itself and others), and destroy model and transaction. If it runs a transaction, all observers are
    // called for that one before the remaining observers of the first are called. end() throws what an
    // observer throws.
    boost::signals2::connection onChange(const std::function<void(const Changes&)>& observer);

 private:
    friend class Transaction;
    const detail::Object& find(const Key& key, const std::type_info& type) const;

    std::shared_ptr<detail::Store> store_;
};

}  // namespace tiv::container::model
