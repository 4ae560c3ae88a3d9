// The key of an object in a Model: any value that can be copied, compared, ordered and hashed.
// Used wherever an object is stored or read; the settings record of an echo table has Key(0).
//
//     model.read<Properties>(0);
//     model.read<Properties>("prop");  // text is always kept as std::string
//     model.read<Properties>(Key(std::in_place, std::pair(7, 'a')));
//
// Keys of different types are never equal: Key(0) != Key(0u). They are ordered by type, in an order that
// holds while the process runs.
#pragma once

#include <boost/container_hash/hash.hpp>
#include <boost/mpl/vector.hpp>
#include <boost/type_erasure/any.hpp>
#include <boost/type_erasure/builtin.hpp>
#include <boost/type_erasure/call.hpp>
#include <boost/type_erasure/check_match.hpp>
#include <boost/type_erasure/operators.hpp>
#include <boost/type_erasure/relaxed.hpp>

#include <concepts>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tiv::container::model {

namespace detail {

// The concept "can be hashed" for Boost.TypeErasure.
template <class T = boost::type_erasure::_self>
struct Hashable {
    static std::size_t apply(const T& value) { return boost::hash<T>{}(value); }
};

template <class T>
concept Text = std::convertible_to<const T&, std::string_view>;

template <class T>
concept Scalar = std::is_scalar_v<T> && !Text<T>;

}  // namespace detail

class Key {
 public:
    // From a number, an enumerator or an address.
    template <detail::Scalar T>
    Key(T value) : value_(value) {}
    // From text.
    template <detail::Text T>
    Key(const T& text) : value_(std::string(std::string_view(text))) {}
    // From another type that can be copied, compared by == and < and hashed by boost::hash. Not an implicit
    // conversion: any tuple would then convert to std::tuple<Key>, for example.
    template <class T>
    Key(std::in_place_t, const T& value) : value_(value) {}

    // Copies, and no moves: a key always has a value.
    Key(const Key&) = default;
    Key& operator=(const Key&) = default;

    // Members, so that comparing other types never tries to convert them to a key.
    bool operator==(const Key& other) const {
        constexpr boost::type_erasure::equality_comparable<> equal{};
        return check_match(equal, value_, other.value_) && call(equal, value_, other.value_);
    }
    bool operator<(const Key& other) const { return value_ < other.value_; }
    friend std::size_t hash_value(const Key& key) { return call(detail::Hashable<>(), key.value_); }

 private:
    boost::type_erasure::any<boost::mpl::vector<boost::type_erasure::copy_constructible<>,
        boost::type_erasure::typeid_<>, boost::type_erasure::equality_comparable<>,
        boost::type_erasure::less_than_comparable<>, detail::Hashable<>, boost::type_erasure::relaxed>>
        value_;
};

}  // namespace tiv::container::model

namespace std {

template <>
struct hash<tiv::container::model::Key> {
    std::size_t operator()(const tiv::container::model::Key& key) const { return hash_value(key); }
};

}  // namespace std
