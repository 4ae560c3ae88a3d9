#include "tiv/dbo/dbo.h"

#include "tiv/smartassert/smart_assert.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace tiv::dbo {
namespace {

constexpr int applicationId = 0x54495650;  // "TIVP"
constexpr int projectFormat = 1;
constexpr const char* temporary = ":memory:";
constexpr const char* damaged = "the file is damaged";

constexpr const char* emptyTables =
    "CREATE TABLE elements(kind INTEGER PRIMARY KEY,"
    "    count INTEGER NOT NULL CHECK(count BETWEEN 0 AND 2147483647));"
    "CREATE TABLE tasks(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE,"
    "    program_type INTEGER NOT NULL, settings TEXT NOT NULL);";

constexpr const char* readTasks = "SELECT name, program_type, settings FROM tasks ORDER BY id";

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

std::mutex projectsMutex;  // for the three below; a project is used by one thread only
std::map<int, Project>& projects = *new std::map<int, Project>;  // never destroyed: for a host's last calls
int lastHandle = 0;
std::chrono::milliseconds busyTimeout{500};

Project* find(int database) {
    {
        const std::lock_guard lock(projectsMutex);
        const auto found = projects.find(database);
        if (found != projects.end()) return &found->second;
    }
    smartassert::SmartAssert(R"(0 && "invalid database handle")", "platform/dbo/dbo", 40);
    return nullptr;
}

[[noreturn]] void refuse(const std::string& path, const std::string& reason) {
    const std::string name = path.substr(0, path.find('\0'));  // what() ends there
    throw std::runtime_error(name + ": " + reason);
}

// Throws SQLite's error message unless `result` is SQLITE_OK. The messages on damage quote damaged bytes.
void check(const Project& project, int result) {
    if (result == SQLITE_CORRUPT) refuse(project.path, damaged);
    if (result != SQLITE_OK) refuse(project.path, sqlite3_errmsg(project.connection.get()));
}

void execute(const Project& project, const char* sql) {
    check(project, sqlite3_exec(project.connection.get(), sql, nullptr, nullptr, nullptr));
}

Statement prepare(const Project& project, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    check(project, sqlite3_prepare_v2(project.connection.get(), sql, -1, &statement, nullptr));
    return Statement(statement);
}

// Steps to the next row; false at the end.
bool step(const Project& project, const Statement& statement) {
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) check(project, result);
    return result == SQLITE_ROW;
}

void bindText(const Statement& statement, int place, const std::string& text) {
    sqlite3_bind_text64(statement.get(), place, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

// Binds the name, program type and settings to three places from `place` on.
void bindTask(const Statement& statement, int place, const Task& task) {
    bindText(statement, place, task.name);
    sqlite3_bind_int(statement.get(), place + 1, task.programType);
    bindText(statement, place + 2, task.settings);
}

std::string textOf(const Statement& statement, int column) {
    // Converts from UTF-16 where the file has it.
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), column));
    return text ? std::string(text, size) : std::string();
}

int numberOf(const Project& project, const char* pragma) {
    const Statement statement = prepare(project, pragma);
    return step(project, statement) ? sqlite3_column_int(statement.get(), 0) : 0;
}

// File system and SQLite cut names off at NUL.
bool hasNul(const std::string& path) {
    return path.find('\0') != std::string::npos;
}

std::filesystem::path fileOf(const std::string& path) {
    return std::u8string(path.begin(), path.end());
}

// The full path of the project's file, also after a change of the working directory; empty for a temporary
// project.
std::filesystem::path openFileOf(const Project& project) {
    return fileOf(sqlite3_db_filename(project.connection.get(), "main"));
}

// Rolled back unless committed.
class Transaction {
 public:
    explicit Transaction(const Project& project) : project_(project) { execute(project_, "BEGIN IMMEDIATE"); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() {
        sqlite3* connection = project_.connection.get();
        if (!sqlite3_get_autocommit(connection))
            sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
    }
    void commit() { execute(project_, "COMMIT"); }

 private:
    const Project& project_;
};

void setTimeout(const Project& project) {
    constexpr std::chrono::milliseconds most(std::numeric_limits<int>::max());
    const auto wait = std::clamp(busyTimeout, std::chrono::milliseconds(0), most);
    sqlite3_busy_timeout(project.connection.get(), static_cast<int>(wait.count()));
}

Project connect(const std::string& path, int flags) {
    // SQLite may be built to read "file:x?mode=memory" as an address.
    const std::string name = path.starts_with("file:") ? "./" + path : path;
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(name.c_str(), &connection, flags, nullptr);
    Project project{path, std::unique_ptr<sqlite3, Release>(connection), nullptr};
    check(project, result);
    for (const auto& [option, value] : {
             std::pair{SQLITE_DBCONFIG_ENABLE_VIEW, 0},
             {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
             {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
             {SQLITE_DBCONFIG_DEFENSIVE, 1},
         })
        check(project, sqlite3_db_config(connection, option, value, nullptr));
    const std::lock_guard lock(projectsMutex);
    setTimeout(project);
    return project;
}

int keep(Project project) {
    project.count = prepare(project, "SELECT count FROM elements WHERE kind = ?");
    const std::lock_guard lock(projectsMutex);
    projects.emplace(++lastHandle, std::move(project));
    return lastHandle;
}

// Throws "already exists" unless the number that the pragma reads is 0; also for a file that is no database.
void requireNone(const Project& project, const char* pragma) {
    int number = 0;
    const auto read = [](void* into, int, char** values, char**) {
        *static_cast<int*>(into) = std::atoi(values[0]);
        return 0;
    };
    const int result = sqlite3_exec(project.connection.get(), pragma, read, &number, nullptr);
    if (result == SQLITE_NOTADB || number != 0) refuse(project.path, "already exists");
    check(project, result);
}

// Throws unless the open file is the one at its path. On Windows it always is.
void requireSameFile(const Project& project) {
    int moved = 0;
    sqlite3_file_control(project.connection.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved == 0) return;
    std::error_code ignored;
    const bool exists = std::filesystem::exists(openFileOf(project), ignored);
    refuse(project.path, exists ? "the file was replaced" : "no such file");
}

void writeProject(const Project& project, const ElementCounts& counts) {
    const std::string header = "PRAGMA application_id = " + std::to_string(applicationId) +
                               "; PRAGMA user_version = " + std::to_string(projectFormat) + ";";
    Transaction transaction(project);
    requireNone(project, "PRAGMA schema_version");  // page_count is 1 by now
    execute(project, header.c_str());
    execute(project, emptyTables);
    const Statement insert = prepare(project, "INSERT INTO elements VALUES (?, ?)");
    for (int kind = 0; kind < static_cast<int>(counts.size()); ++kind) {
        sqlite3_bind_int(insert.get(), 1, kind);
        sqlite3_bind_int(insert.get(), 2, counts[static_cast<std::size_t>(kind)]);
        step(project, insert);
        sqlite3_reset(insert.get());
    }
    transaction.commit();
    requireSameFile(project);
}

// Removes the empty file that a failed createProject has made, unless another creator is writing to it.
void removeEmptyFile(const Project& project) try {
    sqlite3* connection = project.connection.get();
    sqlite3_busy_timeout(connection, 0);
    // The lock keeps others from writing until the file is gone. Their requireSameFile() throws then.
    if (sqlite3_exec(connection, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_BUSY) return;
    requireNone(project, "PRAGMA schema_version");
    std::error_code ignored;
    std::filesystem::remove(openFileOf(project), ignored);
} catch (const std::runtime_error&) {  // another creator's project
}

// The project to write to; null for an unknown handle.
const Project* findToChange(int database) {
    const Project* project = find(database);
    if (project) requireSameFile(*project);
    return project;
}

void requireSound(const Project& project, const char* pragma) {
    const Statement sound = prepare(project, pragma);
    if (!step(project, sound) || textOf(sound, 0) != "ok") refuse(project.path, damaged);
}

// A view of the name is no table.
void requireTable(const Project& project, const char* name) {
    const Statement table =
        prepare(project, "SELECT 1 FROM sqlite_schema WHERE type = 'table' AND name = ? COLLATE NOCASE");
    sqlite3_bind_text(table.get(), 1, name, -1, SQLITE_STATIC);
    if (!step(project, table)) refuse(project.path, std::string("no such table: ") + name);
}

void requireCounts(const Project& project) {
    const Statement row = prepare(project,
        "SELECT 1 FROM elements WHERE kind = ? AND typeof(count) = 'integer'"
        " AND count BETWEEN 0 AND 2147483647");
    int kind = 0;
    for (const char* name : {"quads", "brics", "beams", "cables", "springs"}) {
        sqlite3_bind_int(row.get(), 1, kind++);
        if (!step(project, row)) refuse(project.path, std::string("invalid number of ") + name);
        sqlite3_reset(row.get());
    }
}

bool has(int database, ElementKind kind, int* count) {
    int held = 0;
    if (const Project* project = find(database)) {
        sqlite3_stmt* statement = project->count.get();
        sqlite3_bind_int(statement, 1, static_cast<int>(kind));
        if (sqlite3_step(statement) == SQLITE_ROW) held = sqlite3_column_int(statement, 0);
        check(*project, sqlite3_reset(statement));  // returns the error of the step
    }
    if (count) *count = held;
    return held > 0;
}

// Throws std::invalid_argument, as the public function does.
void addElements(const Project& project, ElementKind kind, int count) {
    if (count < 1) {
        throw std::invalid_argument(
            "Elements to add: expected 1 or more, got " + std::to_string(count) + ".");
    }
    const Statement add = prepare(
        project, "UPDATE elements SET count = count + ?1 WHERE kind = ?2 AND count <= 2147483647 - ?1");
    sqlite3_bind_int(add.get(), 1, count);
    sqlite3_bind_int(add.get(), 2, static_cast<int>(kind));
    step(project, add);
    if (sqlite3_changes(project.connection.get()) == 0) {
        throw std::invalid_argument(
            "Elements to add: " + std::to_string(count) + " more would pass 2147483647 of a kind.");
    }
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
    return createProject(path, {});
}

int createProject(const std::string& path, const ElementCounts& counts) {
    for (const int count : counts) {
        if (count < 0)
            throw std::invalid_argument("Elements: expected 0 or more, got " + std::to_string(count) + ".");
    }
    // An empty name would open a temporary database.
    if (fileOf(path).filename().empty() || hasNul(path)) refuse(path, "no file name");
    std::error_code ignored;
    const auto status = std::filesystem::status(fileOf(path), ignored);
    const bool isNew = path == temporary || !std::filesystem::exists(status);
    if (!isNew && !std::filesystem::is_regular_file(status)) refuse(path, "already exists");
    Project project = connect(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    requireNone(project, "PRAGMA page_count");
    try {
        writeProject(project, counts);
    } catch (...) {
        if (isNew) removeEmptyFile(project);
        throw;
    }
    return keep(std::move(project));
}

int openProject(const std::string& path) {
    if (hasNul(path)) refuse(path, "no such file");
    std::error_code error;
    const auto status = std::filesystem::status(fileOf(path), error);
    if (!std::filesystem::status_known(status)) refuse(path, error.message());
    if (!std::filesystem::exists(status)) refuse(path, "no such file");
    if (!std::filesystem::is_regular_file(status)) refuse(path, "not a file");
    Project project = connect(path, SQLITE_OPEN_READWRITE);
    execute(project, "PRAGMA cell_size_check = 1; BEGIN");
    if (numberOf(project, "PRAGMA application_id") != applicationId) refuse(path, "not a project");
    const int format = numberOf(project, "PRAGMA user_version");
    if (format != projectFormat) {
        refuse(
            path, "project format " + std::to_string(format) + ", expected " + std::to_string(projectFormat));
    }
    requireSound(project, "PRAGMA integrity_check(sqlite_schema)");
    requireTable(project, "elements");
    requireTable(project, "tasks");
    requireCounts(project);
    prepare(project, readTasks);
    requireSound(project, "PRAGMA integrity_check(elements)");
    requireSound(project, "PRAGMA integrity_check(tasks)");
    execute(project, "COMMIT");
    return keep(std::move(project));
}

void setBusyTimeout(std::chrono::milliseconds wait) {
    const std::lock_guard lock(projectsMutex);
    busyTimeout = wait;
    for (const auto& [handle, project] : projects) setTimeout(project);
}

void addElements(int database, ElementKind kind, int count) {
    const Project* project = findToChange(database);
    if (project) addElements(*project, kind, count);
}

void addElements(int database, const ElementCounts& counts) {
    const Project* project = findToChange(database);
    if (!project) return;
    Transaction transaction(*project);
    for (std::size_t kind = 0; kind < counts.size(); ++kind)
        if (counts[kind] != 0) addElements(*project, static_cast<ElementKind>(kind), counts[kind]);
    transaction.commit();
}

void closeProject(int database) {
    if (!find(database)) return;
    const std::lock_guard lock(projectsMutex);
    projects.erase(database);
}

std::vector<Task> tasks(int database) {
    std::vector<Task> result;
    const Project* project = find(database);
    if (!project) return result;
    const Statement rows = prepare(*project, readTasks);
    while (step(*project, rows)) {
        result.push_back({textOf(rows, 0), sqlite3_column_int(rows.get(), 1), textOf(rows, 2)});
    }
    return result;
}

void storeTask(int database, const Task& task) {
    const Project* project = findToChange(database);
    if (!project) return;
    const Statement store = prepare(*project,
        "INSERT INTO tasks(name, program_type, settings) VALUES (?, ?, ?) ON CONFLICT(name)"
        " DO UPDATE SET program_type = excluded.program_type, settings = excluded.settings");
    bindTask(store, 1, task);
    step(*project, store);
}

bool removeTask(int database, const std::string& name) {
    const Project* project = findToChange(database);
    if (!project) return false;
    const Statement remove = prepare(*project, "DELETE FROM tasks WHERE name = ?");
    bindText(remove, 1, name);
    step(*project, remove);
    return sqlite3_changes(project->connection.get()) > 0;
}

std::vector<std::string> changeTasks(int database, const std::vector<TaskChange>& changes) {
    const Project* project = findToChange(database);
    if (!project) return {};
    Transaction transaction(*project);
    std::vector<std::string> conflicts;
    const Statement take = prepare(
        *project, "DELETE FROM tasks WHERE name = ? AND program_type = ? AND settings = ? RETURNING id");
    const Statement put = prepare(*project,
        "INSERT INTO tasks(id, name, program_type, settings) VALUES (?, ?, ?, ?)"
        " ON CONFLICT(name) DO NOTHING");
    const auto insert = [&](const Task& task) {  // with the bound id
        bindTask(put, 2, task);
        step(*project, put);
        if (sqlite3_changes(project->connection.get()) == 0) conflicts.push_back(task.name);
        sqlite3_reset(put.get());
    };

    // All tasks that change are taken out first, so that they can exchange their names. They come back before
    // new ones, whose ids must be greater than theirs.
    std::vector<std::pair<sqlite3_int64, const Task*>> changed;
    for (const auto& [before, after] : changes) {
        if (!before) continue;
        bindTask(take, 1, *before);
        if (!step(*project, take))
            conflicts.push_back(before->name);
        else if (after)
            changed.emplace_back(sqlite3_column_int64(take.get(), 0), &*after);
        sqlite3_reset(take.get());
    }
    for (const auto& [id, task] : changed) {
        sqlite3_bind_int64(put.get(), 1, id);
        insert(*task);
    }
    sqlite3_bind_null(put.get(), 1);
    for (const auto& [before, after] : changes)
        if (!before && after) insert(*after);
    if (conflicts.empty()) transaction.commit();
    return conflicts;
}

}  // namespace tiv::dbo
