#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/text.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tiv::tool {
namespace {

void run(const QCommandLineParser& arguments) {
    const Project project = projectWith(QStringLiteral("all"));
    std::vector<QStringList> lines{{"NUMBER", "NAME", "OPTIONS"}};
    QJsonArray list;
    for (const QString& name : programNames()) {
        const auto table = makeTable(name, project);
        const int number = static_cast<int>(table->programType);
        QStringList options;
        for (const TableRow& row : rowsOf(*table)) options += fieldName(row);
        lines.push_back({QString::number(number), name, options.join(QLatin1Char(' '))});
        list +=
            QJsonObject{{"number", number}, {"name", name}, {"options", QJsonArray::fromStringList(options)}};
    }
    print(arguments.isSet(jsonOption()) ? jsonText(QJsonDocument(list)) : aligned(lines));
}

}  // namespace

Verb programs() {
    return {QStringLiteral("programs"),
        {},
        QStringLiteral("Lists the number, the name and the options of every program type."),
        {jsonOption()},
        &run};
}

}  // namespace tiv::tool
