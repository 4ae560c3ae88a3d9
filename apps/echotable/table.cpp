#include "apps/echotable/table.h"

#include "apps/echotable/arguments.h"
#include "apps/echotable/text.h"
#include "bond/exceptions.h"
#include "echo/src/levels.h"
#include "echo/src/program_data.h"
#include "echo/src/settings_string.h"

#include <algorithm>
#include <iterator>

namespace tiv::tool {
namespace {

using echo::EchoData;
using echo::OutPutType;

constexpr const char* names[] = {"qsx.bruc",
    "qsx.riss",
    "qsx.elpl",
    "esk",
    "esk.eige",
    "dimvel.bruc",
    "dimvel.riss",
    "kst",
    "vibr",
    "mexora",
    "plax2",
    "tiviload",
    "kurta",
    "rova"};
static_assert(std::size(names) == echo::data::programTypeCount);

EchoData::ProgrammTypes programType(const QString& program) {
    const QStringList known = programNames();
    for (int type = 0; type < known.size(); ++type)
        if (program == known[type] || program == QString::number(type))
            return static_cast<EchoData::ProgrammTypes>(type);
    throw UsageError(QStringLiteral("unknown program \"%1\", expected %2, or a number from 0 to %3")
                         .arg(program, known.join(QStringLiteral(", ")))
                         .arg(known.size() - 1));
}

}  // namespace

QStringList programNames() {
    QStringList result;
    for (const char* name : names) result += QString::fromLatin1(name);
    return result;
}

QString programName(int type) {
    return programNames().value(type, QString::number(type));
}

std::shared_ptr<Table> makeTable(const QString& program, const Project& project) {
    return echo::data::makeInternalData(programType(program), project.handle);
}

void load(Table& table, const QString& text, const QString& origin) {
    try {
        table.insertXMLData(text);
    } catch (const bond::Exception& problem) {
        throw failure(origin, QString::fromUtf8(problem.what()));
    }
    const int records = echo::data::recordCount(text);
    if (records > 1)
        warn(
            QStringLiteral("%1: %2 records instead of one, every option was reset").arg(origin).arg(records));
}

void readSettings(Table& table, const QString& file) {
    const QString text = readText(file);
    if (text.trimmed().isEmpty() && !rowsOf(table).empty())
        throw failure(inputName(file), QStringLiteral("no settings"));
    load(table, text, inputName(file));
}

void requireOptions(const Table& table) {
    if (rowsOf(table).empty())
        throw UsageError(
            programName(static_cast<int>(table.programType)) + QStringLiteral(" has no options"));
}

std::vector<TableRow> rowsOf(const Table& table) {
    std::vector<TableRow> rows;
    const auto* program = dynamic_cast<const echo::data::ProgramData*>(&table);
    if (!program) return rows;
    for (const auto& property : table.properties->list)
        rows.push_back({property, program->servedType()->options[property->field->id].number});
    return rows;
}

QString fieldName(const TableRow& row) {
    return QString::fromLatin1(row.property->field->name);
}

TableRow rowNamed(const Table& table, const QString& name) {
    QStringList fields;
    for (const TableRow& row : rowsOf(table)) {
        if (name == fieldName(row) || name == QString::fromStdString(row.property->key)) return row;
        fields += fieldName(row);
    }
    throw UsageError(QStringLiteral("unknown option \"%1\", expected %2").arg(name, choices(fields)));
}

OutPutType levelOf(const Table& table, const TableRow& row) {
    const QVariant level = properties::value(*row.property, *table.model, echo::data::recordKey());
    return static_cast<OutPutType>(level.toInt());
}

QString word(OutPutType level) {
    const QString suffix = QStringLiteral("_OUTPUT");
    for (const bond::Enumerator& known : echo::outPutTypes) {
        if (known.value != level) continue;
        const QString name = QString::fromLatin1(known.name);
        return name.endsWith(suffix) ? name.chopped(suffix.size()).toLower() : echo::data::levelText(level);
    }
    return QStringLiteral("#%1").arg(level);
}

QStringList offeredWords(const TableRow& row) {
    QStringList words;
    for (const OutPutType level : echo::data::offeredLevels(row.property->key)) words += word(level);
    return words;
}

OutPutType levelNamed(const TableRow& row, const QString& text) {
    bool isNumber = false;
    const int number = text.startsWith(QLatin1Char('#')) ? text.mid(1).toInt(&isNumber) : 0;
    if (isNumber) return static_cast<OutPutType>(number);

    const QStringList offered = offeredWords(row);
    for (const bond::Enumerator& known : echo::outPutTypes) {
        const auto level = static_cast<OutPutType>(known.value);
        const bool isMeant = text == QLatin1String(known.name) || text == word(level);
        if (isMeant && offered.contains(word(level))) return level;
    }
    throw UsageError(QStringLiteral("%1 does not offer the level \"%2\", expected %3, or #NUMBER")
                         .arg(fieldName(row), text, choices(offered)));
}

}  // namespace tiv::tool
