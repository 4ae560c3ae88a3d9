#include "container/operation_sequence.h"
#include "support/failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using namespace tiv::container::model;
using test::failureOf;
using Keys = std::vector<Key>;

template <class T>
void put(Model& model, const Key& key, T object) {
    Transaction transaction(model);
    if (model.contains(key)) transaction.erase(key);
    transaction.insert(key, std::move(object));
    transaction.end();
}

TEST(BothModels, AgreeInRandomSequencesThoughMemoryRunsOut) {
    int failures = 0;
    std::mt19937 random(1);
    for (int sequence = 0; sequence < 500; ++sequence) {
        std::vector<std::uint8_t> bytes(200);
        std::ranges::generate(bytes, [&] { return static_cast<std::uint8_t>(random()); });
        EXPECT_NO_THROW(failures += test::runOperations(bytes)) << "sequence " << sequence;
    }
    EXPECT_GT(failures, 9000);
}

TEST(Container, ReportsMisuseAndStaysUnchanged) {
    Model model;
    put(model, 0, 7);
    ObjectHandle<int> orphan, dropped;
    EXPECT_EQ(failureOf([&] { model.read<int>(1); }), "Unknown key.");
    EXPECT_EQ(failureOf([&] { model.handle<unsigned>(0); }), "Type mismatch.");
    {
        Model shortLived;
        put(shortLived, 0, 7);
        orphan = shortLived.handle<int>(0);
        Transaction transaction(model);
        EXPECT_EQ(failureOf([&] { Transaction second(model); }),
            "Transaction in progress. Hierarchical transactions not supported (yet). Should we?");
        EXPECT_EQ(failureOf([&] { orphan.modify(); }), "modify() may only be called within a transaction.");
        transaction.insert(1, 1);
        dropped = model.handle<int>(1);
        transaction.insert(0.5, 1);
        for (const Key& key : {Key(1), Key(std::nan(""))})
            EXPECT_EQ(failureOf([&] { transaction.insert(key, 1); }), "Key already exists.");
        transaction.erase(1);
        EXPECT_FALSE(model.contains(1));
        EXPECT_EQ(failureOf([&] { transaction.erase(1); }), "Unknown key.");
        transaction.insert(1, std::string("one"));
        EXPECT_EQ(failureOf([&] { dropped.modify(); }), "Trying to access erased object.");
    }
    Transaction transaction(model);
    EXPECT_EQ(failureOf([&] { orphan.modify(); }), "modify() may only be called within a transaction.");
    transaction.insert(1, 1);
    EXPECT_EQ(failureOf([&] { dropped.modify(); }), "Trying to access expired object.");
    transaction.erase(1);
    EXPECT_EQ(failureOf([&] { dropped.modify(); }), "Trying to access erased object.");
    transaction.end();
    EXPECT_EQ(failureOf([&] { transaction.end(); }), "The transaction has already ended.");
    EXPECT_EQ(failureOf([&] { transaction.insert(1, 1); }), "The transaction has already ended.");
    EXPECT_EQ(failureOf([&] { transaction.erase(0); }), "The transaction has already ended.");
    EXPECT_EQ(model.keys(), Keys{0});
}

TEST(Rollback, DestroysRemovedObjectsAfterTheModelIsRestored) {
    Model model;
    Keys seen;
    put(model, 0, 7);
    for (const int key : {0, 1}) {
        Transaction transaction(model);
        if (key == 0) transaction.erase(0);
        transaction.insert(key, std::shared_ptr<void>(nullptr, [&](void*) {
            seen.push_back(model.keys().at(0));
            put(model, 2 + key, model.read<int>(0));
        }));
        if (key == 1) transaction.erase(0);
    }
    EXPECT_EQ(seen, (Keys{0, 0}));
    EXPECT_EQ(model.keys(), (Keys{0, 2, 3}));
}

TEST(Key, DiffersByTypeAndKeepsTextAsString) {
    std::string text = "0";
    const Keys keys{text, 0, 0U, 0.0, Key(std::in_place, std::pair(0, 0)), 1, std::string_view("0")};
    text = "1";
    for (std::size_t i = 0; i < keys.size(); ++i)
        for (std::size_t j = 0; j < keys.size(); ++j) {
            EXPECT_EQ(keys[i] == keys[j], i % 6 == j % 6) << i << ' ' << j;
            EXPECT_EQ((keys[i] < keys[j]) + (keys[j] < keys[i]), i % 6 == j % 6 ? 0 : 1) << i << ' ' << j;
        }
    EXPECT_EQ(std::hash<Key>()(keys[0]), std::hash<Key>()(keys[6]));
}

TEST(Observers, AreCalledOnceWithTheKeysInOrderAndMayRunTransactions) {
    Model model;
    Keys seen;
    model.onChange([&](const Changes& changes) {
        seen.insert(seen.end(), changes.created.begin(), changes.created.end());
        if (!model.contains(0)) put(model, 0, 9);
    });
    Transaction transaction(model);
    for (const int key : {3, 1, 2}) transaction.insert(key, key);
    transaction.end();
    Transaction(model).end();
    EXPECT_EQ(seen, (Keys{3, 1, 2, 0}));
}

TEST(Observers, MayThrowAndDestroyAllWhileErasedObjectsLive) {
    auto doomed = std::make_unique<Model>();
    put(*doomed, 0, test::Value(7));
    auto last = std::make_unique<Transaction>(*doomed);
    Keys seen;
    for (const char* failure : {"one", "two"})
        doomed->onChange([&, failure](const Changes&) {
            last.reset(), doomed.reset();
            seen.emplace_back(test::Value::alive);
            throw std::runtime_error(failure);
        });
    last->erase(0);
    EXPECT_EQ(failureOf([&] { last->end(); }), "one");
    EXPECT_EQ(seen, (Keys{1, 1}));
}

}  // namespace
