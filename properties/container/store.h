// The entries of a Model, and the journal of its open transaction. Internal: included by model.cpp and
// transaction.cpp only.
//
// A rollback must not fail, so it allocates nothing: an erased object's entry stays in place, empty, until
// the transaction has ended, and a record keeps the object as it was.
//
//     in the journal's record   in the entry     the documented state
//     before: none              an object        0 created
//     before: an object         an object        1 modified (or another object: erased, then inserted)
//     before: an object         none             2 erased
//     before: none              none             2 erased, created in the same transaction: not reported
#pragma once

#include "properties/container/model.h"

#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/member.hpp>
#include <boost/multi_index/ordered_index.hpp>
#include <boost/multi_index/sequenced_index.hpp>
#include <boost/multi_index_container.hpp>
#include <boost/signals2/dummy_mutex.hpp>
#include <boost/signals2/signal_type.hpp>

#include <exception>
#include <optional>

namespace tiv::container::model::detail {

struct Entry {
    Entry(const Key& k, Object o) : key(k), object(std::move(o)) {}

    Key key;
    mutable Object object;  // not part of an index
};

using Entries = boost::multi_index_container<Entry,
    boost::multi_index::indexed_by<
        boost::multi_index::hashed_unique<boost::multi_index::member<Entry, Key, &Entry::key>>,
        boost::multi_index::ordered_unique<boost::multi_index::member<Entry, Key, &Entry::key>>>>;

// An entry that the transaction has touched. It stays in place while the transaction is open.
struct Record {
    const Entry* entry;
    mutable Object before;       // a rollback puts the object here that it removes
    std::shared_ptr<void> copy;  // of the value of `before`, if that was modified
};

using Records = boost::multi_index_container<Record,
    boost::multi_index::indexed_by<boost::multi_index::sequenced<>,
        boost::multi_index::hashed_unique<boost::multi_index::member<Record, const Entry*, &Record::entry>>>>;

struct Journal {
    Records records;
    std::vector<std::shared_ptr<void>> discarded;  // created and erased again; kept alive until the end

    // The entry's record, or null.
    const Record* find(const Entry* entry) const {
        const auto record = records.get<1>().find(entry);
        return record == records.get<1>().end() ? nullptr : &*record;
    }
};

// Calls every observer. The result is the first exception.
struct CallAll {
    using result_type = std::exception_ptr;

    template <class Iterator>
    std::exception_ptr operator()(Iterator observer, Iterator end) const {
        std::exception_ptr first;
        for (; observer != end; ++observer) {
            try {
                *observer;
            } catch (...) {
                if (!first) first = std::current_exception();
            }
        }
        return first;
    }
};

using Observers =
    boost::signals2::signal_type<void(const Changes&), boost::signals2::keywords::combiner_type<CallAll>,
        boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type;

struct Store {
    Entries entries;
    Journal* journal = nullptr;          // of the open transaction
    std::optional<Observers> observers;  // made for the first one: most models have none

    // The key's entry, which may be empty; null if there is none.
    const Entry* find(const Key& key) const {
        const auto entry = entries.find(key);
        return entry == entries.end() ? nullptr : &*entry;
    }
    void remove(const Entry* entry) { entries.erase(entries.iterator_to(*entry)); }
};

}  // namespace tiv::container::model::detail
