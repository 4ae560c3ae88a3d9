// The global option table and the writers of the analysis programs' ECHO lines. Free functions, called
// by the echo tables and the command line.
//
//     optionText(4, 0).keyword                                       // "REAK"
//     appendOptionLine(lines, flags, 4, FULL_OUTPUT, 1)              // ECHO OPT REAC VAL FULL $ Support reactions
//     defaultsLine(1, false)                                         // ECHO FULL NO $ no output of text lists
//
// Everywhere: an option is a row of the table, from 0 to optionCount - 1; `language` is 0 for German keywords, else English.
// The comment after "$" is the English description in the language of the application.
#pragma once

#include "echo/schema/output_type.h"
#include "echo/src/internal_data.h"

#include <QString>

#include <optional>
#include <vector>

namespace tiv::echo::data {

inline constexpr int optionCount = 65;

struct OptionText {
    QString keyword;          // null outside the table
    const char* description;  // untranslated; null outside the table
};
OptionText optionText(int option, int language);

// The keyword of a level; none for DEFAULT_OUTPUT and for a level that has no keyword.
std::optional<QString> levelKeyword(OutPutType level, int language);

// Appends the option's line, or nothing: for an option that does not apply or is outside the table, for
// DEFAULT_OUTPUT, and for a level without a keyword, which is reported as a failed assertion.
void appendOptionLine(
    std::vector<QString>& lines, const ElementTypeFlags& flags, int option, OutPutType level, int language);

// The one line that sets all options at once: to full output, or to none.
std::vector<QString> defaultsLine(int language, bool extensive);

}  // namespace tiv::echo::data
