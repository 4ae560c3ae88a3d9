#include "bond/compact_binary.h"

#include "bond/exceptions.h"
#include "bond/member.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace bond {
namespace {

enum class WireType : std::uint8_t {
    Stop,
    StopBase,
    Bool,
    UInt8,
    UInt16,
    UInt32,
    UInt64,
    Float,
    Double,
    String,
    Struct,
    List,
    Set,
    Map,
    Int8,
    Int16,
    Int32,
    Int64,
    WString
};

constexpr unsigned typeMask = 0x1F;
constexpr unsigned greatestShortId = 5;
constexpr unsigned idInOneByte = 6;  // in place of a short id
constexpr unsigned idInTwoBytes = 7;
constexpr unsigned greatestDepth = 64;

// The wire type that a field is written as, and the narrowest one that it is read from. Every wire type in
// [narrowest, own] can be widened to `own`.
struct WireForm {
    WireType own;
    WireType narrowest;
};

constexpr WireForm wireForms[] = {
    // in the order of Type
    {WireType::Bool, WireType::Bool},
    {WireType::Int8, WireType::Int8},
    {WireType::Int16, WireType::Int8},
    {WireType::Int32, WireType::Int8},
    {WireType::Int64, WireType::Int8},
    {WireType::UInt8, WireType::UInt8},
    {WireType::UInt16, WireType::UInt8},
    {WireType::UInt32, WireType::UInt8},
    {WireType::UInt64, WireType::UInt8},
    {WireType::Float, WireType::Float},
    {WireType::Double, WireType::Float},
    {WireType::String, WireType::String},
    {WireType::Int32, WireType::Int8},  // Enum
    {WireType::Struct, WireType::Struct},
};

WireForm wireForm(const Row& row) {
    static_assert(std::size(wireForms) == static_cast<std::size_t>(Type::Struct) + 1);
    return wireForms[static_cast<std::size_t>(row.type)];
}

// ---- Writing: put...() write to `out` and return where they stopped ----

constexpr std::size_t longestHeader = 3;
constexpr std::size_t longestNumber = 10;

std::byte* putByte(std::byte* out, std::uint64_t value) {
    *out = static_cast<std::byte>(value);
    return out + 1;
}

template <class Number>
std::byte* putLowByteFirst(std::byte* out, Number number) {
    for (unsigned bit = 0; bit < std::numeric_limits<Number>::digits; bit += 8)
        out = putByte(out, number >> bit);
    return out;
}

std::byte* putVarint(std::byte* out, std::uint64_t number) {
    for (; number > 0x7F; number >>= 7) out = putByte(out, number | 0x80);
    return putByte(out, number);
}

std::byte* putHeader(std::byte* out, const Row& row) {
    const auto type = static_cast<unsigned>(wireForm(row).own);
    const unsigned id = row.id;
    if (id <= greatestShortId) return putByte(out, id << 5 | type);
    if (id <= 0xFF) return putByte(putByte(out, idInOneByte << 5 | type), id);
    return putLowByteFirst(putByte(out, idInTwoBytes << 5 | type), row.id);
}

template <class Number>
std::byte* putNumber(std::byte* out, Number number) {
    if constexpr (sizeof number == 1) {
        return putByte(out, static_cast<std::uint64_t>(number));
    } else if constexpr (std::is_same_v<Number, float>) {
        return putLowByteFirst(out, std::bit_cast<std::uint32_t>(number));
    } else if constexpr (std::is_same_v<Number, double>) {
        return putLowByteFirst(out, std::bit_cast<std::uint64_t>(number));
    } else if constexpr (std::is_signed_v<Number>) {
        const std::int64_t wide = number;
        return putVarint(
            out, (static_cast<std::uint64_t>(wide) << 1) ^ static_cast<std::uint64_t>(wide >> 63));
    } else {
        return putVarint(out, number);
    }
}

template <class T>
std::byte* putField(std::byte* out, const Row& row, const T& value) {
    out = putHeader(out, row);
    if constexpr (std::is_same_v<T, std::string>) {
        out = putVarint(out, value.size());
        std::memcpy(out, value.data(), value.size());
        return out + value.size();
    } else {
        return putNumber(out, value);
    }
}

// Numbers are compared bit by bit: minus zero is not the default zero.
template <class T>
bool isDefault(const T& value, const void* defaultMember) {
    if constexpr (std::is_same_v<T, std::string>)
        return value == *static_cast<const std::string*>(defaultMember);
    else  // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
        return std::memcmp(&value, defaultMember, sizeof value) == 0;
}

std::byte* putRecord(std::byte* out, const Struct& description, const void* record) {
    for (const Row& row : description.rows) {
        if (row.type == Type::Struct)
            out = putRecord(putHeader(out, row), *row.nested, row.in(record));
        else
            out = visitMember(row, record, [&](const auto& value) {
                return isDefault(value, row.in(description.defaults)) ? out : putField(out, row, value);
            });
    }
    return putByte(out, static_cast<unsigned>(WireType::Stop));
}

// The most bytes that the record can take.
std::size_t greatestSize(const Struct& description, const void* record) {
    std::size_t size = description.rows.size() * (longestHeader + longestNumber) + 1;  // Stop
    for (const Row& row : description.rows) {
        if (row.type == Type::Struct) size += greatestSize(*row.nested, row.in(record));
        if (row.type == Type::String) size += static_cast<const std::string*>(row.in(record))->size();
    }
    return size;
}

// ---- Reading ----

class Reader {
 public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    // The rest of a record whose nesting level is `depth`.
    void readRecord(const Struct& description, void* record, unsigned depth);

 private:
    struct Header {
        WireType type;
        unsigned id;
    };

    Header header();
    std::uint32_t count() { return static_cast<std::uint32_t>(varint(5)); }
    std::uint64_t varint(unsigned maximumBytes);
    template <class Number>
    Number lowByteFirst();
    unsigned byte();
    std::span<const std::byte> take(std::uint64_t size);
    void require(std::uint64_t size) const {
        if (size > bytes_.size() - position_) outOfBounds(size);
    }
    [[noreturn]] void outOfBounds(std::uint64_t size) const;

    void readField(const Row& row, WireType type, void* record, unsigned depth);
    template <class T>
    void readValue(WireType type, T& value);
    std::uint64_t readInteger(WireType type);

    // Skip values; their bytes are only inspected to find the end. `depth` is the nesting level of the
    // record or container that holds them.
    void skip(WireType type, std::uint64_t times, unsigned depth);
    void skipElements(unsigned depth);
    void skipPairs(unsigned depth);
    void skipRecord(unsigned depth);
    static unsigned deeper(unsigned depth);

    std::span<const std::byte> bytes_;
    std::size_t position_ = 0;
};

void Reader::outOfBounds(std::uint64_t size) const {
    throw StreamException("Read out of bounds: " + std::to_string(size) + " bytes requested, offset: " +
                          std::to_string(position_) + ", length: " + std::to_string(bytes_.size()));
}

std::span<const std::byte> Reader::take(std::uint64_t size) {
    require(size);
    const auto taken = bytes_.subspan(position_, static_cast<std::size_t>(size));
    position_ += taken.size();
    return taken;
}

unsigned Reader::byte() {
    require(1);
    return std::to_integer<unsigned>(bytes_[position_++]);
}

template <class Number>
Number Reader::lowByteFirst() {
    Number number = 0;
    unsigned bit = 0;
    for (const std::byte byte : take(sizeof number)) {
        number = static_cast<Number>(number | std::to_integer<Number>(byte) << bit);
        bit += 8;
    }
    return number;
}

// The continuation bit of the last allowed byte, and bits above the 64th, are ignored.
std::uint64_t Reader::varint(unsigned maximumBytes) {
    std::uint64_t number = 0;
    for (unsigned i = 0; i < maximumBytes; ++i) {
        const unsigned next = byte();
        number |= std::uint64_t{next & 0x7F} << (7 * i);
        if (next <= 0x7F) break;
    }
    return number;
}

Reader::Header Reader::header() {
    const unsigned first = byte();
    const auto type = static_cast<WireType>(first & typeMask);
    const unsigned id = first >> 5;
    if (id == idInOneByte) return {type, byte()};
    if (id == idInTwoBytes) return {type, lowByteFirst<std::uint16_t>()};
    return {type, id};
}

void Reader::readRecord(const Struct& description, void* record, unsigned depth) {
    unsigned next = 0;  // the least id that may still come
    for (Header field = header(); field.type != WireType::Stop; field = header()) {
        if (field.type == WireType::StopBase) return skipRecord(depth);
        if (field.id >= next && field.id < description.rows.size())
            readField(description.rows[field.id], field.type, record, depth);
        else
            skip(field.type, 1, depth);
        next = std::max(next, field.id + 1);
    }
}

void Reader::readField(const Row& row, WireType type, void* record, unsigned depth) {
    const WireForm form = wireForm(row);
    if (type < form.narrowest || type > form.own) {
        if (type <= WireType::WString || row.type == Type::Struct) skip(type, 1, depth);
        return;
    }
    if (row.type == Type::Struct) return readRecord(*row.nested, row.in(record), deeper(depth));
    visitMember(row, record, [&](auto& member) { readValue(type, member); });
}

template <class T>
void Reader::readValue(WireType type, T& value) {
    if constexpr (std::is_same_v<T, std::string>) {
        const auto text = take(count());
        value.assign(reinterpret_cast<const char*>(text.data()), text.size());
    } else if constexpr (std::is_same_v<T, float>) {
        value = std::bit_cast<float>(lowByteFirst<std::uint32_t>());
    } else if constexpr (std::is_same_v<T, double>) {
        value = type == WireType::Float ? double{std::bit_cast<float>(lowByteFirst<std::uint32_t>())}
                                        : std::bit_cast<double>(lowByteFirst<std::uint64_t>());
    } else if constexpr (std::is_same_v<T, bool>) {
        value = byte() != 0;
    } else {
        value = static_cast<T>(readInteger(type));
    }
}

// A signed integer is extended to 64 bits.
std::uint64_t Reader::readInteger(WireType type) {
    const auto fromZigzag = [](std::uint64_t zigzag) { return (zigzag >> 1) ^ (0 - (zigzag & 1)); };
    switch (type) {
        case WireType::UInt8:
            return byte();
        case WireType::UInt16:
            return static_cast<std::uint16_t>(varint(3));
        case WireType::UInt32:
            return static_cast<std::uint32_t>(varint(5));
        case WireType::UInt64:
            return varint(10);
        case WireType::Int8:
            return static_cast<std::uint64_t>(static_cast<std::int8_t>(byte()));
        case WireType::Int16:
            return fromZigzag(static_cast<std::uint16_t>(varint(3)));
        case WireType::Int32:
            return fromZigzag(static_cast<std::uint32_t>(varint(5)));
        default:
            return fromZigzag(varint(10));
    }
}

unsigned Reader::deeper(unsigned depth) {
    if (depth == greatestDepth) throw CoreException("Max recursion depth exceeded");
    return depth + 1;
}

void Reader::skip(WireType type, std::uint64_t times, unsigned depth) {
    const auto each = [times](auto skipOne) {
        for (std::uint64_t i = 0; i < times; ++i) skipOne();
    };
    switch (type) {
        case WireType::Bool:
        case WireType::UInt8:
        case WireType::Int8:
            take(times);
            return;
        case WireType::Float:
            take(4 * times);
            return;
        case WireType::Double:
            take(8 * times);
            return;
        case WireType::UInt16:
        case WireType::UInt32:
        case WireType::UInt64:
        case WireType::Int16:
        case WireType::Int32:
        case WireType::Int64:
            each([&] { varint(10); });
            return;
        case WireType::String:
            each([&] { take(count()); });
            return;
        case WireType::WString:
            each([&] { take(std::uint64_t{2} * count()); });
            return;
        case WireType::Struct:
            each([&] { skipRecord(deeper(depth)); });
            return;
        case WireType::List:
        case WireType::Set:
            each([&] { skipElements(deeper(depth)); });
            return;
        case WireType::Map:
            each([&] { skipPairs(deeper(depth)); });
            return;
        default:
            throw CoreException("Unknown data type found");
    }
}

void Reader::skipElements(unsigned depth) {
    const auto type = static_cast<WireType>(byte() & typeMask);
    skip(type, count(), depth);
}

// Map key and value types use the whole byte, without the mask, so stray high bits make the type unknown.
void Reader::skipPairs(unsigned depth) {
    const auto key = static_cast<WireType>(byte());
    const auto value = static_cast<WireType>(byte());
    const std::uint32_t pairs = count();
    for (std::uint32_t i = 0; i < pairs; ++i) {
        skip(key, 1, depth);
        skip(value, 1, depth);
    }
}

void Reader::skipRecord(unsigned depth) {
    for (Header field = header(); field.type != WireType::Stop; field = header())
        if (field.type != WireType::StopBase) skip(field.type, 1, depth);
}

}  // namespace

void writeCompactBinary(const Struct& description, const void* record, Bytes& bytes) {
    const std::size_t used = bytes.size();
    bytes.resize(used + greatestSize(description, record), boost::container::default_init);
    const std::byte* end = putRecord(bytes.data() + used, description, record);
    bytes.resize(static_cast<std::size_t>(end - bytes.data()));
}

void readCompactBinary(const Struct& description, void* record, std::span<const std::byte> bytes) {
    Reader(bytes).readRecord(description, record, 1);
}

}  // namespace bond
