#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
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
        QStringLiteral("Language of keywords and comments. Default: en."),
        QStringLiteral("de|en"),
        QStringLiteral("en")};
}

QCommandLineOption allOffOption() {
    return {QStringLiteral("all-off"), QStringLiteral("Only the line that switches all options off.")};
}

QCommandLineOption allFullOption() {
    return {QStringLiteral("all-full"),
        QStringLiteral("Only the line that asks for full output of all options.")};
}

// As the library counts languages: 0 German, 1 English. The comments follow.
int setLanguage(const QString& name) {
    const bool german = name == QLatin1String("de");
    if (!german && name != QLatin1String("en"))
        throw UsageError(QStringLiteral("unknown language \"%1\", expected de or en").arg(name));
    QLocale::setDefault(german ? QLocale(QLocale::German, QLocale::Germany) : QLocale::c());
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    return german ? 0 : 1;
}

// What `action` makes the library report.
template <class Action>
int reportsOf(Action action) {
    int count = 0;
    auto previous = smartassert::setReporter([&count](const smartassert::Report&) { ++count; });
    const auto restore = qScopeGuard([&] { smartassert::setReporter(std::move(previous)); });
    action();
    return count;
}

// A report does not tell which option it is about: writing each one alone does.
void nameReports(const Table& table, int language) {
    for (const Option& option : optionsOf(table)) {
        const echo::OutPutType level = levelOf(table, option);
        std::vector<QString> line;
        const int reports = reportsOf(
            [&] { echo::data::appendOptionLine(line, table.flags, option.number, level, language); });
        if (reports > 0)
            warn(QStringLiteral("%1: the level %2 has no keyword, its line is left out")
                     .arg(fieldName(option), word(level)));
    }
}

void run(const QCommandLineParser& arguments) {
    const bool off = arguments.isSet(allOffOption());
    const bool full = arguments.isSet(allFullOption());
    if (off && full) throw UsageError(QStringLiteral("--all-off and --all-full exclude each other"));
    const int language = setLanguage(arguments.value(languageOption()));
    const auto table = tableOf(arguments);

    std::vector<QString> lines;
    if (reportsOf([&] { lines = table->getTELINP(off || full, full, language); }) > 0)
        nameReports(*table, language);
    QString text;
    for (const QString& line : lines) text += line + QLatin1Char('\n');
    print(text);
}

}  // namespace

Verb telinp() {
    return {QStringLiteral("telinp"),
        {QStringLiteral("PROGRAM")},
        QStringLiteral("Prints the ECHO lines of the program's input."),
        {settingsOption(),
            projectOption(),
            elementsOption(),
            languageOption(),
            allOffOption(),
            allFullOption()},
        &run};
}

}  // namespace tiv::tool
