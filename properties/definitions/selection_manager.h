// The object that the inspectors of a property set show. Shared between the owner of the objects and the
// widgets, so that either may be destroyed first:
//
//     SelectionManager<Key> selection;
//     auto connection = selection.onChange([&] { show(*selection.selected()); });
//     selection.select(Key(0));
#pragma once

#include <boost/signals2/dummy_mutex.hpp>
#include <boost/signals2/signal.hpp>
#include <boost/signals2/signal_type.hpp>

#include <functional>
#include <optional>
#include <utility>

namespace tiv::properties {

template <class Value>
class SelectionManager {
 public:
    // Null while nothing is selected.
    const Value* selected() const { return selected_ ? &*selected_ : nullptr; }

    // Calls the observers unless `value` is selected already.
    void select(Value value) {
        if (selected_ && *selected_ == value) return;
        selected_ = std::move(value);
        changed_();
    }

    boost::signals2::connection onChange(const std::function<void()>& observer) {
        return changed_.connect(observer);
    }

 private:
    using Signal = boost::signals2::signal_type<void(),
        boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type;
    std::optional<Value> selected_;
    Signal changed_;
};

}  // namespace tiv::properties
