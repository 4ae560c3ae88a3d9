#include "apps/echotable/task.h"

#include "apps/echotable/arguments.h"
#include "apps/echotable/text.h"

namespace tiv::tool {

std::optional<TaskName> taskOf(const QCommandLineParser& arguments) {
    const QStringList given = arguments.optionNames();
    const QString task = QStringLiteral("task");
    if (!given.contains(task)) return std::nullopt;
    for (const char* other : {"settings", "elements"})
        if (given.contains(QLatin1String(other)))
            throw UsageError(QStringLiteral("--task and --%1 exclude each other").arg(QLatin1String(other)));
    if (!given.contains(QStringLiteral("project")))
        throw UsageError(QStringLiteral("--task needs --project"));
    return TaskName{arguments.value(projectOption()), arguments.value(task)};
}

dbo::Task readTask(const Project& project, const TaskName& name) {
    QStringList names;
    for (const dbo::Task& task : dbo::tasks(project.handle)) {
        if (task.name == name.task.toStdString()) return task;
        names += QString::fromStdString(task.name);
    }
    throw failure(name.project,
        names.isEmpty() ? QStringLiteral("no task \"%1\", there are none").arg(name.task)
                        : QStringLiteral("no task \"%1\", expected %2").arg(name.task, choices(names)));
}

std::shared_ptr<Table> tableOf(const dbo::Task& task, const Project& project, const QString& file) {
    const QString origin = QStringLiteral("%1: task \"%2\"").arg(file, QString::fromStdString(task.name));
    if (task.programType < 0 || task.programType >= programNames().size())
        throw failure(origin, QStringLiteral("unknown program %1").arg(task.programType));
    auto table = makeTable(programName(task.programType), project);
    load(*table, QString::fromStdString(task.settings), origin);
    return table;
}

std::shared_ptr<Table> tableOf(const QCommandLineParser& arguments) {
    if (const auto name = taskOf(arguments)) {
        const Project project = openProject(name->project);
        return tableOf(readTask(project, *name), project, name->project);
    }
    auto table = makeTable(arguments.positionalArguments().constFirst(), projectOf(arguments));
    if (arguments.isSet(settingsOption())) readSettings(*table, arguments.value(settingsOption()));
    return table;
}

void changeTask(const TaskName& name, const std::function<void(Table&)>& change) {
    const Project project = openProject(name.project);
    for (bool stored = false; !stored;) {
        const dbo::Task before = readTask(project, name);
        const auto table = tableOf(before, project, name.project);
        change(*table);
        const dbo::Task after{before.name, before.programType, table->getXMLData().toStdString()};
        stored = dbo::changeTasks(project.handle, {{before, after}}).empty();
    }
}

}  // namespace tiv::tool
