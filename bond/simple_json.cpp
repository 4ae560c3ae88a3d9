#include "bond/simple_json.h"

#include "bond/exceptions.h"
#include "bond/member.h"

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

namespace bond {
namespace {

using Json = rapidjson::Value;

constexpr const char* jsonName = "JsonName";

// Names are compared up to their first NUL, because the reference implementation compares C strings.
const char* nameIn(const Json& text) {
    return text.GetString();
}

// The field id that a member's name states: "7", "+07", and "-65529", which is 7 in 16 bits.
std::optional<std::uint16_t> idIn(std::string_view name) {
    const bool negative = name.starts_with('-');
    if (negative || name.starts_with('+')) name.remove_prefix(1);
    std::uint16_t id = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), id);
    if (error != std::errc{} || end != name.data() + name.size()) return std::nullopt;
    return static_cast<std::uint16_t>(negative ? -id : id);
}

// The field that a member's name stands for, or null.
const Row* rowNamed(const Struct& description, const char* name) {
    for (const Row& row : description.rows)
        if (std::strcmp(name, row.name) == 0 && !row.attribute(jsonName)) return &row;
    for (const Row& row : description.rows)
        if (const char* own = row.attribute(jsonName); own && std::strcmp(name, own) == 0) return &row;
    const auto id = idIn(name);
    return id && *id < description.rows.size() ? &description.rows[*id] : nullptr;
}

const Enumerator* enumeratorNamed(const EnumSchema& enumeration, const char* name) {
    for (const Enumerator& enumerator : enumeration.enumerators)
        if (std::strcmp(name, enumerator.name) == 0) return &enumerator;
    return nullptr;
}

// Stores the value in the member where the JSON type fits, else returns false.
template <class T>
bool readValue(const Json& json, T& value) {
    if constexpr (std::is_same_v<T, std::string>) {
        if (!json.IsString()) return false;
        value.assign(json.GetString(), json.GetStringLength());
    } else if constexpr (std::is_same_v<T, bool>) {
        if (!json.IsBool()) return false;
        value = json.GetBool();
    } else if constexpr (std::is_floating_point_v<T>) {
        // The greatest float, printed and read as a double, can be slightly above it.
        if (!json.IsNumber() || !std::isfinite(static_cast<T>(json.GetDouble()))) return false;
        value = static_cast<T>(json.GetDouble());
    } else if constexpr (std::is_unsigned_v<T>) {
        if (!json.IsUint64() || !std::in_range<T>(json.GetUint64())) return false;
        value = static_cast<T>(json.GetUint64());
    } else {
        if (!json.IsInt64() || !std::in_range<T>(json.GetInt64())) return false;
        value = static_cast<T>(json.GetInt64());
    }
    return true;
}

void readRecord(const Struct& description, void* record, const Json& object);

bool readField(const Row& row, void* record, const Json& json) {
    if (row.type == Type::Struct) {
        if (!json.IsObject()) return false;
        readRecord(*row.nested, row.in(record), json);
        return true;
    }
    bool fits = false;
    visitMember(row, record, [&](auto& value) {
        if constexpr (std::is_same_v<decltype(value), std::int32_t&>) {
            if (row.type == Type::Enum && json.IsString()) {
                const Enumerator* enumerator = enumeratorNamed(*row.enumeration, nameIn(json));
                if (enumerator) value = enumerator->value;
                fits = true;
                return;
            }
        }
        fits = readValue(json, value);
    });
    return fits;
}

void readRecord(const Struct& description, void* record, const Json& object) {
    std::vector<bool> isRead(description.rows.size());
    for (const auto& member : object.GetObject()) {
        const Row* row = rowNamed(description, nameIn(member.name));
        if (row && !isRead[row->id]) isRead[row->id] = readField(*row, record, member.value);
    }
}

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

struct PutValue {
    Writer& writer;

    void operator()(bool value) const { writer.Bool(value); }
    void operator()(const std::string& value) const {
        writer.String(value.data(), static_cast<rapidjson::SizeType>(value.size()));
    }
    template <class T>
    void operator()(T value) const {
        if constexpr (std::is_floating_point_v<T>)
            std::isfinite(value) ? writer.Double(value) : writer.Null();
        else if constexpr (std::is_signed_v<T>)
            writer.Int64(value);
        else
            writer.Uint64(value);
    }
};

void writeRecord(const Struct& description, const void* record, Writer& writer) {
    writer.StartObject();
    for (const Row& row : description.rows) {
        const char* name = row.attribute(jsonName);
        writer.Key(name ? name : row.name);
        if (row.type == Type::Struct)
            writeRecord(*row.nested, row.in(record), writer);
        else
            visitMember(row, record, PutValue{writer});
    }
    writer.EndObject();
}

}  // namespace

std::string writeSimpleJson(const Struct& description, const void* record) {
    rapidjson::StringBuffer text;
    Writer writer(text);
    writeRecord(description, record, writer);
    return {text.GetString(), text.GetSize()};
}

void readSimpleJson(const Struct& description, void* record, std::string_view text) {
    // Not kParseFullPrecisionFlag: it reads out of bounds on "0." with 400 zeros.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseStopWhenDoneFlag;
    rapidjson::MemoryStream stream(text.data(), text.size());
    rapidjson::Document document;
    document.ParseStream<flags>(stream);
    if (document.HasParseError())
        throw CoreException(
            "JSON parser error: " + std::string(rapidjson::GetParseError_En(document.GetParseError())) +
            " at offset " + std::to_string(document.GetErrorOffset()));
    if (document.IsObject()) readRecord(description, record, document);
}

}  // namespace bond
