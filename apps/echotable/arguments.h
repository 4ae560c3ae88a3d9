// The verbs of the command line, and the options that they share. Each verb has a file of its name;
// those of `project` are in project.cpp. main.cpp lists the verbs, parses and runs.
//
//     Verb show() {
//         return {"show", {"PROGRAM"}, "Shows the options.", {settingsOption(), jsonOption()}, &run};
//     }
#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <stdexcept>

namespace tiv::tool {

// The command line is wrong. Any other exception is an input error.
class UsageError : public std::runtime_error {
 public:
    explicit UsageError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

struct Verb {
    QString name;           // one word or two: "project create"
    QStringList arguments;  // "PROGRAM", not with --task; "[KEY=LEVEL...]" for any number, none included
    QString summary;
    QList<QCommandLineOption> options;
    // Throws UsageError, or std::exception "<file>: <what went wrong>".
    void (*run)(const QCommandLineParser& arguments);
    // Alternative to `run` for verbs with a window: checks the arguments without a display and returns the
    // function that opens the window. Throws the same.
    std::function<void()> (*prepare)(const QCommandLineParser& arguments) = nullptr;
};

Verb programs();
Verb show();
Verb set();
Verb telinp();
Verb edit();
QList<Verb> projectVerbs();  // create, add, info, store, load, remove

// The options that several verbs take.
QCommandLineOption settingsOption();  // --settings FILE
QCommandLineOption projectOption();   // --project FILE and --elements LIST, read by projectOf (project.h)
QCommandLineOption elementsOption();
QCommandLineOption taskOption();    // --task NAME, read by taskOf (task.h)
QCommandLineOption outputOption();  // --output FILE, read by writeOutput
QCommandLineOption jsonOption();    // --json

// Writes a verb's result to --output or, without it, to standard output. Throws as writeText, and UsageError
// if --output is `project`, the project file that the verb has read.
void writeOutput(const QCommandLineParser& arguments, const QString& text, const QString& project = {});

// "a, b or c": what is accepted, for an error.
QString choices(const QStringList& words);

}  // namespace tiv::tool
