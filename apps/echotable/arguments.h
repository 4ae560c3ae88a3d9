// The verbs of the command line, and what their arguments have in common. A verb lives in the file of its
// name (the project's in project.cpp); main.cpp lists the verbs, parses and runs.
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

// The command line is wrong. Everything else that a verb throws is about what a file holds.
class UsageError : public std::runtime_error {
 public:
    explicit UsageError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

struct Verb {
    QString name;           // one word or two: "project create"
    QStringList arguments;  // "PROGRAM"; "[KEY=LEVEL...]" stands for any number, none included
    QString summary;
    QList<QCommandLineOption> options;
    // Throws UsageError, or std::exception "<file>: <what went wrong>".
    void (*run)(const QCommandLineParser& arguments);
    // In place of `run`, throws the same and needs no display; what it gives opens the window.
    std::function<void()> (*prepare)(const QCommandLineParser& arguments) = nullptr;
};

Verb programs();
Verb show();
Verb set();
Verb telinp();
Verb edit();
QList<Verb> projectVerbs();  // create, info, store, load

// The options that several verbs take.
QCommandLineOption settingsOption();  // --settings FILE, read by tableOf (table.h)
QCommandLineOption projectOption();   // --project FILE and --elements LIST, read by projectOf (project.h)
QCommandLineOption elementsOption();
QCommandLineOption outputOption();  // --output FILE, read by writeOutput
QCommandLineOption jsonOption();    // --json

// Writes a verb's result where --output says: to standard output if it says nothing. Throws as writeText.
void writeOutput(const QCommandLineParser& arguments, const QString& text);

// "a, b or c": what is accepted, for an error.
QString choices(const QStringList& words);

}  // namespace tiv::tool
