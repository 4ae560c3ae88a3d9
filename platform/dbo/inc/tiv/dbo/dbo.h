// The project database: which kinds of element a model holds, and the host's analysis tasks. Echo tables
// ask it which of their options apply; the host keeps their settings strings in it.
//
//     const int database = createProject("bridge.tiv");
//     addElements(database, ElementKind::Quads, 1200);
//     hasQuads(database, nullptr);                             // true
//     storeTask(database, {"static", 3, "CgAA\n"});            // settings of program type 3
//     closeProject(database);
//
// A project is an SQLite file, application id 0x54495650 ("TIVP"), user version 1:
//
//     elements   kind 0 to 4 (ElementKind) | count        one row per kind, counted when added
//     tasks      id | name | program_type | settings      in the order of ids
//
// Paths are UTF-8. Every call comes from one thread. A handle is never used again after its project was
// closed. An unknown handle is reported as a failed assertion, always with the same text and site,
// `0 && "invalid database handle"` at platform/dbo/dbo:40; the call then does nothing.
//
// What the file itself refuses is thrown as std::runtime_error "<path>: <reason>", the reason being
// SQLite's own message where not given below ("database is locked", after half a second of waiting;
// "attempt to write a readonly database"). Nothing was changed then.
#pragma once

#include <tiv/dbo/export.h>

#include <string>
#include <vector>

namespace tiv::dbo {

// Whether the project holds at least one element of the kind; `count`, unless null, receives how many.
// The cost does not depend on the size of the model. Unknown handle: false, count 0.
TIV_DBO_EXPORT bool hasQuads(int database, int* count);
TIV_DBO_EXPORT bool hasBrics(int database, int* count);  // sic
TIV_DBO_EXPORT bool hasBeams(int database, int* count);
TIV_DBO_EXPORT bool hasCables(int database, int* count);
TIV_DBO_EXPORT bool hasSprings(int database, int* count);

enum class ElementKind { Quads, Brics, Beams, Cables, Springs };

// The handle of a new, empty project. ":memory:" makes a temporary one that ends with its handle.
// Reasons of a refusal: "already exists", "no file name". A refusal leaves no file behind.
TIV_DBO_EXPORT int createProject(const std::string& path);

// The handle of an existing project. Reasons of a refusal: "no such file", "not a file", "not a project"
// (another application's database), "project format <n>, expected 1" (a newer version's project).
TIV_DBO_EXPORT int openProject(const std::string& path);

// Throws std::invalid_argument "Elements to add: expected 1 or more, got <count>." or
// "Elements to add: <count> more would pass 2147483647 of a kind.".
TIV_DBO_EXPORT void addElements(int database, ElementKind kind, int count);

TIV_DBO_EXPORT void closeProject(int database);

// One run of an analysis program.
struct Task {
    std::string name;      // unique in the project
    int programType;       // EchoData::ProgrammTypes
    std::string settings;  // any text; kept byte for byte
};

// All tasks, in the order in which their names were first stored.
TIV_DBO_EXPORT std::vector<Task> tasks(int database);

// Adds the task, or replaces the one of the same name in its place.
TIV_DBO_EXPORT void storeTask(int database, const Task& task);

// Whether there was a task of that name; it is gone now.
TIV_DBO_EXPORT bool removeTask(int database, const std::string& name);

}  // namespace tiv::dbo
