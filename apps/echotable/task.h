// The analysis task of a project that a verb works on with --task: its program, its settings.
//
//     echotable telinp --project house.tiv --task static
#pragma once

#include "apps/echotable/project.h"
#include "apps/echotable/table.h"

#include <functional>
#include <memory>
#include <optional>

namespace tiv::tool {

struct TaskName {
    QString project;  // its file
    QString task;
};

// The task of --project and --task; nullopt without --task. Throws UsageError.
std::optional<TaskName> taskOf(const QCommandLineParser& arguments);

// Throws failure() with the tasks of the project if it has none of that name.
dbo::Task readTask(const Project& project, const TaskName& name);

// The task's echo table. `file` is the project's. Throws failure() for a program or settings that cannot be read.
std::shared_ptr<Table> tableOf(const dbo::Task& task, const Project& project, const QString& file);

// The table that a verb works on: of --project and --task, or of PROGRAM with the settings of --settings in the
// project of --project or --elements. Throws UsageError, failure(), and what dbo::openProject throws.
std::shared_ptr<Table> tableOf(const QCommandLineParser& arguments);

// Reads the task, changes its table and stores the settings, in one transaction: if another process changes the
// task meanwhile, it begins again. Nothing is stored when `change` throws.
void changeTask(const TaskName& name, const std::function<void(Table&)>& change);

}  // namespace tiv::tool
