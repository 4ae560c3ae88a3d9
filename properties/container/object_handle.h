// A typed reference to one object of a Model, through which the object is changed.
// Returned by Model::handle(); used inside a Transaction:
//
//     const ObjectHandle<Properties> record = model.handle<Properties>(0);
//     Transaction transaction(model);
//     record.modify().full = FULL_OUTPUT;
//     transaction.end();
//
// A handle keeps neither the object nor the model alive and may outlive both. It stays valid when a
// transaction is rolled back, since objects keep their identity.
#pragma once

#include "properties/container/key.h"

#include <memory>
#include <utility>

namespace tiv::container::model {

class Model;

namespace detail {

struct Store;

// What handles of all types have in common. Detached without a store.
struct ObjectReference {
    std::weak_ptr<Store> store;
    Key key = 0;
    std::weak_ptr<void> object;

    void* modify() const;
};

}  // namespace detail

template <class T>
class ObjectHandle {
 public:
    // A detached handle.
    ObjectHandle() = default;

    // The object, for change until the open transaction ends; the first call in a transaction journals the
    // object as modified, with a copy of its value. Checked in this order, std::runtime_error:
    //   "modify() may only be called within a transaction."  no model, or no open transaction
    //   "Trying to access erased object."   the open transaction erased the object
    //   "Trying to access expired object."  the object no longer exists
    // Throws also what copying T throws. After a throw nothing has changed.
    T& modify() const { return *static_cast<T*>(reference_.modify()); }

 private:
    friend class Model;
    explicit ObjectHandle(detail::ObjectReference reference) : reference_(std::move(reference)) {}

    detail::ObjectReference reference_;
};

}  // namespace tiv::container::model
