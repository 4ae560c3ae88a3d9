// What the recorded answers cannot show: fields that are no OutPutType, attributes, and limits.
#include "bond/compact_binary.h"
#include "bond/exceptions.h"
#include "bond/simple_json.h"
#include "echo/schema/kst.h"
#include "echo/schema/xml_echo_data.h"

#include <QByteArray>

#include <chrono>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using tiv::echo::XMLEchoData;
using tiv::echo::kst::Data;

struct All {
    bool yes = true;
    std::int8_t i8 = 0;
    std::int16_t i16 = 0;
    std::int32_t i32 = 0;
    std::int64_t i64 = 0;
    std::uint8_t u8 = 0;
    std::uint16_t u16 = 0;
    std::uint32_t u32 = 0;
    std::uint64_t u64 = 0;
    float f = 0.5F;
    double d = 0;
    std::string text;
    XMLEchoData echo;
};
constexpr auto describe(const All*) {
    return bond::record<All>("test.All", bond::field("yes", &All::yes), bond::field("i8", &All::i8),
        bond::field("i16", &All::i16), bond::field("i32", &All::i32), bond::field("i64", &All::i64),
        bond::field("u8", &All::u8), bond::field("u16", &All::u16), bond::field("u32", &All::u32),
        bond::field("u64", &All::u64), bond::field("f", &All::f), bond::field("d", &All::d),
        bond::field("text", &All::text, {{"JsonName", "Text"}}), bond::field("echo", &All::echo));
}

std::string hex(const bond::Bytes& bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size())).toHex().toStdString();
}

template <class Record>
Record fromHex(const std::string& digits) {
    const QByteArray bytes = QByteArray::fromHex(digits.c_str());
    return bond::readCompactBinary<Record>(std::as_bytes(std::span(bytes)));
}

std::string hexOfJson(const char* json) {
    return hex(bond::writeCompactBinary(bond::readSimpleJson<All>(json)));
}

TEST(Codec, EveryTypeHasItsBytesAndItsText) {
    const std::pair<std::string, const char*> rows[] = {
        {"ca0c0000",
            R"({"yes":true,"i8":0,"i16":0,"i32":0,"i64":0,"u8":0,"u16":0,"u32":0,"u64":0,"f":0.5,"d":0.0,)"
            R"("Text":"","echo":{"m_literal":"","m_output":0}})"},
        {"02002e804fffff0370ffffffff0f91ffffffffffffffffff01a301c40602c50703c60804c709000080be"
         "c80a9c7500883ce437fec90b076100220ac3a47fca0c09017930010000",
            R"({"yes":false,"i8":-128,"i16":-32768,"i32":-2147483648,"i64":-9223372036854775808,"u8":1,)"
            R"("u16":2,"u32":3,"u64":4,"f":-0.25,"d":-1e300,"Text":"a\u0000\"\nä)"
            "\x7F"
            R"(","echo":{"m_literal":"y","m_output":-1}})"},
        {"2e7f4ffeff0370feffffff0f91feffffffffffffffff01a3ffc406ffff03c507ffffffff0fc608ffffffffffffffffff01"
         "c80a9a9999999999b93fca0c30100000",
            R"({"yes":true,"i8":127,"i16":32767,"i32":2147483647,"i64":9223372036854775807,"u8":255,)"
            R"("u16":65535,"u32":4294967295,"u64":18446744073709551615,"f":0.5,"d":0.1,"Text":"",)"
            R"("echo":{"m_literal":"","m_output":8}})"},
    };
    for (const auto& [bytes, json] : rows) {
        EXPECT_EQ(bond::writeSimpleJson(fromHex<All>(bytes)), json);
        EXPECT_EQ(hexOfJson(json), bytes);
    }
    const All record{.f = NAN, .d = -0.0, .text = std::string(128, 'x'), .echo = {}};
    const bond::Bytes bytes = bond::writeCompactBinary(record);
    EXPECT_THAT(hex(bytes), testing::StartsWith("c7090000c07fc80a0000000000000080c90b800178787878"));
    EXPECT_EQ(fromHex<All>(hex(bytes)).text, record.text);
    EXPECT_THAT(bond::writeSimpleJson(record), testing::HasSubstr(R"("f":null,"d":-0.0)"));
}

TEST(Codec, AnIdAbove255TakesTwoBytes) {
    std::array<std::int32_t, 300> record{}, read{};
    const std::array<std::int32_t, 300> defaults{};
    std::vector<bond::Row> rows;
    for (std::uint16_t id = 0; id < 300; ++id)
        rows.push_back({"x", bond::Type::Int32, id, id * sizeof(std::int32_t), {}, nullptr, nullptr});
    const bond::Struct description{"test.Many", rows, &defaults};
    for (const unsigned id : {0U, 5U, 6U, 255U, 256U, 299U}) record[id] = 1;
    bond::Bytes bytes;
    bond::writeCompactBinary(description, &record, bytes);
    EXPECT_EQ(hex(bytes), "1002b002d00602d0ff02f0000102f02b010200");
    bond::readCompactBinary(description, &read, {bytes.data(), bytes.size()});
    EXPECT_EQ(read, record);
}

TEST(Codec, AFieldKeepsWhatItCanHold) {
    const std::pair<const char*, const char*> rows[] = {
        {"8e8000", "91ff01"},                        // i64 sent as Int8
        {"8fffffff00", "91ffff03"},                  // i64 as Int16, which has three bytes at most
        {"90ffffffffff00", "91ffffffff0f"},          // i64 as Int32, five bytes at most
        {"830500", ""},                              // i64 as UInt8
        {"2f0400", ""},                              // i8 as Int16
        {"2e052e0600", "2e05"},                      // i8 twice
        {"c308ff00", "c608ff01"},                    // u64 as UInt8
        {"c508ffffffff0f00", "c608ffffffff0f"},      // u64 as UInt32
        {"c5060500", ""},                            // u16 as UInt32
        {"ae0500", ""},                              // u8 as Int8
        {"c70a0000c03f00", "c80a000000000000f83f"},  // d as Float
        {"c809000000000000f83f00", ""},              // f as Double
        {"100200", ""},                              // yes as Int32
        {"c70d0000803f00", ""},                      // unknown Float
        {"d10dffffffffffffffffffff00", ""},          // unknown Int64, ten bytes at most
    };
    for (const auto& [sent, kept] : rows)
        EXPECT_EQ(hex(bond::writeCompactBinary(fromHex<All>(sent))), kept + std::string("ca0c0000")) << sent;
}

TEST(Codec, AJsonMemberCountsOnlyWhereItFits) {
    const std::pair<const char*, const char*> rows[] = {
        {R"({"i8":128,"u8":257,"u16":-1,"i32":2147483648,"u64":18446744073709551616,"i64":1.0,"f":1e39})",
            "ca0c0000"},
        {R"({"yes":0,"text":"x","11":5,"echo":[],"d":"1"})", "ca0c0000"},
        {R"({"i8":128,"i8":7,"i8":8,"Text":1,"Text":"a\u0000b","11":"c"})", "2e07c90b03610062ca0c0000"},
        {R"({"d":1,"f":2,"12":{"m_output":"SIX","0":"in"}} trailing)",
            "c70900000040c80a000000000000f03fca0c0902696e300e0000"},
    };
    for (const auto& [json, bytes] : rows) EXPECT_EQ(hexOfJson(json), bytes) << json;
}

std::string repeated(const char* text, int times) {
    return QByteArray(text).repeated(times).toStdString();
}

// The text of the exception, or "read".
std::string outcome(const std::string& bytes) try {
    fromHex<Data>(bytes);
    return "read";
} catch (const bond::Exception& e) {
    return e.what();
}

TEST(Codec, SixtyFourLevelsAreReadAndNoMore) {
    const auto nested = [](const char* first, const char* next, const char* last, int levels) {
        return outcome(first + repeated(next, levels) + last + repeated("00", levels + 3));
    };
    const std::array<const char*, 3> kinds[] = {
        {"2a", "0a", ""}, {"2b", "0b01", "0200"}, {"2c", "0c01", "0200"}, {"2d", "020d0101", "020200"}};
    for (const auto& [first, next, last] : kinds) {
        EXPECT_EQ(nested(first, next, last, 62), "read") << first;
        EXPECT_EQ(nested(first, next, last, 63), "Max recursion depth exceeded") << first;
    }
    EXPECT_EQ(nested("0a6a", "0a", "", 61), "read");
    EXPECT_EQ(nested("0a6a", "0a", "", 62), "Max recursion depth exceeded");
    EXPECT_EQ(outcome(repeated("aa", 19000)), "Max recursion depth exceeded");
}

TEST(Codec, HostileInputIsReadOrRefusedAtOnce) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(outcome("0a1006cd090202ffffffff0f0000"),
        "Read out of bounds: 1 bytes requested, offset: 14, length: 14");
    for (const char* bytes : {"0a1006cd091f1fffffffff0f0000", "1800", "2d220201010100", "2d022201010100"})
        EXPECT_EQ(outcome(bytes), "Unknown data type found") << bytes;
    EXPECT_THROW(fromHex<XMLEchoData>("09ffffffff0f41"), bond::StreamException);  // no text of 4 GB

    const std::string open = R"({"u":)" + repeated("[", 5'000'000);
    EXPECT_THROW(bond::readSimpleJson<Data>(open), bond::CoreException);
    const std::string closed = open + repeated("]", 5'000'000) + R"(,"prop":{"lc":3}})";
    EXPECT_EQ(bond::readSimpleJson<Data>(closed).prop.lc, tiv::echo::FULL_OUTPUT);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

}  // namespace
