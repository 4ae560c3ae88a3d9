// The value of every echo option: how much of one group of results the analysis program prints.
#pragma once

#include "bond/schema.h"

#include <cstdint>

// Marks a text for lupdate. Qt's own definition, word for word: the records do not depend on Qt.
#if !defined(QT_TRANSLATE_NOOP)
#define QT_TRANSLATE_NOOP(scope, x) x
#endif

namespace tiv::echo {

// FOUR to SEVEN (sic) name the numeric levels "4" to "7" of the analysis programs, which follow
// after the five named ones: FOUR has the value 5, SEVEN the value 8.
enum OutPutType : std::int32_t {  // sic
    DEFAULT_OUTPUT = 0,           // the option is not set: no line
    NO_OUTPUT = 1,
    NORMAL_OUTPUT = 2,
    FULL_OUTPUT = 3,
    EXTENSIVE_OUTPUT = 4,
    FOUR = 5,
    FIVE = 6,
    SIX = 7,
    SEVEN = 8,
};

inline constexpr bond::Enumerator outPutTypes[] = {
    {"DEFAULT_OUTPUT", DEFAULT_OUTPUT},
    {"NO_OUTPUT", NO_OUTPUT},
    {"NORMAL_OUTPUT", NORMAL_OUTPUT},
    {"FULL_OUTPUT", FULL_OUTPUT},
    {"EXTENSIVE_OUTPUT", EXTENSIVE_OUTPUT},
    {"FOUR", FOUR},
    {"FIVE", FIVE},
    {"SIX", SIX},
    {"SEVEN", SEVEN},
};

inline constexpr bond::EnumSchema outPutTypeSchema{"tiv.echo.OutPutType", outPutTypes};

constexpr const bond::EnumSchema& enumSchema(const OutPutType*) {
    return outPutTypeSchema;
}

// Describes one option field: its label, with an empty category. lupdate finds the label by QT_TRANSLATE_NOOP.
template <class Record>
constexpr auto option(const char* name, OutPutType Record::*member, const char* displayName) {
    return bond::field(name, member, {{"Category", ""}, {"DisplayName", displayName}});
}

}  // namespace tiv::echo
