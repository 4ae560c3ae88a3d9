// Access to a settings record in the object model for code that has its description but not its type:
//
//     const RecordAccess& access = recordAccess<esk::Data>();
//     const void* record = access.read(model, Key(0));           // "Unknown key.", "Type mismatch."
//     Transaction transaction(model);
//     void* changed = access.modify(model, Key(0));
#pragma once

#include "bond/schema.h"
#include "properties/container/model.h"
#include "properties/container/object_handle.h"
#include "properties/container/transaction.h"

#include <memory>
#include <utility>

namespace tiv::properties {

struct RecordAccess {
    const bond::Struct& schema;
    void (*insertDefault)(container::model::Transaction&, const container::model::Key&);
    const void* (*read)(const container::model::Model&, const container::model::Key&);
    void* (*modify)(container::model::Model&, const container::model::Key&);
    // `make` returns a new record with nothing set, `replace` moves the content of such a record into that of
    // the model.
    std::shared_ptr<void> (*make)();
    void (*replace)(container::model::Model&, const container::model::Key&, void* record);
};

template <class Record>
const RecordAccess& recordAccess() {
    using namespace container::model;
    static const RecordAccess access{
        bond::structOf<Record>(),
        [](Transaction& transaction, const Key& key) { transaction.insert(key, Record{}); },
        [](const Model& model, const Key& key) -> const void* { return &model.read<Record>(key); },
        [](Model& model, const Key& key) -> void* { return &model.handle<Record>(key).modify(); },
        []() -> std::shared_ptr<void> { return std::make_shared<Record>(); },
        [](Model& model, const Key& key, void* record) {
            model.handle<Record>(key).modify() = std::move(*static_cast<Record*>(record));
        },
    };
    return access;
}

}  // namespace tiv::properties
