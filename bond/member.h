// Gives code that walks rows typed access to a field's member: the codec, the property definitions.
//
//     visitMember(row, record, [&](const auto& value) { print(value); });   // record: const void*
//     visitMember(row, record, [&](auto& value) { value = {}; });           // record: void*
#pragma once

#include "bond/schema.h"

#include <cstring>
#include <utility>

namespace bond {

namespace detail {

// The field's member as a T. `Record` is void or const void.
template <class T, class Record>
auto& memberAs(const Row& row, Record* record) {
    return *static_cast<std::conditional_t<std::is_const_v<Record>, const T, T>*>(row.in(record));
}

}  // namespace detail

// Calls `visit` with a reference to the field's member and returns what it returns; a visitor that
// changes the member returns nothing. The member is a bool, an integer, float, double or std::string.
// An enumeration is visited as a std::int32_t, because a row does not hold its type.
// Not for a nested struct: enter row.nested instead.
template <class Record, class Visit>
auto visitMember(const Row& row, Record* record, Visit visit) {
    using detail::memberAs;
    switch (row.type) {
        case Type::Bool:
            return visit(memberAs<bool>(row, record));
        case Type::Int8:
            return visit(memberAs<std::int8_t>(row, record));
        case Type::Int16:
            return visit(memberAs<std::int16_t>(row, record));
        case Type::Int32:
            return visit(memberAs<std::int32_t>(row, record));
        case Type::Int64:
            return visit(memberAs<std::int64_t>(row, record));
        case Type::UInt8:
            return visit(memberAs<std::uint8_t>(row, record));
        case Type::UInt16:
            return visit(memberAs<std::uint16_t>(row, record));
        case Type::UInt32:
            return visit(memberAs<std::uint32_t>(row, record));
        case Type::UInt64:
            return visit(memberAs<std::uint64_t>(row, record));
        case Type::Float:
            return visit(memberAs<float>(row, record));
        case Type::Double:
            return visit(memberAs<double>(row, record));
        case Type::String:
            return visit(memberAs<std::string>(row, record));
        case Type::Enum:
        case Type::Struct:
            break;
    }
    // Through a copy: the language does not allow access to an enumeration's object as an int.
    std::int32_t number = 0;
    std::memcpy(&number, row.in(record), sizeof number);
    if constexpr (std::is_const_v<Record>) {
        return visit(std::as_const(number));
    } else {
        visit(number);
        std::memcpy(row.in(record), &number, sizeof number);
    }
}

}  // namespace bond
