#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/task.h"
#include "apps/echotable/text.h"
#include "echo/src/utils.h"
#include "tiv/smartassert/smart_assert.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QScopeGuard>

namespace tiv::tool {
namespace {

QCommandLineOption languageOption() {
    return {QStringLiteral("language"),
        QStringLiteral("Language of the keywords, and of the comments without --comments. Default: en."),
        QStringLiteral("de|en"),
        QStringLiteral("en")};
}

QCommandLineOption commentsOption() {
    return {QStringLiteral("comments"),
        QStringLiteral("Language of the comments: de, en or another one; English if it has no catalogue."),
        QStringLiteral("LANG")};
}

QCommandLineOption allTasksOption() {
    return {QStringLiteral("all-tasks"),
        QStringLiteral("The lines of every task of --project, each under a line \"$ NAME (PROGRAM)\".")};
}

QCommandLineOption allOffOption() {
    return {QStringLiteral("all-off"), QStringLiteral("Only the line that switches all options off.")};
}

QCommandLineOption allFullOption() {
    return {QStringLiteral("all-full"),
        QStringLiteral("Only the line that asks for full output of all options.")};
}

struct Format {
    bool off, full;  // the line of --all-off, of --all-full
    int language;    // of the keywords, as the library counts: 0 German, 1 English
};

Format formatOf(const QCommandLineParser& arguments) {
    const Format format{arguments.isSet(allOffOption()),
        arguments.isSet(allFullOption()),
        arguments.value(languageOption()) == QLatin1String("de") ? 0 : 1};
    if (format.off && format.full)
        throw UsageError(QStringLiteral("--all-off and --all-full exclude each other"));
    if (format.language == 1 && arguments.value(languageOption()) != QLatin1String("en"))
        throw UsageError(QStringLiteral("unknown language \"%1\", expected de or en")
                             .arg(arguments.value(languageOption())));
    return format;
}

// The comments are in the language of the application.
void setLanguageOfComments(const QCommandLineParser& arguments) {
    const QString name =
        arguments.value(arguments.isSet(commentsOption()) ? commentsOption() : languageOption());
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        throw UsageError(QStringLiteral("unknown language \"%1\", expected de, en or the like").arg(name));
    QLocale::setDefault(locale);
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

// The library's own report names neither the option nor the level.
void warnOfLevelsWithoutKeyword(const Table& table, int language) {
    for (const TableRow& row : rowsOf(table)) {
        const echo::OutPutType level = levelOf(table, row);
        const bool isWritten =
            echo::data::isOptionApplicable(table.flags, row.number) && level != echo::DEFAULT_OUTPUT;
        if (isWritten && !echo::data::levelKeyword(level, language))
            warn(QStringLiteral("%1: the level %2 has no keyword, its line is left out")
                     .arg(fieldName(row), word(level)));
    }
}

QString linesOf(Table& table, const Format& format) {
    const bool single = format.off || format.full;
    if (!single) warnOfLevelsWithoutKeyword(table, format.language);
    auto reporter = smartassert::setReporter([](const smartassert::Report&) {});
    const auto restore = qScopeGuard([&] { smartassert::setReporter(std::move(reporter)); });
    QString text;
    for (const QString& line : table.getTELINP(single, format.full, format.language))
        text += line + QLatin1Char('\n');
    return text;
}

QString linesOfAllTasks(const QString& file, const Format& format) {
    const Project project = openProject(file);
    QString text;
    for (const dbo::Task& task : dbo::tasks(project.handle)) {
        const auto table = tableOf(task, project, file);
        text += QStringLiteral("$ %1 (%2)\n")
                    .arg(visible(QString::fromStdString(task.name)), programName(task.programType));
        text += linesOf(*table, format);
    }
    return text;
}

void run(const QCommandLineParser& arguments) {
    const Format format = formatOf(arguments);
    setLanguageOfComments(arguments);
    if (!arguments.isSet(allTasksOption()))
        return writeOutput(arguments, linesOf(*tableOf(arguments), format), arguments.value(projectOption()));

    for (const QCommandLineOption& other : {settingsOption(), elementsOption(), taskOption()})
        if (arguments.isSet(other))
            throw UsageError(
                QStringLiteral("--all-tasks and --%1 exclude each other").arg(other.names().constFirst()));
    if (!arguments.isSet(projectOption())) throw UsageError(QStringLiteral("--all-tasks needs --project"));
    const QString project = arguments.value(projectOption());
    writeOutput(arguments, linesOfAllTasks(project, format), project);
}

}  // namespace

Verb telinp() {
    return {QStringLiteral("telinp"),
        {QStringLiteral("PROGRAM")},
        QStringLiteral("Prints the ECHO lines of the program's input."),
        {settingsOption(),
            projectOption(),
            taskOption(),
            allTasksOption(),
            elementsOption(),
            languageOption(),
            commentsOption(),
            allOffOption(),
            allFullOption(),
            outputOption()},
        &run};
}

}  // namespace tiv::tool
