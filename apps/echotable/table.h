// The echo table that a verb works on: its program, its options, their levels, in the words of the
// command line.
//
//     const auto table = makeTable("esk", projectWith("all"));
//     const Option option = optionNamed(*table, "esk_reac");
//     word(levelOf(*table, option));                          // "full"
//     levelNamed(option, "#99");                              // 99, which no level is called
#pragma once

#include "apps/echotable/project.h"
#include "echo/schema/output_type.h"
#include "echo/src/internal_data.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace tiv::tool {

// By number, 0 to 13.
QStringList programNames();

// A type's name; the number of one that has no name.
QString programName(int type);

using Table = echo::data::InternalInterface;

// The table of a program (number or name) in the project, every option at its default. Throws UsageError.
std::shared_ptr<Table> makeTable(const QString& program, const Project& project);

// Replaces the table's settings by those of a file, or of standard input for "-". Warns when it holds more
// than one record. Throws failure() with the library's text for settings that cannot be read.
void readSettings(Table& table, const QString& file);

// The table of PROGRAM, the first argument, in the project of --project or --elements, with the settings of
// --settings. Throws as the functions above.
std::shared_ptr<Table> tableOf(const QCommandLineParser& arguments);

// Throws UsageError for a program without options, whose settings cannot be changed.
void requireOptions(const Table& table);

struct Option {
    std::shared_ptr<const properties::Property> property;
    int number;  // of the global option table
};

// All options of the program, also those that the project or the inspector does not show.
std::vector<Option> optionsOf(const Table& table);

// "full": the key without the envelope's field.
QString fieldName(const Option& option);

// The option of a key ("prop.full") or field ("full"). Throws UsageError that lists the options.
Option optionNamed(const Table& table, const QString& name);

echo::OutPutType levelOf(const Table& table, const Option& option);

// How the command line calls a level: "full" for FULL_OUTPUT, "4" for FOUR, "#99" for one without a name.
QString word(echo::OutPutType level);

// The words of the levels offered for the option.
QStringList offeredWords(const Option& option);

// The level of a word, an enumerator's name or "#<number>". Throws UsageError that lists the offered ones
// when the option does not offer it; a number is not asked.
echo::OutPutType levelNamed(const Option& option, const QString& text);

}  // namespace tiv::tool
