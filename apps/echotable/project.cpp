#include "apps/echotable/project.h"

#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/task.h"
#include "apps/echotable/text.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace tiv::tool {
namespace {

// For this name dbo creates a project without a file.
const QString temporary = QStringLiteral(":memory:");

constexpr struct {
    const char* name;
    dbo::ElementKind kind;
    bool (*has)(int database, int* count);
} kinds[] = {
    {"quads", dbo::ElementKind::Quads, &dbo::hasQuads},
    {"brics", dbo::ElementKind::Brics, &dbo::hasBrics},
    {"beams", dbo::ElementKind::Beams, &dbo::hasBeams},
    {"cables", dbo::ElementKind::Cables, &dbo::hasCables},
    {"springs", dbo::ElementKind::Springs, &dbo::hasSprings},
};

QStringList kindNames() {
    QStringList names;
    for (const auto& kind : kinds) names += QString::fromLatin1(kind.name);
    return names;
}

QString fileName(const QCommandLineParser& arguments) {
    return arguments.positionalArguments().constFirst();
}

int countOf(const QCommandLineParser& arguments, const QString& kind) {
    if (!arguments.isSet(kind)) return 0;
    bool isNumber = false;
    const int count = arguments.value(kind).toInt(&isNumber);
    if (!isNumber || count < 0)
        throw UsageError(QStringLiteral("--%1: expected a number from 0 to 2147483647, got \"%2\"")
                             .arg(kind, arguments.value(kind)));
    return count;
}

// The numbers of --quads, --brics ...
dbo::ElementCounts countsOf(const QCommandLineParser& arguments) {
    dbo::ElementCounts counts{};
    for (const auto& kind : kinds)
        counts[static_cast<std::size_t>(kind.kind)] = countOf(arguments, QString::fromLatin1(kind.name));
    return counts;
}

void create(const QCommandLineParser& arguments) {
    const QString file = fileName(arguments);
    if (file == temporary) throw UsageError(QStringLiteral("expected the name of a file, got ") + file);
    const Project project(dbo::createProject(file.toStdString(), countsOf(arguments)));
}

void add(const QCommandLineParser& arguments) {
    const dbo::ElementCounts counts = countsOf(arguments);
    if (counts == dbo::ElementCounts{})
        throw UsageError(
            QStringLiteral("expected a number of ") + choices(kindNames()) + QStringLiteral(" to add"));
    const Project project = openProject(fileName(arguments));
    dbo::addElements(project.handle, counts);
}

void info(const QCommandLineParser& arguments) {
    const Project project = openProject(fileName(arguments));
    std::vector<QStringList> rows{{"ELEMENTS", "COUNT"}};
    QJsonObject elements;
    for (const auto& kind : kinds) {
        int count = 0;
        kind.has(project.handle, &count);
        const QString name = QString::fromLatin1(kind.name);
        rows.push_back({name, QString::number(count)});
        elements[name] = count;
    }
    QJsonArray tasks;
    QString text = aligned(std::exchange(rows, {{"TASK", "PROGRAM", "SETTINGS"}})) + QLatin1Char('\n');
    for (const dbo::Task& task : dbo::tasks(project.handle)) {
        const QString name = QString::fromStdString(task.name);
        const QString program = programName(task.programType);
        const QString settings = QString::fromStdString(task.settings);
        rows.push_back({visible(name), program, visible(settings.trimmed())});
        tasks += QJsonObject{
            {"name", name}, {"number", task.programType}, {"program", program}, {"settings", settings}};
    }
    text += aligned(rows);
    const QJsonDocument json(QJsonObject{{"elements", elements}, {"tasks", tasks}});
    print(arguments.isSet(jsonOption()) ? jsonText(json) : text);
}

QCommandLineOption defaultsOption() {
    return {QStringLiteral("defaults"),
        QStringLiteral("Stores the program's defaults, over a task that exists, too.")};
}

void store(const QCommandLineParser& arguments) {
    const QString name = arguments.positionalArguments().at(1);
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    if (name.trimmed().isEmpty()) throw UsageError(QStringLiteral("expected a name for the task, got none"));
    if (std::any_of(name.begin(), name.end(), isControl))
        throw UsageError(QStringLiteral("expected a name for the task without control characters"));
    const bool given = arguments.isSet(settingsOption());
    const bool mayReset = arguments.isSet(defaultsOption());
    if (given && mayReset) throw UsageError(QStringLiteral("--settings and --defaults exclude each other"));
    const Project project = openProject(fileName(arguments));
    const auto table = makeTable(arguments.positionalArguments().at(2), project);
    if (given) readSettings(*table, arguments.value(settingsOption()));

    const dbo::Task task{
        name.toStdString(), static_cast<int>(table->programType), table->getXMLData().toStdString()};
    if (given || mayReset)
        dbo::storeTask(project.handle, task);
    else if (!dbo::changeTasks(project.handle, {{std::nullopt, task}}).empty())
        throw failure(fileName(arguments),
            QStringLiteral("task \"%1\" exists, expected --settings or --defaults").arg(name));
}

TaskName taskArgument(const QCommandLineParser& arguments) {
    return {fileName(arguments), arguments.positionalArguments().at(1)};
}

void load(const QCommandLineParser& arguments) {
    const Project project = openProject(fileName(arguments));
    const dbo::Task task = readTask(project, taskArgument(arguments));
    writeOutput(arguments, QString::fromStdString(task.settings), fileName(arguments));
}

void remove(const QCommandLineParser& arguments) {
    const Project project = openProject(fileName(arguments));
    const dbo::Task task = readTask(project, taskArgument(arguments));
    dbo::removeTask(project.handle, task.name);
}

QList<QCommandLineOption> countOptions() {
    QList<QCommandLineOption> options;
    for (const QString& kind : kindNames())
        options += {kind, QStringLiteral("Number of %1. Default: 0.").arg(kind), QStringLiteral("N")};
    return options;
}

}  // namespace

Project projectWith(const QString& elements) {
    const QStringList known = kindNames();
    QStringList wanted;
    if (elements == QLatin1String("all"))
        wanted = known;
    else if (elements != QLatin1String("none"))
        wanted = elements.split(QLatin1Char(','));
    for (const QString& name : wanted)
        if (!known.contains(name))
            throw UsageError(
                QStringLiteral("unknown kind of element \"%1\", expected a list of %2; all or none")
                    .arg(name, known.join(QStringLiteral(", "))));

    const int database = dbo::createProject(temporary.toStdString());
    for (const auto& kind : kinds)
        if (wanted.contains(QLatin1String(kind.name))) dbo::addElements(database, kind.kind, 1);
    return Project(database);
}

Project openProject(const QString& file) {
    return Project(dbo::openProject(file.toStdString()));
}

Project projectOf(const QCommandLineParser& arguments) {
    const QCommandLineOption project = projectOption();
    const QCommandLineOption elements = elementsOption();
    if (arguments.isSet(project) && arguments.isSet(elements))
        throw UsageError(QStringLiteral("--project and --elements exclude each other"));
    if (arguments.isSet(project)) return openProject(arguments.value(project));
    return projectWith(arguments.isSet(elements) ? arguments.value(elements) : QStringLiteral("all"));
}

QList<Verb> projectVerbs() {
    const QString file = QStringLiteral("FILE");
    const QString name = QStringLiteral("NAME");
    return {
        {QStringLiteral("project create"),
            {file},
            QStringLiteral("Creates a project with the given number of elements of each kind."),
            countOptions(),
            &create},
        {QStringLiteral("project add"),
            {file},
            QStringLiteral("Adds elements to a project."),
            countOptions(),
            &add},
        {QStringLiteral("project info"),
            {file},
            QStringLiteral("Shows a project's elements and analysis tasks."),
            {jsonOption()},
            &info},
        {QStringLiteral("project store"),
            {file, name, QStringLiteral("PROGRAM")},
            QStringLiteral("Stores settings in a project as the analysis task of that name."),
            {settingsOption(), defaultsOption()},
            &store},
        {QStringLiteral("project load"),
            {file, name},
            QStringLiteral("Prints the settings string of a project's analysis task."),
            {outputOption()},
            &load},
        {QStringLiteral("project remove"),
            {file, name},
            QStringLiteral("Removes an analysis task from a project."),
            {},
            &remove},
    };
}

}  // namespace tiv::tool
