#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/task.h"

namespace tiv::tool {
namespace {

// Sets the levels of all KEY=LEVEL, or none: throws UsageError.
void setLevels(Table& table, const QStringList& changes) {
    requireOptions(table);
    std::vector<properties::PropertyValue> values;
    for (const QString& change : changes) {
        const auto sign = change.indexOf(QLatin1Char('='));
        if (sign < 0) throw UsageError(QStringLiteral("expected KEY=LEVEL, got \"%1\"").arg(change));
        const TableRow row = rowNamed(table, change.left(sign));
        values.push_back({row.property, int{levelNamed(row, change.mid(sign + 1))}});
    }
    properties::setValues(values, *table.model, echo::data::recordKey());
}

void run(const QCommandLineParser& arguments) {
    const QStringList words = arguments.positionalArguments();
    if (const auto task = taskOf(arguments)) {
        if (arguments.isSet(outputOption()))
            throw UsageError(QStringLiteral("--task and --output exclude each other"));
        return changeTask(*task, [&](Table& table) { setLevels(table, words); });
    }
    if (arguments.isSet(projectOption())) throw UsageError(QStringLiteral("--project needs --task"));
    const auto table = makeTable(words.constFirst(), projectWith(QStringLiteral("all")));
    if (arguments.isSet(settingsOption())) readSettings(*table, arguments.value(settingsOption()));
    setLevels(*table, words.mid(1));
    writeOutput(arguments, table->getXMLData());
}

}  // namespace

Verb set() {
    return {QStringLiteral("set"),
        {QStringLiteral("PROGRAM"), QStringLiteral("[KEY=LEVEL...]")},
        QStringLiteral("Writes a settings string with the given levels; the other options keep theirs."),
        {settingsOption(), outputOption(), projectOption(), taskOption()},
        &run};
}

}  // namespace tiv::tool
