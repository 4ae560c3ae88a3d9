#include "tiv/dbo/dbo.h"

#include "tiv/smartassert/smart_assert.h"

#include <sqlite3.h>

#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

namespace tiv::dbo {
namespace {

constexpr int applicationId = 0x54495650;  // "TIVP"
constexpr int projectFormat = 1;
constexpr const char* temporary = ":memory:";

constexpr const char* emptyProject =
    "CREATE TABLE elements(kind INTEGER PRIMARY KEY,"
    "    count INTEGER NOT NULL CHECK(count BETWEEN 0 AND 2147483647));"
    "INSERT INTO elements VALUES (0, 0), (1, 0), (2, 0), (3, 0), (4, 0);"
    "CREATE TABLE tasks(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE,"
    "    program_type INTEGER NOT NULL, settings TEXT NOT NULL);";

struct Release {
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Release>;

struct Project {
    std::string path;
    std::unique_ptr<sqlite3, Release> connection;
    Statement count;  // of one kind of element; destroyed before its connection
};

std::map<int, Project> projects;
int lastHandle = 0;

Project* find(int database) {
    const auto found = projects.find(database);
    if (found != projects.end()) return &found->second;
    smartassert::SmartAssert(R"(0 && "invalid database handle")", "platform/dbo/dbo", 40);
    return nullptr;
}

[[noreturn]] void refuse(const std::string& path, const std::string& reason) {
    throw std::runtime_error(path + ": " + reason);
}

// Passes on what SQLite says, unless all is well.
void check(const Project& project, int result) {
    if (result != SQLITE_OK) refuse(project.path, sqlite3_errmsg(project.connection.get()));
}

Statement prepare(const Project& project, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    check(project, sqlite3_prepare_v2(project.connection.get(), sql, -1, &statement, nullptr));
    return Statement(statement);
}

// Whether there is a row; the statement stands on it then.
bool step(const Project& project, const Statement& statement) {
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) check(project, result);
    return result == SQLITE_ROW;
}

void bindText(const Statement& statement, int place, const std::string& text) {
    sqlite3_bind_text64(statement.get(), place, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

std::string textOf(const Statement& statement, int column) {
    const void* bytes = sqlite3_column_blob(statement.get(), column);
    const int size = sqlite3_column_bytes(statement.get(), column);
    return {static_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

int numberOf(const Project& project, const char* pragma) {
    const Statement statement = prepare(project, pragma);
    return step(project, statement) ? sqlite3_column_int(statement.get(), 0) : 0;
}

std::filesystem::path fileOf(const std::string& path) {
    return std::u8string(path.begin(), path.end());
}

Project connect(const std::string& path, int flags) {
    // SQLite may be built to read "file:x?mode=memory" as an address.
    const std::string name = path.starts_with("file:") ? "./" + path : path;
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(name.c_str(), &connection, flags, nullptr);
    Project project{path, std::unique_ptr<sqlite3, Release>(connection), nullptr};
    check(project, result);
    check(project, sqlite3_busy_timeout(connection, 500));
    return project;
}

int keep(Project project) {
    project.count = prepare(project, "SELECT count FROM elements WHERE kind = ?");
    projects.emplace(++lastHandle, std::move(project));
    return lastHandle;
}

void writeEmptyProject(const Project& project) {
    const std::string script = "BEGIN IMMEDIATE; PRAGMA application_id = " + std::to_string(applicationId) +
                               "; PRAGMA user_version = " + std::to_string(projectFormat) + ";" +
                               emptyProject + "COMMIT;";
    check(project, sqlite3_exec(project.connection.get(), script.c_str(), nullptr, nullptr, nullptr));
}

bool has(int database, ElementKind kind, int* count) {
    int held = 0;
    if (const Project* project = find(database)) {
        sqlite3_stmt* statement = project->count.get();
        sqlite3_bind_int(statement, 1, static_cast<int>(kind));
        if (sqlite3_step(statement) == SQLITE_ROW) held = sqlite3_column_int(statement, 0);
        check(*project, sqlite3_reset(statement));  // repeats what went wrong in the step
    }
    if (count) *count = held;
    return held > 0;
}

}  // namespace

bool hasQuads(int database, int* count) {
    return has(database, ElementKind::Quads, count);
}

bool hasBrics(int database, int* count) {
    return has(database, ElementKind::Brics, count);
}

bool hasBeams(int database, int* count) {
    return has(database, ElementKind::Beams, count);
}

bool hasCables(int database, int* count) {
    return has(database, ElementKind::Cables, count);
}

bool hasSprings(int database, int* count) {
    return has(database, ElementKind::Springs, count);
}

int createProject(const std::string& path) {
    std::error_code ignored;
    // SQLite would make a temporary database of none, and leave out what ends a name.
    if (fileOf(path).filename().empty() || path.find('\0') != std::string::npos) refuse(path, "no file name");
    if (path != temporary && std::filesystem::exists(fileOf(path), ignored)) refuse(path, "already exists");
    Project project = connect(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    // SQLite may find a file where the system finds none: in "nowhere/..".
    if (numberOf(project, "PRAGMA page_count") != 0) refuse(path, "already exists");
    try {
        writeEmptyProject(project);
    } catch (...) {
        project.connection.reset();
        if (std::filesystem::is_empty(fileOf(path), ignored)) std::filesystem::remove(fileOf(path), ignored);
        throw;
    }
    return keep(std::move(project));
}

int openProject(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(fileOf(path), error);
    if (!std::filesystem::status_known(status)) refuse(path, error.message());
    if (!std::filesystem::exists(status)) refuse(path, "no such file");
    if (!std::filesystem::is_regular_file(status)) refuse(path, "not a file");
    Project project = connect(path, SQLITE_OPEN_READWRITE);
    if (numberOf(project, "PRAGMA application_id") != applicationId) refuse(path, "not a project");
    const int format = numberOf(project, "PRAGMA user_version");
    if (format != projectFormat) {
        refuse(
            path, "project format " + std::to_string(format) + ", expected " + std::to_string(projectFormat));
    }
    return keep(std::move(project));
}

void addElements(int database, ElementKind kind, int count) {
    if (count < 1) {
        throw std::invalid_argument(
            "Elements to add: expected 1 or more, got " + std::to_string(count) + ".");
    }
    const Project* project = find(database);
    if (!project) return;
    const Statement add = prepare(
        *project, "UPDATE elements SET count = count + ?1 WHERE kind = ?2 AND count <= 2147483647 - ?1");
    sqlite3_bind_int(add.get(), 1, count);
    sqlite3_bind_int(add.get(), 2, static_cast<int>(kind));
    step(*project, add);
    if (sqlite3_changes(project->connection.get()) == 0) {
        throw std::invalid_argument(
            "Elements to add: " + std::to_string(count) + " more would pass 2147483647 of a kind.");
    }
}

void closeProject(int database) {
    if (find(database)) projects.erase(database);
}

std::vector<Task> tasks(int database) {
    std::vector<Task> result;
    const Project* project = find(database);
    if (!project) return result;
    const Statement rows = prepare(*project, "SELECT name, program_type, settings FROM tasks ORDER BY id");
    while (step(*project, rows)) {
        result.push_back({textOf(rows, 0), sqlite3_column_int(rows.get(), 1), textOf(rows, 2)});
    }
    return result;
}

void storeTask(int database, const Task& task) {
    const Project* project = find(database);
    if (!project) return;
    const Statement store = prepare(*project,
        "INSERT INTO tasks(name, program_type, settings) VALUES (?, ?, ?) ON CONFLICT(name)"
        " DO UPDATE SET program_type = excluded.program_type, settings = excluded.settings");
    bindText(store, 1, task.name);
    sqlite3_bind_int(store.get(), 2, task.programType);
    bindText(store, 3, task.settings);
    step(*project, store);
}

bool removeTask(int database, const std::string& name) {
    const Project* project = find(database);
    if (!project) return false;
    const Statement remove = prepare(*project, "DELETE FROM tasks WHERE name = ?");
    bindText(remove, 1, name);
    step(*project, remove);
    return sqlite3_changes(project->connection.get()) > 0;
}

}  // namespace tiv::dbo
