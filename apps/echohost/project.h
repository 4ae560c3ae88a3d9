// The document of the sample host: a project database with its analysis tasks. The host treats a task's
// settings as an opaque text.
//
//     Project project("house.tiv");
//     Task& task = *project.tasks()[0];
//     layout->addWidget(task.echo().createPropertyInspector(this));   // the engineer edits
//     for (const QString& line : task.echo().getTELINP(false, false, 0)) input << line << '\n';
//     project.save(askWhoseToKeep);
//
// Errors of the database are thrown as std::runtime_error "<path>: <reason>".
#pragma once

#include <tiv/dbo/dbo.h>
#include <tiv/echo/echo_data.h>

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace echohost {

class Task {
 public:
    // `stored` is the row of the project file; a new task has none.
    Task(std::optional<tiv::dbo::Task> stored, tiv::dbo::Task row, int database);

    QString name() const { return QString::fromStdString(row_.name); }
    void rename(const QString& name) { row_.name = name.toStdString(); }
    int programType() const { return row_.programType; }

    // Made at the first call, which reads from the database.
    tiv::echo::EchoData& echo();
    // Null before that.
    tiv::echo::EchoData* madeEcho() const { return echo_.get(); }

    // Why the stored settings cannot be read, in English. Empty if they can, and while the next save will replace
    // them.
    QString problem() const;
    // On the next save, overwrites the stored settings with those shown.
    void replaceStored();

    const std::optional<tiv::dbo::Task>& stored() const { return stored_; }
    // The row to be stored. Unless an option was changed, its settings are the stored text byte for byte, so
    // that a text that the library cannot read is not lost.
    tiv::dbo::Task row() const;
    bool isChanged() const;

    // The file now holds this row, or none. Edits made here are kept.
    void setStored(const std::optional<tiv::dbo::Task>& stored) { stored_ = stored; }
    // row() has been stored.
    void markStored();
    // Replaces the task, with the edits made here, by the stored row.
    void load(const tiv::dbo::Task& stored);

 private:
    bool isEdited() const;

    std::optional<tiv::dbo::Task> stored_;
    tiv::dbo::Task row_;
    int database_;
    std::unique_ptr<tiv::echo::EchoData> echo_;
    QString unedited_;  // the library's text of row_.settings
    QString problem_;
};

class Project {
 public:
    explicit Project(const QString& file);
    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    const QString& file() const { return file_; }
    const std::vector<std::unique_ptr<Task>>& tasks() const { return tasks_; }

    bool hasTask(const QString& name) const;
    // The name must be free. Without settings, every option has its default.
    void addTask(const QString& name, int programType, const std::optional<std::string>& settings = {});
    void removeTask(std::size_t index);

    bool isChanged() const;

    enum class Keep { Mine, Theirs, Neither };
    // Called for a task that was changed here and, since it was read, by another program. Neither: do not save.
    using Ask = std::function<Keep(const QString& task)>;

    // Writes what was changed here, in one transaction, and reads what other programs have changed.
    // Returns false if the user has cancelled. Then, and when it throws, nothing was written.
    bool save(const Ask& ask);

    // Writes everything that is shown here to a new project file.
    void copyTo(const QString& file) const;

 private:
    bool resolveConflicts(
        const std::set<std::string>& names, int database, const Ask& ask, std::set<const Task*>& dropped);
    Task* changedTask(const std::string& name) const;
    void read(int database);

    QString file_;
    int database_;
    std::vector<std::unique_ptr<Task>> tasks_;
    std::vector<tiv::dbo::Task> removed_;  // stored rows
};

}  // namespace echohost
