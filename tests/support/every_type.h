// A record with fields of every type and attribute, most of which no settings record has. For the tests of the codec,
// the property definitions and the inspector.
#pragma once

#include "echo/schema/kst.h"
#include "echo/schema/xml_echo_data.h"

#include <cstdint>
#include <string>

namespace test {

struct EveryType {
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
    tiv::echo::OutPutType level = tiv::echo::DEFAULT_OUTPUT;
    tiv::echo::XMLEchoData echo;
    tiv::echo::kst::Data data;
};

constexpr auto describe(const EveryType*) {
    using bond::field;
    using T = EveryType;
    return bond::record<T>("test.EveryType",
        field("yes", &T::yes, {{"DisplayName", "Yes"}, {"Tooltip", "Whether it is on"}}),
        field("i8", &T::i8, {{"DisplayName", "Small"}, {"PropertyWeight", "+7"}}),
        field("i16", &T::i16, {{"Category", "no label, no property"}}), field("i32", &T::i32),
        field("i64", &T::i64), field("u8", &T::u8), field("u16", &T::u16), field("u32", &T::u32),
        field("u64", &T::u64, {{"DisplayName", "Big"}, {"Precision", "many"}}),
        field("f", &T::f, {{"DisplayName", "Factor"}}),
        field("d", &T::d,
            {{"DisplayName", "Width"}, {"Precision", "2"}, {"ColumnWidth", "12"},
                {"PropertyWeight", "-2147483648"}}),
        field("text", &T::text, {{"JsonName", "Text"}, {"DisplayName", "Name"}}),
        field("level", &T::level, {{"DisplayName", "Level"}, {"Category", ""}, {"Editor", "swatch"}}),
        field("echo", &T::echo), field("data", &T::data, {{"DisplayName", "a struct is entered"}}));
}

}  // namespace test
