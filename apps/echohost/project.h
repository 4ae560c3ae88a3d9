// The document of the sample host: a project database with its analysis tasks. Of a task's options the
// host knows nothing but the text that the library makes of them.
//
//     Project project("house.tiv");
//     Task& task = *project.tasks()[0];
//     layout->addWidget(task.echo().createPropertyInspector(this));   // the engineer edits
//     for (const QString& line : task.echo().getTELINP(false, false, 0)) input << line << '\n';
//     project.save();
//
// What the database refuses is thrown as std::runtime_error "<path>: <reason>".
#pragma once

#include <tiv/dbo/dbo.h>
#include <tiv/echo/echo_data.h>

#include <QString>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace echohost {

class Task {
 public:
    Task(tiv::dbo::Task stored, int database);

    QString name() const { return QString::fromStdString(task_.name); }
    int programType() const { return task_.programType; }

    // Made when it is first asked for.
    tiv::echo::EchoData& echo();

    // The library's text, when it cannot read the stored settings; empty otherwise, and while they
    // are to be replaced.
    QString problem() const;

    // Gives up the stored settings for those that the inspector shows, with the next save.
    void replaceStored();

    bool isChanged() const { return !isStored_ || isEdited(); }

    // Stores a task that has changed. Any other keeps its stored text byte for byte, so that a text that
    // the library cannot read is not lost.
    void save();

 private:
    bool isEdited() const;

    tiv::dbo::Task task_;
    int database_;
    bool isStored_ = true;  // the project holds task_
    std::unique_ptr<tiv::echo::EchoData> echo_;
    QString unedited_;  // what the library makes of task_.settings
    QString problem_;
};

using ElementCounts = std::array<int, 5>;  // in the order of tiv::dbo::ElementKind

// A new project file. A refusal leaves none behind.
void createProject(const QString& file, const ElementCounts& counts);

class Project {
 public:
    explicit Project(const QString& file);
    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    const QString& file() const { return file_; }
    const std::vector<std::unique_ptr<Task>>& tasks() const { return tasks_; }

    // Throws std::invalid_argument when the name is empty or taken.
    void addTask(const QString& name, int programType);
    void removeTask(std::size_t index);

    bool isChanged() const;
    // Where it throws, what was not yet stored is still a change.
    void save();

 private:
    QString file_;
    int database_;
    std::vector<std::unique_ptr<Task>> tasks_;
    std::vector<std::string> removed_;  // names to take out of the database
};

}  // namespace echohost
