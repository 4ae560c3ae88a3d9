#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"

namespace tiv::tool {
namespace {

void run(const QCommandLineParser& arguments) {
    const auto table =
        makeTable(arguments.positionalArguments().constFirst(), projectWith(QStringLiteral("all")));
    requireOptions(*table);
    if (arguments.isSet(settingsOption())) readSettings(*table, arguments.value(settingsOption()));

    std::vector<properties::PropertyValue> changes;
    for (const QString& change : arguments.positionalArguments().mid(1)) {
        const int sign = change.indexOf(QLatin1Char('='));
        if (sign < 0) throw UsageError(QStringLiteral("expected KEY=LEVEL, got \"%1\"").arg(change));
        const Option option = optionNamed(*table, change.left(sign));
        changes.push_back({option.property, int{levelNamed(option, change.mid(sign + 1))}});
    }
    properties::setValues(changes, *table->model, echo::data::recordKey());
    writeOutput(arguments, table->getXMLData());
}

}  // namespace

Verb set() {
    return {QStringLiteral("set"),
        {QStringLiteral("PROGRAM"), QStringLiteral("[KEY=LEVEL...]")},
        QStringLiteral("Writes a settings string with the given levels; the other options keep theirs."),
        {settingsOption(), outputOption()},
        &run};
}

}  // namespace tiv::tool
