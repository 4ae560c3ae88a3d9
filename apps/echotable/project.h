// Project files, and temporary projects in place of one.
#pragma once

#include "tiv/dbo/dbo.h"

#include <QCommandLineParser>
#include <QString>

namespace tiv::tool {

// An open project, closed with this object.
class Project {
 public:
    // Takes over the handle.
    explicit Project(int database) : handle(database) {}
    ~Project() { dbo::closeProject(handle); }
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    const int handle;
};

// A temporary project with one element of each listed kind: "quads,beams", "all" or "none".
// Throws UsageError.
Project projectWith(const QString& elements);

// Throws what dbo::openProject throws.
Project openProject(const QString& file);

// The project that --project or --elements names. Throws UsageError, and what dbo::openProject throws.
Project projectOf(const QCommandLineParser& arguments);

}  // namespace tiv::tool
