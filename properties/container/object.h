// A type-erased object of a Model, and the operations of its type. Internal to the model:
// the typed functions of Model and Transaction lower to it.
#pragma once

#include <concepts>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace tiv::container::model {

// What a model can store: the value is copied when it is first changed, and a rollback, which must not
// fail, moves the copy back.
template <class T>
concept Storable = std::copy_constructible<T> && std::is_nothrow_move_assignable_v<T>;

namespace detail {

struct StoredType {
    const std::type_info* info;
    std::shared_ptr<void> (*copy)(const void* value);
    void (*restore)(void* value, void* copy) noexcept;
};

template <Storable T>
inline constexpr StoredType storedType{&typeid(T),
    [](const void* value) -> std::shared_ptr<void> {
        return std::make_shared<T>(*static_cast<const T*>(value));
    },
    [](void* value, void* copy) noexcept { *static_cast<T*>(value) = std::move(*static_cast<T*>(copy)); }};

// `type` is null exactly when `value` is.
struct Object {
    const StoredType* type = nullptr;
    std::shared_ptr<void> value;
};

}  // namespace detail
}  // namespace tiv::container::model
