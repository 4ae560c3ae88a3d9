// Runs operations, encoded as bytes, on a Model and on a naive model: a std::map that is copied when a transaction
// begins. Called by the container test with random bytes, and by the fuzzer.
//
//     runOperations(std::vector<std::uint8_t>{0x00, 0x0c, 0x04});   // begin, insert under the key 0, end
//
// A byte is an operation: bits 0-1 are the key, bits 2-4 the operation, bits 5-7 the number of the allocation that
// fails (0: none).
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

inline int allocationsLeft = 0;  // until one fails; 0: none fails

inline void countAllocation() {
    if (allocationsLeft > 0 && --allocationsLeft == 0) throw std::bad_alloc();
}

struct Value {
    explicit Value(int n) : content(n, n) { ++alive; }
    Value(const Value& other) : content(other.content) { countAllocation(), ++alive; }
    Value(Value&& other) noexcept : content(std::move(other.content)) { ++alive; }
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

    // Returns whether the operation was done.
    template <class Operation>
    bool done(int failing, bool allowed, Operation operation) {
        bool refused = false;
        allocationsLeft = failing;
        try {
            operation();
        } catch (const std::bad_alloc&) {
            return ++failures, false;
        } catch (const std::runtime_error&) {
            refused = true;
        }
        allocationsLeft = 0;
        require(refused != allowed, refused ? "refused" : "not refused");
        return allowed;
    }

    void operate(int operation, const model::Key& key, int failing) {
        const bool open = transaction != nullptr, present = naive.contains(key);
        if (operation == 0) {
            const auto begin = [&] { transaction = std::make_unique<model::Transaction>(real); };
            if (done(failing, !open, begin)) committed = naive;
        } else if (operation == 1 && open) {
            if (done(failing, true, [&] { transaction->end(); })) transaction.reset();
        } else if (operation == 2 && open) {
            naive = committed, transaction.reset();
        } else if (operation == 3 && open) {
            if (done(failing, !present, [&] { transaction->insert(key, Value(step)); }))
                naive[key] = {step, step};
        } else if (operation == 4 && open) {
            if (done(failing, present, [&] { transaction->erase(key); })) naive.erase(key);
        } else if (operation == 5) {
            if (done(failing, present, [&] { handles[key] = real.handle<Value>(key); }))
                handled[key] = naive[key].first;
        } else if (operation > 5) {
            const bool current = open && present && naive[key].first == handled[key];
            if (done(failing, current, [&] { handles[key].modify().content.second = step; }))
                naive[key].second = step;
        }
    }

    // Applies the reports as a view does. Each must change something.
    void report(const model::Changes& changes) {
        allocationsLeft = 0;
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
        require(content == naive, "the content differs");
        require(transaction || reported == naive, "the reports differ");
        require(transaction || Value::alive == static_cast<int>(naive.size()), "objects leak");
    }
};

// Returns how many operations ran out of memory. Throws std::logic_error when the models differ.
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
