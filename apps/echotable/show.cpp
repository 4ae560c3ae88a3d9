// What there is: the programs, and the options of one.
#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/text.h"
#include "echo/src/utils.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tiv::tool {
namespace {

void printPrograms(const QCommandLineParser& arguments) {
    const Project project = projectWith(QStringLiteral("all"));
    std::vector<QStringList> rows{{"NUMBER", "NAME", "OPTIONS"}};
    QJsonArray list;
    for (const QString& name : programNames()) {
        const auto table = makeTable(name, project);
        const int number = static_cast<int>(table->programType);
        QStringList options;
        for (const Option& option : optionsOf(*table)) options += fieldName(option);
        rows.push_back({QString::number(number), name, options.join(QLatin1Char(' '))});
        list +=
            QJsonObject{{"number", number}, {"name", name}, {"options", QJsonArray::fromStringList(options)}};
    }
    print(arguments.isSet(jsonOption()) ? jsonText(QJsonDocument(list)) : aligned(rows));
}

void printOptions(const QCommandLineParser& arguments) {
    const auto table = tableOf(arguments);
    std::vector<QStringList> rows{{"KEY", "LABEL", "ENGLISH", "GERMAN", "LEVEL", "OFFERED", "APPLICABLE"}};
    QJsonArray list;
    for (const Option& option : optionsOf(*table)) {
        const QString key = QString::fromStdString(option.property->key);
        const QString label = properties::label(*table->properties, *option.property);
        const QString english = echo::data::optionText(option.number, 1).keyword;
        const QString german = echo::data::optionText(option.number, 0).keyword;
        const echo::OutPutType level = levelOf(*table, option);
        const QStringList offered = offeredWords(option);
        const bool applicable = echo::data::isOptionApplicable(table->flags, option.number);
        rows.push_back({key,
            label,
            english,
            german,
            word(level),
            offered.join(QLatin1Char(' ')),
            applicable ? QStringLiteral("yes") : QStringLiteral("no")});
        list += QJsonObject{{"key", key},
            {"label", label},
            {"english", english},
            {"german", german},
            {"level", word(level)},
            {"value", int{level}},
            {"offered", QJsonArray::fromStringList(offered)},
            {"applicable", applicable}};
    }
    print(arguments.isSet(jsonOption()) ? jsonText(QJsonDocument(list)) : aligned(rows));
}

}  // namespace

Verb programs() {
    return {QStringLiteral("programs"),
        {},
        QStringLiteral("Lists the number, the name and the options of every program type."),
        {jsonOption()},
        &printPrograms};
}

Verb show() {
    return {QStringLiteral("show"),
        {QStringLiteral("PROGRAM")},
        QStringLiteral("Shows a program's options, their levels, and whether they apply to the project."),
        {settingsOption(), projectOption(), elementsOption(), jsonOption()},
        &printOptions};
}

}  // namespace tiv::tool
