// echotable: the echo tables of the analysis programs on the command line. Finds the verb, parses its
// arguments, runs it, and reports a failure by one line on stderr and the exit code.
#include "apps/echotable/arguments.h"
#include "apps/echotable/text.h"
#include "platform/streams/streams.h"
#include "tiv/dbo/dbo.h"
#include "tiv/smartassert/smart_assert.h"

#include <QApplication>
#include <QCoreApplication>
#include <QScopeGuard>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <vector>

#if defined(Q_OS_WIN)
#include <windows.h>
#endif

namespace {

using namespace tiv::tool;

enum ExitCode { Done = 0, WrongInput = 1, WrongUsage = 2 };

QList<Verb> allVerbs() {
    return QList<Verb>{programs(), show(), set(), telinp(), edit()} + projectVerbs();
}

QCommandLineOption helpOption() {
    return {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")};
}

QCommandLineOption versionOption() {
    return {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Shows the version.")};
}

QString meaning(const QString& argument) {
    if (argument == QLatin1String("PROGRAM"))
        return QStringLiteral("Number or name of a program type, as `echotable programs` lists them.");
    if (argument == QLatin1String("FILE")) return QStringLiteral("A project.");
    if (argument == QLatin1String("NAME")) return QStringLiteral("An analysis task of the project.");
    return QStringLiteral(
        "An option's key or field, and a level that `echotable show` lists as offered "
        "for it, or #NUMBER for any value.");
}

QString helpOf(const Verb& verb, QCommandLineParser& parser) {
    parser.setApplicationDescription(verb.summary);
    for (const QString& argument : verb.arguments) parser.addPositionalArgument(argument, meaning(argument));
    const QStringList words = QStringList(verb.name) + verb.arguments;
    const QString text = parser.helpText();  // its first line lacks the verb
    return QStringLiteral("Usage: echotable %1 [options]").arg(words.join(QLatin1Char(' '))) +
           text.mid(text.indexOf(QLatin1Char('\n')));
}

QString generalHelp() {
    std::vector<QStringList> rows;
    for (const Verb& verb : allVerbs()) rows.push_back({QStringLiteral("  ") + verb.name, verb.summary});
    return QStringLiteral(
        "Usage: echotable VERB [arguments] [options]\n"
        "The echo tables of the analysis programs: what their reports print.\n\n"
        "Verbs:\n%1\n"
        "See `echotable VERB --help` for its arguments; --version shows the version.\n")
        .arg(aligned(rows));
}

// The verb that the words begin with; null for none.
const Verb* findVerb(const QList<Verb>& verbs, const QStringList& words) {
    const auto isMeant = [&](const Verb& verb) {
        const QStringList name = verb.name.split(QLatin1Char(' '));
        return words.mid(0, name.size()) == name;
    };
    const auto found = std::find_if(verbs.begin(), verbs.end(), isMeant);
    return found == verbs.end() ? nullptr : &*found;
}

void checkCount(const QStringList& given, const QStringList& expected) {
    const bool repeats = expected.value(expected.size() - 1).endsWith(QLatin1String("...]"));
    const auto required = std::count_if(expected.begin(), expected.end(), [](const QString& argument) {
        return !argument.startsWith(QLatin1Char('['));
    });
    if (given.size() < required)
        throw UsageError(QStringLiteral("%1 is missing").arg(expected[given.size()]));
    if (given.size() > expected.size() && !repeats)
        throw UsageError(QStringLiteral("unexpected argument \"%1\"").arg(given[expected.size()]));
}

QString unknownVerb(const QStringList& words) {
    QStringList all, begun;  // of two words, the first of which was given
    for (const Verb& verb : allVerbs()) {
        all += verb.name;
        if (verb.name.startsWith(words.value(0) + QLatin1Char(' '))) begun += verb.name;
    }
    const int given = begun.isEmpty() ? 1 : 2;
    const QString problem =
        words.size() < given
            ? QStringLiteral("VERB is missing")
            : QStringLiteral("unknown verb \"%1\"").arg(words.mid(0, given).join(QLatin1Char(' ')));
    return problem + QStringLiteral(", expected ") + choices(begun.isEmpty() ? all : begun);
}

// `verb` is that of findVerb(). Returns the function that opens its window; empty if it has none.
std::function<void()> run(const Verb* verb, const QStringList& words) {
    QCommandLineParser parser;
    parser.addOptions({helpOption(), versionOption()});
    if (verb) parser.addOptions(verb->options);
    const auto skipped = verb ? verb->name.count(QLatin1Char(' ')) + 1 : 0;
    const bool understood = parser.parse(QStringList(QStringLiteral("echotable")) + words.mid(skipped));

    if (parser.isSet(helpOption())) return print(verb ? helpOf(*verb, parser) : generalHelp()), nullptr;
    if (parser.isSet(versionOption())) return print(QStringLiteral("echotable " TIV_VERSION "\n")), nullptr;
    if (!verb) throw UsageError(unknownVerb(words));
    if (!understood) throw UsageError(parser.errorText().chopped(1));  // the full stop
    for (const QString& word : words)
        if (word.contains(QChar::ReplacementCharacter))  // another file's name could read the same
            throw UsageError(
                QStringLiteral("argument \"%1\" is not valid in the current encoding").arg(word));
    QStringList expected = verb->arguments;
    const QStringList given = parser.optionNames();
    if (given.contains(QStringLiteral("task")) || given.contains(QStringLiteral("all-tasks")))
        expected.removeAll(QStringLiteral("PROGRAM"));
    checkCount(parser.positionalArguments(), expected);
    if (verb->prepare) return verb->prepare(parser);
    verb->run(parser);
    return nullptr;
}

int exitCodeOf(const QStringList& words, std::function<void()>& window) {
    const QList<Verb> verbs = allVerbs();
    const Verb* verb = findVerb(verbs, words);
    try {
        window = run(verb, words);
        return Done;
    } catch (const UsageError& problem) {
        const QString name = verb ? verb->name + QLatin1Char(' ') : QString();
        complain(QStringLiteral("%1 (see echotable %2--help)").arg(QString::fromUtf8(problem.what()), name));
        return WrongUsage;
    } catch (const std::exception& problem) {
        complain(QString::fromUtf8(problem.what()));
        return WrongInput;
    }
}

// Replaces Qt's multi-line abort message when there is no display.
void onQtMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
    if (type != QtFatalMsg) return;
    complain(QStringLiteral("edit needs a display"));
    std::_Exit(WrongInput);
}

// Sets the code page of a Windows console to UTF-8 until the result is destroyed.
auto utf8Console() {
#if defined(Q_OS_WIN)
    const UINT before = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    return qScopeGuard([before] { SetConsoleOutputCP(before); });
#else
    return nullptr;
#endif
}

}  // namespace

int main(int argc, char** argv) {
    tiv::streams::reserveClosed();
    [[maybe_unused]] const auto console = utf8Console();
    tiv::smartassert::setReporter([](const tiv::smartassert::Report& report) {
        warn(QStringLiteral("assertion failed: %1 (%2:%3)")
                 .arg(QString::fromUtf8(report.expression.data(), static_cast<int>(report.expression.size())),
                     QString::fromUtf8(report.source.data(), static_cast<int>(report.source.size())))
                 .arg(report.line));
    });
    tiv::dbo::setBusyTimeout(std::chrono::seconds(10));
    std::function<void()> window;
    {
        const QCoreApplication withoutDisplay(argc, argv);
        const int code = exitCodeOf(QCoreApplication::arguments().mid(1), window);
        if (!window) return code;
    }
    const auto handler = qInstallMessageHandler(onQtMessage);
    const QApplication application(argc, argv);
    qInstallMessageHandler(handler);
    window();
    return Done;
}
