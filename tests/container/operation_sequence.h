// A model driven by bytes beside a naive one, a std::map that is copied when a transaction is opened.
// Called by the container test with random bytes, and by the fuzzer.
//
//     runOperations(std::vector<std::uint8_t>{0x00, 0x0c, 0x04});   // open, insert under the key 0, end
//
// A byte is an operation: bits 0-1 the key, bits 2-4 what is done, bits 5-7 the point at which memory runs
// out (0: it does not).
#pragma once

#include "properties/container/transaction.h"

#include <boost/signals2/connection.hpp>

#include <algorithm>
#include <cstdint>
#include <map>
#include <new>
#include <span>
#include <stdexcept>
#include <string>

namespace test {

namespace model = tiv::container::model;

inline int fuse = 0;  // burns down to 0 and throws; 0: not lit

// A point at which memory can run out.
inline void burn() {
    if (fuse > 0 && --fuse == 0) throw std::bad_alloc();
}

struct Value {
    explicit Value(int n) : content(n, n) { ++alive; }
    Value(const Value& other) : content(other.content) { burn(), ++alive; }
    Value(Value&& other) noexcept : content(other.content) { ++alive; }
    Value& operator=(Value&&) noexcept = default;
    ~Value() { --alive; }

    std::pair<int, int> content;  // an identity, and what modify() changes
    static inline int alive = 0;
};

struct BothModels {
    using Content = std::map<model::Key, std::pair<int, int>>;

    model::Model real;
    std::unique_ptr<model::Transaction> transaction;
    std::map<model::Key, model::ObjectHandle<Value>> handles;
    std::map<model::Key, int> handled;   // identities
    Content naive, committed, reported;  // reported: to observers
    int step = 0, failures = 0;

    void require(bool holds, const char* otherwise) const {
        if (!holds) throw std::logic_error("operation " + std::to_string(step) + ": " + otherwise);
    }

    // Whether the operation was done. Refused or out of memory, it must have had no effect.
    template <class Operation>
    bool done(int fuseLength, bool allowed, Operation operation) {
        bool refused = false;
        fuse = fuseLength;
        try {
            operation();
        } catch (const std::bad_alloc&) {
            return ++failures, false;
        } catch (const std::runtime_error&) {
            refused = true;
        }
        fuse = 0;
        require(refused != allowed, refused ? "refused" : "not refused");
        return allowed;
    }

    void operate(int operation, const model::Key& key, int length) {
        const bool open = transaction != nullptr, present = naive.count(key) != 0;
        if (operation == 0) {
            const auto begin = [&] { transaction = std::make_unique<model::Transaction>(real); };
            if (done(length, !open, begin)) committed = naive;
        } else if (operation == 1 && open) {
            if (done(length, true, [&] { transaction->end(); })) transaction.reset();
        } else if (operation == 2 && open) {
            naive = committed, transaction.reset();
        } else if (operation == 3 && open) {
            if (done(length, !present, [&] { transaction->insert(key, Value(step)); }))
                naive[key] = {step, step};
        } else if (operation == 4 && open) {
            if (done(length, present, [&] { transaction->erase(key); })) naive.erase(key);
        } else if (operation == 5) {
            if (done(length, present, [&] { handles[key] = real.handle<Value>(key); }))
                handled[key] = naive[key].first;
        } else if (operation > 5) {
            const bool current = open && present && naive[key].first == handled[key];
            if (done(length, current, [&] { handles[key].modify().content.second = step; }))
                naive[key].second = step;
        }
    }

    // Applies the reports as a view does. Each must change something.
    void report(const model::Changes& changes) {
        fuse = 0;
        for (const auto& key : changes.created)
            require(reported.emplace(key, real.read<Value>(key).content).second, "created twice");
        for (const auto& key : changes.modified) {
            const auto known = std::exchange(reported.at(key), real.read<Value>(key).content);
            require(known != reported.at(key), "modified twice");
        }
        for (const auto& key : changes.erased) require(reported.erase(key) == 1, "erased twice");
    }

    void compare() const {
        Content content;
        for (const auto& key : real.keys())
            content.emplace_hint(content.end(), key, real.read<Value>(key).content);
        require(content == naive, "another content");
        require(transaction || reported == naive, "not what was reported");
        require(transaction || Value::alive == static_cast<int>(naive.size()), "objects are left over");
    }
};

// How many operations ran out of memory. Throws std::logic_error where the models disagree.
inline int runOperations(std::span<const std::uint8_t> bytes) {
    const model::Key keys[] = {0, 1, "0", 0.5};
    BothModels both;
    both.real.onChange([&](const auto& changes) { both.report(changes); });
    for (const std::uint8_t byte : bytes) {
        ++both.step;
        both.operate(byte >> 2 & 7, keys[byte & 3], byte >> 5);
        both.compare();
    }
    return both.failures;
}

}  // namespace test
