/// \file
/// The project database: which kinds of element a model holds, and the host's analysis tasks. Echo tables
/// ask it which of their options apply; the host keeps their settings strings in it.
///
///     const int database = createProject("bridge.tiv");
///     addElements(database, ElementKind::Quads, 1200);
///     hasQuads(database, nullptr);                             // true
///     storeTask(database, {"static", 3, "CgAA\n"});            // settings of program type 3
///     closeProject(database);
///
/// A project is an SQLite file, application id 0x54495650 ("TIVP"), user version 1:
///
///     elements   kind 0 to 4 (ElementKind) | count        one row per kind, counted when added
///     tasks      id | name | program_type | settings      in the order of ids
///
/// Paths are UTF-8. Every call comes from one thread. A handle is never used again after its project was
/// closed. An unknown handle is reported as a failed assertion, always with the same text and site,
/// `0 && "invalid database handle"` at platform/dbo/dbo:40; the call then does nothing.
///
/// What the file itself refuses is thrown as std::runtime_error "<path>: <reason>", the reason being
/// SQLite's own message where not given below ("database is locked", after half a second of waiting;
/// "attempt to write a readonly database"). Nothing was changed then.
#pragma once

#include <tiv/dbo/export.h>

#include <string>
#include <vector>

/// The project database.
namespace tiv::dbo {

/// \name Which kinds of element a project holds
/// All that the library tiv_echotable asks of this one.
/// @{

/// The cost does not depend on the size of the model.
/// \param database the handle of the project.
/// \param count null, or receives how many there are.
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

/// Makes a new, empty project file and opens it.
/// \param path of the file; ":memory:" makes a temporary project that ends with its handle.
/// \returns the handle, for the caller to close.
/// \throws std::runtime_error "<path>: already exists", "<path>: no file name". A refusal leaves no file.
TIV_DBO_EXPORT int createProject(const std::string& path);

/// Opens an existing project.
/// \param path of the file.
/// \returns the handle, for the caller to close.
/// \throws std::runtime_error "<path>: no such file", "<path>: not a file", "<path>: not a project" (another
///     application's database), "<path>: project format <n>, expected 1" (a newer version's project).
TIV_DBO_EXPORT int openProject(const std::string& path);

/// Counts further elements of a kind.
/// \param database the handle of the project.
/// \param kind of the elements.
/// \param count how many come to those that are there.
/// \throws std::invalid_argument "Elements to add: expected 1 or more, got <count>." or
///     "Elements to add: <count> more would pass 2147483647 of a kind.".
TIV_DBO_EXPORT void addElements(int database, ElementKind kind, int count);

/// Ends the handle. A temporary project is gone then.
/// \param database the handle of the project.
TIV_DBO_EXPORT void closeProject(int database);

/// One run of an analysis program.
struct Task {
    std::string name;      ///< unique in the project
    int programType;       ///< EchoData::ProgrammTypes
    std::string settings;  ///< any text; kept byte for byte
};

/// \param database the handle of the project.
/// \returns all tasks, in the order in which their names were first stored.
TIV_DBO_EXPORT std::vector<Task> tasks(int database);

/// Adds the task, or replaces the one of the same name in its place.
/// \param database the handle of the project.
/// \param task is copied.
TIV_DBO_EXPORT void storeTask(int database, const Task& task);

/// \param database the handle of the project.
/// \param name of the task.
/// \returns whether there was a task of that name; it is gone now.
TIV_DBO_EXPORT bool removeTask(int database, const std::string& name);

}  // namespace tiv::dbo
