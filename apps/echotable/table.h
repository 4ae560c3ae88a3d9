// The echo table that a verb works on: its program, its options, their levels, in the words of the
// command line.
//
//     const auto table = makeTable("esk", projectWith("all"));
//     const TableRow row = rowNamed(*table, "esk_reac");
//     word(levelOf(*table, row));                             // "full"
//     levelNamed(row, "#99");                                 // 99, a level without a name
#pragma once

#include "apps/echotable/project.h"
#include "echo/schema/output_type.h"
#include "echo/src/internal_data.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace tiv::tool {

// In the order of EchoData::ProgrammTypes.
QStringList programNames();

// The name of a program type; its number if it has no name.
QString programName(int type);

using Table = echo::data::InternalInterface;

// The table of a program (number or name) in the project, every option at its default. Throws UsageError.
std::shared_ptr<Table> makeTable(const QString& program, const Project& project);

// Replaces the table's settings by those of a text that came from `origin`. Warns when it holds more than one
// record. Throws failure() with the library's text for settings that cannot be read.
void load(Table& table, const QString& text, const QString& origin);

// Loads the settings of a file, or of standard input for "-". Throws failure() also for an empty text,
// which a failed command before the pipe leaves.
void readSettings(Table& table, const QString& file);

// Throws UsageError for a program without options, whose settings cannot be changed.
void requireOptions(const Table& table);

// An option of the program.
struct TableRow {
    std::shared_ptr<const properties::Property> property;
    int number;  // of the global option table
};

// All options of the program, also those that the project or the inspector does not show.
std::vector<TableRow> rowsOf(const Table& table);

// "full": the key without the envelope's field.
QString fieldName(const TableRow& row);

// The option of a key ("prop.full") or field ("full"). Throws UsageError that lists the options.
TableRow rowNamed(const Table& table, const QString& name);

echo::OutPutType levelOf(const Table& table, const TableRow& row);

// The word of a level on the command line: "full" for FULL_OUTPUT, "4" for FOUR, "#99" for one without a name.
QString word(echo::OutPutType level);

// The words of the levels offered for the option.
QStringList offeredWords(const TableRow& row);

// The level of a word, an enumerator's name or "#<number>". Throws UsageError that lists the offered ones
// when the option does not offer it; a number is accepted unchecked.
echo::OutPutType levelNamed(const TableRow& row, const QString& text);

}  // namespace tiv::tool
