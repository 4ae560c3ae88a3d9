#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/task.h"
#include "apps/echotable/text.h"
#include "echo/src/utils.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tiv::tool {
namespace {

void run(const QCommandLineParser& arguments) {
    const auto table = tableOf(arguments);
    std::vector<QStringList> lines{{"KEY", "LABEL", "ENGLISH", "GERMAN", "LEVEL", "OFFERED", "APPLICABLE"}};
    QJsonArray list;
    for (const TableRow& row : rowsOf(*table)) {
        const QString key = QString::fromStdString(row.property->key);
        const QString label = properties::label(*table->properties, *row.property);
        const QString english = echo::data::optionText(row.number, 1).keyword;
        const QString german = echo::data::optionText(row.number, 0).keyword;
        const echo::OutPutType level = levelOf(*table, row);
        const QStringList offered = offeredWords(row);
        const bool applicable = echo::data::isOptionApplicable(table->flags, row.number);
        lines.push_back({key,
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
    print(arguments.isSet(jsonOption()) ? jsonText(QJsonDocument(list)) : aligned(lines));
}

}  // namespace

Verb show() {
    return {QStringLiteral("show"),
        {QStringLiteral("PROGRAM")},
        QStringLiteral("Shows a program's options, their levels, and whether they apply to the project."),
        {settingsOption(), projectOption(), taskOption(), elementsOption(), jsonOption()},
        &run};
}

}  // namespace tiv::tool
