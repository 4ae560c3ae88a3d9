// How a record is described: a plain struct, and beside it one table of its fields.
//
//     struct Properties { OutPutType full = DEFAULT_OUTPUT; OutPutType grp = DEFAULT_OUTPUT; };
//     constexpr auto describe(const Properties*) {
//         using bond::field;
//         return bond::record<Properties>("tiv.echo.esk.Properties",
//             field("full", &Properties::full, {{"DisplayName", "Default of all options"}}),
//             field("grp", &Properties::grp, {{"DisplayName", "Group parameters"}}));
//     }
//
// A field's id is its position in the table, its schema default is the member's initialiser.
// structOf<Properties>() lowers the table to plain rows, which the codec, the property definitions and the
// line writers walk. The fields of a record are stated nowhere else.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace bond {

// What a field holds. An enumeration is a signed 32-bit integer with named values.
enum class Type : std::uint8_t {
    Bool,
    Int8,
    Int16,
    Int32,
    Int64,
    UInt8,
    UInt16,
    UInt32,
    UInt64,
    Float,
    Double,
    String,
    Enum,
    Struct
};

// One attribute of a field. Names are exact and case-sensitive.
struct Attribute {
    const char* name;
    const char* text;
};

struct Enumerator {
    const char* name;
    std::int32_t value;
};

// An enumeration's qualified name and its values in order of declaration.
struct EnumSchema {
    const char* name;
    std::span<const Enumerator> enumerators;
};

struct Struct;

// One field of a described record.
struct Row {
    const char* name;
    Type type;
    std::uint16_t id;    // position in the table
    std::size_t offset;  // bytes from the start of the record
    std::span<const Attribute> attributes;
    const EnumSchema* enumeration;  // of an Enum field, else null
    const Struct* nested;           // of a Struct field, else null

    // The attribute's text, or null.
    const char* attribute(std::string_view attributeName) const {
        for (const Attribute& a : attributes)
            if (attributeName == a.name) return a.text;
        return nullptr;
    }
    // The field's member within a record of the row's struct.
    const void* in(const void* record) const { return static_cast<const std::byte*>(record) + offset; }
    void* in(void* record) const { return static_cast<std::byte*>(record) + offset; }
};

// A described record type, lowered. `defaults` points to a record in its initial state.
struct Struct {
    const char* name;  // qualified, "tiv.echo.esk.Data"
    std::span<const Row> rows;
    const void* defaults;
};

// One line of a record's table.
template <class Record, class Member, std::size_t N>
struct Field {
    const char* name;
    Member Record::*member;
    std::array<Attribute, N> attributes;
};

template <class Record, class Member>
constexpr Field<Record, Member, 0> field(const char* name, Member Record::*member) {
    return {name, member, {}};
}

template <class Record, class Member, std::size_t N>
constexpr Field<Record, Member, N> field(
    const char* name, Member Record::*member, const Attribute (&attributes)[N]) {
    return {name, member, std::to_array(attributes)};
}

template <class... Fields>
struct Description {
    const char* name;
    std::tuple<Fields...> fields;
};

namespace detail {

struct AnyMember {
    template <class T>
    constexpr operator T() const;  // never defined: used in a requires-expression only
};

// How many members an aggregate has: as many initialisers as it takes.
template <class Record, class... Members>
consteval std::size_t memberCount() {
    if constexpr (requires { Record{Members{}..., AnyMember{}}; })
        return memberCount<Record, Members..., AnyMember>();
    else
        return sizeof...(Members);
}

template <class A, class B>
constexpr bool sameMember(const A& a, const B& b) {
    if constexpr (std::is_same_v<decltype(a.member), decltype(b.member)>)
        return a.member == b.member;
    else
        return false;
}

template <class... Fields>
constexpr bool repeatsMember(const std::tuple<Fields...>& fields) {
    const auto occurrences = [&](const auto& one) {
        return std::apply(
            [&](const auto&... other) { return (0 + ... + int{sameMember(one, other)}); }, fields);
    };
    return std::apply([&](const auto&... one) { return ((occurrences(one) > 1) || ...); }, fields);
}

template <class Member>
consteval Type typeOf() {
    if constexpr (std::is_enum_v<Member>) {
        static_assert(sizeof(Member) == 4,
            "<=== an enumeration field is 32 bits wide: give the enum the base std::int32_t");
        return Type::Enum;
    } else if constexpr (std::is_same_v<Member, bool>) {
        return Type::Bool;
    } else if constexpr (std::is_integral_v<Member>) {
        constexpr std::array types{Type::Int8,
            Type::Int16,
            Type::Int32,
            Type::Int64,
            Type::UInt8,
            Type::UInt16,
            Type::UInt32,
            Type::UInt64};
        constexpr std::size_t width = sizeof(Member) == 1   ? 0
                                      : sizeof(Member) == 2 ? 1
                                      : sizeof(Member) == 4 ? 2
                                                            : 3;
        return types[width + (std::is_signed_v<Member> ? 0 : 4)];
    } else if constexpr (std::is_same_v<Member, float>) {
        return Type::Float;
    } else if constexpr (std::is_same_v<Member, double>) {
        return Type::Double;
    } else if constexpr (std::is_same_v<Member, std::string>) {
        return Type::String;
    } else {
        static_assert(std::is_class_v<Member>, "<=== no wire type for a member of this type");
        return Type::Struct;
    }
}

}  // namespace detail

// A record's table. `Record` is an aggregate; every member is listed exactly once.
template <class Record, class... Fields>
constexpr Description<Fields...> record(const char* name, Fields... fields) {
    static_assert(detail::memberCount<Record>() == sizeof...(Fields),
        "<=== every member of the record needs one field() line in its describe()");
    return {name, {fields...}};
}

// The table of a record, from the function describe() in the namespace of the record.
template <class Record>
inline constexpr auto description = describe(static_cast<const Record*>(nullptr));

template <class Record>
inline constexpr std::size_t fieldCount = std::tuple_size_v<decltype(description<Record>.fields)>;

template <class Record>
const Struct& structOf();

namespace detail {

template <class Record, class Member, std::size_t N>
Row lower(const Record& defaults, const Field<Record, Member, N>& field, std::size_t id) {
    constexpr Type type = typeOf<Member>();
    const auto* start = reinterpret_cast<const std::byte*>(&defaults);
    const auto* member = reinterpret_cast<const std::byte*>(&(defaults.*field.member));
    Row row{field.name,
        type,
        static_cast<std::uint16_t>(id),
        static_cast<std::size_t>(member - start),
        field.attributes,
        nullptr,
        nullptr};
    if constexpr (type == Type::Enum) row.enumeration = &enumSchema(static_cast<const Member*>(nullptr));
    if constexpr (type == Type::Struct) row.nested = &structOf<Member>();
    return row;
}

}  // namespace detail

// The lowered description of a record, made at the first call. Never destroyed.
template <class Record>
const Struct& structOf() {
    static_assert(!detail::repeatsMember(description<Record>.fields),
        "<=== a member stands twice in the record's describe()");
    static const Record& defaults = *new Record{};
    static const auto rows = std::apply(
        [](const auto&... fields) {
            std::size_t id = 0;
            return std::array<Row, sizeof...(fields)>{detail::lower(defaults, fields, id++)...};
        },
        description<Record>.fields);
    static const Struct result{description<Record>.name, rows, &defaults};
    return result;
}

}  // namespace bond
