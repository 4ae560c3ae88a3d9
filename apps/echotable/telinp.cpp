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

// The library reports such a level without a name.
void warnOfLevelsWithoutKeyword(const Table& table, int language) {
    for (const Option& option : optionsOf(table)) {
        const echo::OutPutType level = levelOf(table, option);
        const bool isWritten =
            echo::data::isOptionApplicable(table.flags, option.number) && level != echo::DEFAULT_OUTPUT;
        if (isWritten && !echo::data::levelKeyword(level, language))
            warn(QStringLiteral("%1: the level %2 has no keyword, its line is left out")
                     .arg(fieldName(option), word(level)));
    }
}

std::vector<QString> linesWithoutReports(Table& table, bool all, bool full, int language) {
    auto reporter = smartassert::setReporter([](const smartassert::Report&) {});
    const auto restore = qScopeGuard([&] { smartassert::setReporter(std::move(reporter)); });
    return table.getTELINP(all, full, language);
}

void run(const QCommandLineParser& arguments) {
    const bool off = arguments.isSet(allOffOption());
    const bool full = arguments.isSet(allFullOption());
    if (off && full) throw UsageError(QStringLiteral("--all-off and --all-full exclude each other"));
    const int language = setLanguage(arguments.value(languageOption()));
    const auto table = tableOf(arguments);

    if (!off && !full) warnOfLevelsWithoutKeyword(*table, language);
    QString text;
    for (const QString& line : linesWithoutReports(*table, off || full, full, language))
        text += line + QLatin1Char('\n');
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
