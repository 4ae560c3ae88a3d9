#include "apps/echotable/arguments.h"

#include "apps/echotable/text.h"

#include <QFileInfo>

namespace tiv::tool {

QCommandLineOption settingsOption() {
    return {QStringLiteral("settings"),
        QStringLiteral("Settings string, or its JSON form; - is standard input. Without it every option has "
                       "its default."),
        QStringLiteral("FILE")};
}

QCommandLineOption projectOption() {
    return {QStringLiteral("project"),
        QStringLiteral("Project of --task, whose elements decide which options apply."),
        QStringLiteral("FILE")};
}

QCommandLineOption taskOption() {
    return {QStringLiteral("task"),
        QStringLiteral("Analysis task of --project, in place of PROGRAM and --settings: the program is the "
                       "task's own, the settings are read from the project and stored there."),
        QStringLiteral("NAME")};
}

QCommandLineOption elementsOption() {
    return {QStringLiteral("elements"),
        QStringLiteral("Instead of a project: the kinds of element, as quads,brics,beams,cables,springs, "
                       "or all, or none. Default: all."),
        QStringLiteral("LIST")};
}

QCommandLineOption outputOption() {
    return {QStringLiteral("output"),
        QStringLiteral("Output file, replaced atomically. Default: standard output."),
        QStringLiteral("FILE")};
}

QCommandLineOption jsonOption() {
    return {QStringLiteral("json"), QStringLiteral("Prints JSON.")};
}

void writeOutput(const QCommandLineParser& arguments, const QString& text, const QString& project) {
    const QCommandLineOption output = outputOption();
    if (arguments.isSet(output) && QFileInfo(arguments.value(output)) == QFileInfo(project))
        throw UsageError(QStringLiteral("--output is the project itself"));
    writeText(arguments.isSet(output) ? arguments.value(output) : standardStream, text);
}

QString choices(const QStringList& words) {
    if (words.size() < 2) return words.join(QString());
    return words.mid(0, words.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" or ") + words.last();
}

}  // namespace tiv::tool
