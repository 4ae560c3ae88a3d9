/// \file
/// The project database: which kinds of element a model holds, and the host's analysis tasks. Echo tables
/// read from it which kinds there are; the host stores their settings strings in it.
///
///     const int database = createProject("bridge.tiv", {1200, 0, 96, 0, 24});
///     hasQuads(database, nullptr);                             // true
///     storeTask(database, {"static", 3, "CgAA\n"});            // settings of program type 3
///     closeProject(database);
///
/// A project is an SQLite file, application id 0x54495650 ("TIVP"), user version 1:
///
///     elements   kind 0 to 4 (ElementKind) | count        one row per kind
///     tasks      id | name | program_type | settings      in the order of ids
///
/// Paths are UTF-8. All calls for one project come from one thread; each thread may have projects of its
/// own. A handle is never used again after its project was closed. An unknown handle is reported as a failed
/// assertion, always with the same text and site, `0 && "invalid database handle"` at platform/dbo/dbo:40;
/// the call then does nothing.
///
/// Errors of the file are thrown as std::runtime_error "<path>: <reason>". The reasons that are not SQLite's
/// own messages are given below. SQLite's most frequent ones are "database is locked" (setBusyTimeout()) and
/// "attempt to write a readonly database". The file is unchanged after an error.
///
/// A change is written in one transaction, so a killed program leaves the file as it was before or after it.
/// Calls that change a project throw "<path>: no such file" or "<path>: the file was replaced" when the
/// project was deleted, moved or replaced since it was opened. What it held can still be read then. (On
/// Windows, an open file cannot be deleted, moved or replaced.)
#pragma once

#if (defined(_MSVC_LANG) ? _MSVC_LANG : __cplusplus) < 201703L
#error "tiv_echotable needs C++17: compile with -std=c++17 or later."
#endif

#include <tiv/dbo/export.h>

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

/// The project database.
namespace tiv::dbo {

/// \name Which kinds of element a project holds
/// These five functions are all that the library tiv_echotable uses.
/// @{

/// The cost does not depend on the size of the model.
/// \param database the handle of the project.
/// \param count null, or receives the number of elements.
/// \returns whether there is at least one element of the kind; false, count 0, for an unknown handle.
TIV_DBO_EXPORT bool hasQuads(int database, int* count);
TIV_DBO_EXPORT bool hasBrics(int database, int* count);  // sic
TIV_DBO_EXPORT bool hasBeams(int database, int* count);
TIV_DBO_EXPORT bool hasCables(int database, int* count);
TIV_DBO_EXPORT bool hasSprings(int database, int* count);
/// @}

/// The kinds of element that projects count.
enum class ElementKind {
    Quads,   ///< 0, quadrilaterals
    Brics,   ///< 1, bricks (sic)
    Beams,   ///< 2
    Cables,  ///< 3
    Springs  ///< 4
};

/// The number of elements of each kind, in the order of ElementKind.
using ElementCounts = std::array<int, 5>;

/// Creates a project file without elements and tasks, and opens it.
/// \param path of the file; ":memory:" makes a temporary project that is deleted when it is closed. An empty
///     file, as a killed creator may leave it, becomes the project.
/// \returns the handle, for the caller to close.
/// \throws std::runtime_error "<path>: already exists", also when another process creates the same file at
///     the same time and is first; "<path>: no file name".
TIV_DBO_EXPORT int createProject(const std::string& path);

/// Creates a project file with its elements, in one transaction, and opens it. As createProject(path).
/// \param path of the file.
/// \param counts how many elements there are of each kind.
/// \returns the handle, for the caller to close.
/// \throws std::invalid_argument "Elements: expected 0 or more, got <count>.".
TIV_DBO_EXPORT int createProject(const std::string& path, const ElementCounts& counts);

/// Opens an existing project.
/// \param path of the file. Its tables are checked, which takes time with the number of tasks, not with the
///     size of the model. Views and triggers in the file are disabled.
/// \returns the handle, for the caller to close.
/// \throws std::runtime_error with one of the reasons
///     - "no such file", "not a file";
///     - "not a project": an empty file or another application's database;
///     - "project format <n>, expected 1": a newer version's project;
///     - "the file is damaged", "no such table: <name>";
///     - "invalid number of <quads, brics, beams, cables or springs>": missing, not a whole number, or not
///       from 0 to 2147483647.
TIV_DBO_EXPORT int openProject(const std::string& path);

/// Sets how long a call waits for another process that uses the same file, before it throws "database is
/// locked". Applies to all projects of this process, also to those that are open.
/// \param wait 500 ms unless set; 0 does not wait.
TIV_DBO_EXPORT void setBusyTimeout(std::chrono::milliseconds wait);

/// Adds to the number of elements of a kind.
/// \param database the handle of the project.
/// \param kind of the elements.
/// \param count the number to add.
/// \throws std::invalid_argument "Elements to add: expected 1 or more, got <count>." or
///     "Elements to add: <count> more would pass 2147483647 of a kind.".
TIV_DBO_EXPORT void addElements(int database, ElementKind kind, int count);

/// Adds to the numbers of elements of all kinds, in one transaction.
/// \param database the handle of the project.
/// \param counts the numbers to add; 0 leaves a kind as it is.
/// \throws std::invalid_argument as addElements(database, kind, count) for the other counts.
TIV_DBO_EXPORT void addElements(int database, const ElementCounts& counts);

/// Closes the project. A temporary project is deleted.
/// \param database the handle of the project.
TIV_DBO_EXPORT void closeProject(int database);

/// One run of an analysis program.
struct Task {
    std::string name;      ///< unique in the project
    int programType;       ///< EchoData::ProgrammTypes
    std::string settings;  ///< any text; kept byte for byte

    /// All three members are equal.
    friend bool operator==(const Task& left, const Task& right) {
        return left.name == right.name && left.programType == right.programType &&
               left.settings == right.settings;
    }
};

/// \param database the handle of the project.
/// \returns all tasks, in the order in which they were first stored.
TIV_DBO_EXPORT std::vector<Task> tasks(int database);

/// Adds the task, or replaces the one of the same name in its place.
/// \param database the handle of the project.
/// \param task is copied.
TIV_DBO_EXPORT void storeTask(int database, const Task& task);

/// \param database the handle of the project.
/// \param name of the task.
/// \returns whether there was a task of that name, which is removed now.
TIV_DBO_EXPORT bool removeTask(int database, const std::string& name);

/// The change of one task:
///
///     before | after |
///     -------|-------|----------------------------------------------------------
///     -      | task  | adds the task behind all others
///     task   | task  | replaces it in its place; another name renames it
///     task   | -     | removes it
struct TaskChange {
    std::optional<Task> before;  ///< the task as the caller read it
    std::optional<Task> after;   ///< the task as it is to be stored
};

/// Makes all changes in one transaction, or none of them. Tasks may exchange their names.
/// \param database the handle of the project.
/// \param changes each of another task.
/// \returns empty when all changes were made. Otherwise nothing was changed, and these are the names of the
///     tasks that are not stored as in `before`, and the names of `after` that another task has.
TIV_DBO_EXPORT std::vector<std::string> changeTasks(int database, const std::vector<TaskChange>& changes);

}  // namespace tiv::dbo
