#include "tiv/dbo/dbo.h"

#include "support/failure.h"
#include "support/reports.h"

#include <QtCore>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

namespace tiv::dbo {
namespace {

using test::failureOf;

const std::string noElements = "-0 -0 -0 -0 -0 ";
const std::string setCount = "PRAGMA ignore_check_constraints = 1; UPDATE elements SET count = ";
const std::string damageRoots = "PRAGMA writable_schema = 1; UPDATE sqlite_schema SET rootpage = 9";

std::string contentOf(int database) {
    std::string content;
    for (const auto has : {hasQuads, hasBrics, hasBeams, hasCables, hasSprings}) {
        int count = -1;
        const bool some = has(database, &count);
        EXPECT_EQ(some, has(database, nullptr));
        content += (some ? '+' : '-') + std::to_string(count) + ' ';
    }
    for (const Task& task : tasks(database))
        content += '[' + task.name + '|' + std::to_string(task.programType) + '|' + task.settings + ']';
    return content;
}

class Project : public testing::Test {
 protected:
    ~Project() override { closeProject(database); }
    std::string file(const char* name) const { return folder.filePath(name).toStdString(); }
    // Runs SQL as another program would. Its lock lasts as long as the connection that is returned.
    std::shared_ptr<sqlite3> execute(const std::string& name, const std::string& sql) const {
        sqlite3* connection = nullptr;
        sqlite3_open(name.c_str(), &connection);
        EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sql;
        return {connection, &sqlite3_close};
    }

    const QTemporaryDir folder;
    const std::string path = file("Brücke 橋.tiv");
    int database = createProject(path);
};

TEST_F(Project, isCreatedOnlyWhereNoFileIsAndOpenedOnlyFromAProjectFile) {
    const std::string blocked = file("blocked");
    std::filesystem::create_directory(blocked + "-journal");
    std::ofstream(file("text")) << "text";
    std::ofstream(file("empty")) << "";
    const struct {
        int (*call)(const std::string&);
        std::string path;
        const char* reason;
        std::string sql;  // first run on a copy of the project, of that name
    } rows[] = {
        {createProject, "", "no file name", ""},
        {createProject, path, "already exists", ""},
        {createProject, "file:nowhere/x?mode=memory", "unable to open database file", ""},
        {createProject, path + "/", "no file name", ""},
        {createProject, blocked, "unable to open database file", ""},
        // On Windows the open file could not be removed.
        {openProject, blocked, QDir::separator() == '/' ? "no such file" : "not a project", ""},
        {createProject, file("text"), "already exists", ""},
        {openProject, file("empty"), "not a project", ""},
        {createProject, folder.path().toStdString(), "already exists", ""},
        {openProject, folder.path().toStdString(), "not a file", ""},
        {openProject, file("other"), "not a project", "PRAGMA application_id = 0"},
        {openProject, file("newer"), "project format 2, expected 1", "PRAGMA user_version = 2"},
        {openProject, file("less"), "no such table: elements",
            "DROP TABLE elements; CREATE VIEW elements AS SELECT 1"},
        {openProject, file("view"), "no such table: tasks",
            "DROP TABLE tasks; CREATE VIEW tasks AS SELECT 1"},
        {openProject, file("c"), "no such column: settings", "ALTER TABLE tasks DROP COLUMN settings"},
        {openProject, file("n3"), "invalid number of cables", "DELETE FROM elements WHERE kind = 3"},
        {openProject, file("n1"), "invalid number of brics", setCount + "-1 WHERE kind = 1"},
        {openProject, file("n4"), "invalid number of springs", setCount + "2147483648 WHERE kind = 4"},
        {openProject, file("n0"), "invalid number of quads", setCount + "1.5 WHERE kind = 0"},
        {openProject, file("n9"), "the file is damaged",
            "PRAGMA ignore_check_constraints = 1; INSERT INTO elements VALUES (9, -1)"},
        {openProject, file("g"), "the file is damaged", damageRoots},
    };
    for (const auto& row : rows) {
        if (!row.sql.empty()) QFile::copy(path.c_str(), row.path.c_str()), execute(row.path, row.sql);
        EXPECT_EQ(failureOf([&] { row.call(row.path); }), row.path + ": " + row.reason);
    }
    EXPECT_EQ(failureOf([&] { createProject(path + '\0' + 'y'); }), path + ": no file name");
    EXPECT_EQ(failureOf([&] { openProject(path + '\0' + 'y'); }), path + ": no such file");
}

TEST_F(Project, whoseTextsAreDamagedIsRefused) {
    storeTask(database, {"one task", 3, "CgAA"});
    QFile damaged(path.c_str());
    ASSERT_TRUE(damaged.open(QFile::ReadWrite));
    damaged.seek(damaged.readAll().indexOf("one task"));
    damaged.write("two"), damaged.close();
    EXPECT_EQ(failureOf([&] { openProject(path); }), path + ": the file is damaged");
}

TEST_F(Project, keepsElementsAndTasksInOrderAndByteForByte) {
    const std::string odd = {'\0', '\xff', '\r', '\n', '\'', '"', '\0'}, empty = file("empty");
    std::ofstream(empty) << "";
    closeProject(std::exchange(database, createProject(empty, {2, 0, 0, 7, 2147483647})));
    addElements(database, ElementKind::Quads, 3);
    storeTask(database, {"b", 3, "CgAA\n"});
    storeTask(database, {"a", 12, ""});
    storeTask(database, {odd, -1, odd});
    storeTask(database, {"b", 4, odd});
    const int again = openProject(empty);
    addElements(again, ElementKind::Beams, 1);
    EXPECT_TRUE(hasBeams(database, nullptr)) << "through every handle";
    closeProject(std::exchange(database, again));
    EXPECT_EQ(
        contentOf(again), "+5 -0 +1 +7 +2147483647 [b|4|" + odd + "][a|12|][" + odd + "|-1|" + odd + "]");
    EXPECT_TRUE(removeTask(again, "a"));
    EXPECT_FALSE(removeTask(again, "a"));
    const auto refusal = failureOf<std::invalid_argument, std::function<void()>>;
    EXPECT_EQ(refusal([&] { addElements(again, ElementKind::Brics, 0); }),
        "Elements to add: expected 1 or more, got 0.");
    EXPECT_EQ(refusal([&] { addElements(again, ElementKind::Springs, 1); }),
        "Elements to add: 1 more would pass 2147483647 of a kind.");
    const ElementCounts negative{0, 0, -1, 0, 0};
    EXPECT_EQ(refusal([&] { createProject("x", negative); }), "Elements: expected 0 or more, got -1.");
    EXPECT_EQ(contentOf(again), "+5 -0 +1 +7 +2147483647 [b|4|" + odd + "][" + odd + "|-1|" + odd + "]");
}

TEST_F(Project, fromAnotherProgramShowsItsTextsAndRunsNoTrigger) {
    execute(file("wide"), R"(PRAGMA encoding = 'UTF-16'; PRAGMA application_id = 1414092368;
        PRAGMA user_version = 1; CREATE TABLE elements(kind INTEGER PRIMARY KEY, count);
        INSERT INTO elements VALUES (0, 1), (1, 1), (2, 1), (3, 1), (4, 1);
        CREATE TABLE tasks(id INTEGER PRIMARY KEY, name UNIQUE, program_type, settings);
        INSERT INTO tasks VALUES (1, '橋', 3, 'CgAA');
        CREATE TRIGGER added AFTER UPDATE ON elements BEGIN DELETE FROM tasks; END)");
    closeProject(std::exchange(database, openProject(file("wide"))));
    addElements(database, ElementKind::Quads, 1);
    EXPECT_EQ(contentOf(database), "+2 +1 +1 +1 +1 [橋|3|CgAA]");
}

TEST_F(Project, changesAllTasksOrNone) {
    const Task a{"a", 1, "A"}, b{"b", 2, "B"}, c{"c", 3, "C"}, d{"d", 4, "D"};
    for (const Task& task : {a, b, c}) storeTask(database, task);
    const struct {
        std::vector<TaskChange> changes;
        std::string stored;
        std::vector<std::string> conflicts;
    } rows[] = {
        {{{a, d}, {Task{"b", 2, "old"}, b}}, "[a|1|A][b|2|B][c|3|C]", {"b"}},
        {{{a, d}, {Task{"b", 7, "B"}, b}}, "[a|1|A][b|2|B][c|3|C]", {"b"}},
        {{{b, {}}, {a, c}, {d, {}}, {{}, c}}, "[a|1|A][b|2|B][c|3|C]", {"d", "c", "c"}},
        {{{{}, d}, {a, Task{"c", 1, "A"}}, {c, Task{"a", 3, "C"}}}, "[c|1|A][b|2|B][a|3|C][d|4|D]", {}},
        {{{b, {}}}, "[c|1|A][a|3|C][d|4|D]", {}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(changeTasks(database, row.changes), row.conflicts);
        EXPECT_EQ(contentOf(database), noElements + row.stored);
    }
}

#if !defined(_WIN32)  // where no open file is moved
TEST_F(Project, isNotWrittenToAfterItsFileWasMovedOrReplaced) {
    std::filesystem::rename(path, file("moved"));
    for (const char* reason : {": no such file", ": the file was replaced"}) {
        EXPECT_EQ(failureOf([&] { addElements(database, ElementKind::Quads, 1); }), path + reason);
        EXPECT_EQ(failureOf([&] { storeTask(database, {"a", 1, ""}); }), path + reason);
        EXPECT_EQ(failureOf([&] { removeTask(database, "a"); }), path + reason);
        EXPECT_EQ(failureOf([&] { changeTasks(database, {}); }), path + reason);
        EXPECT_EQ(contentOf(database), noElements);
        std::ofstream{path};
    }
}
#endif

TEST_F(Project, waitsForAnotherProgramAsLongAsSet) {
    setBusyTimeout(std::chrono::milliseconds(50));
    closeProject(std::exchange(database, openProject(path)));
    const auto start = std::chrono::steady_clock::now();
    const auto writer = execute(path, "BEGIN EXCLUSIVE; UPDATE elements SET count = 8 WHERE kind = 0");
    const auto creator = execute(file("raced"), "BEGIN IMMEDIATE; CREATE TABLE elements(kind)");
    const std::string locked = path + ": database is locked";
    EXPECT_EQ(failureOf([&] { openProject(path); }), locked);
    EXPECT_EQ(failureOf([&] { hasQuads(database, nullptr); }), locked);
    EXPECT_EQ(failureOf([&] { changeTasks(database, {}); }), locked);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(140)) << "50 ms each";
    setBusyTimeout(std::chrono::seconds(20));
    std::thread commits([&] {
        for (const auto& connection : {writer, creator}) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            sqlite3_exec(connection.get(), "COMMIT", nullptr, nullptr, nullptr);
        }
    });
    addElements(database, ElementKind::Quads, 1);
    EXPECT_EQ(failureOf([&] { createProject(file("raced")); }), file("raced") + ": already exists");
    commits.join();
    EXPECT_EQ(contentOf(database), "+9 -0 -0 -0 -0 ");
    setBusyTimeout(std::chrono::milliseconds(500));
}

TEST(Handle, thatIsUnknownIsReportedOncePerCallAndHarmless) {
    const int closed = createProject(":memory:");
    closeProject(closed);
    const int open = createProject(":memory:");
    EXPECT_NE(open, closed) << "handles are never used again";
    int count = -1;
    EXPECT_FALSE(hasBrics(closed, &count));
    EXPECT_FALSE(removeTask(closed, "name"));
    EXPECT_TRUE(tasks(closed).empty());
    addElements(closed, ElementKind::Brics, 1);
    storeTask(closed, {"name", 3, "text"});
    EXPECT_TRUE(changeTasks(closed, {{{}, Task{"name", 3, "text"}}}).empty());
    closeProject(closed);
    EXPECT_EQ(
        test::takeReports(), test::Reports(7, R"(0 && "invalid database handle" at platform/dbo/dbo:40)"));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(contentOf(open), noElements);
}

}  // namespace
}  // namespace tiv::dbo
