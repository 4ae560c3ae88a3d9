#include "tiv/dbo/dbo.h"

#include "support/reports.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>

namespace tiv::dbo {
namespace {

using Call = std::function<void()>;

template <class Exception = std::runtime_error>
std::string refusal(const Call& call) {
    try {
        call();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return "nothing thrown";
}

std::string contentOf(int database) {
    std::string content;
    for (const auto has : {hasQuads, hasBrics, hasBeams, hasCables, hasSprings}) {
        int count = -1;
        const bool some = has(database, &count);
        EXPECT_EQ(some, has(database, nullptr));
        content += (some ? '+' : '-') + std::to_string(count) + ' ';
    }
    for (const Task& task : tasks(database)) {
        content += '[' + task.name + '|' + std::to_string(task.programType) + '|' + task.settings + ']';
    }
    return content;
}

class Project : public testing::Test {
 protected:
    std::string file(const char* name) const { return folder.filePath(name).toStdString(); }
    void write(const std::string& name, const char* text) const { std::ofstream(name) << text; }
    // As another program would; the lock it takes ends with the returned connection.
    std::shared_ptr<sqlite3> execute(const std::string& name, const char* sql) const {
        sqlite3* connection = nullptr;
        sqlite3_open(name.c_str(), &connection);
        EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
        return {connection, &sqlite3_close};
    }

    const QTemporaryDir folder;
    const std::string path = file("Brücke 橋.tiv");
    const int database = createProject(path);
};

TEST_F(Project, isOpenedOnlyFromAProjectFile) {
    const auto changed = [&](const char* sql) {
        return [this, sql](const std::string& copy) {
            std::filesystem::copy(path, copy);
            execute(copy, sql);
        };
    };
    const struct {
        std::function<void(const std::string&)> make;
        const char* reason;
    } rows[] = {
        {[](auto&) {}, "no such file"},
        {[](auto& name) { std::filesystem::create_directory(name); }, "not a file"},
        {[&](auto& name) { write(name, ""); }, "not a project"},
        {[&](auto& name) { write(name, "a letter to the engineer"); }, "file is not a database"},
        {[&](auto& name) { execute(name, "CREATE TABLE elements(kind, count)"); }, "not a project"},
        {changed("PRAGMA user_version = 2"), "project format 2, expected 1"},
        {changed("DROP TABLE elements"), "no such table: elements"},
    };
    for (const auto& row : rows) {
        const std::string name = file(std::to_string(&row - rows).c_str());
        row.make(name);
        EXPECT_EQ(refusal([&] { openProject(name); }), name + ": " + row.reason);
    }
}

TEST_F(Project, isCreatedOnlyWhereNoFileIs) {
    const std::string blocked = file("blocked");
    std::filesystem::create_directory(blocked + "-journal");
    const struct {
        std::string path;
        const char* reason;
    } rows[] = {
        {"", "no file name"},
        {path, "already exists"},
        {path + "/project", "unable to open database file"},
        {blocked, "unable to open database file"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(refusal([&] { createProject(row.path); }), row.path + ": " + row.reason);
    }
    EXPECT_FALSE(std::filesystem::exists(blocked));
}

TEST_F(Project, countsItsElements) {
    addElements(database, ElementKind::Quads, 2);
    addElements(database, ElementKind::Quads, 3);
    addElements(database, ElementKind::Cables, 7);
    addElements(database, ElementKind::Springs, 2147483647);
    const struct {
        ElementKind kind;
        int count;
        const char* text;
    } rows[] = {
        {ElementKind::Brics, 0, "Elements to add: expected 1 or more, got 0."},
        {ElementKind::Brics, -1, "Elements to add: expected 1 or more, got -1."},
        {ElementKind::Springs, 1, "Elements to add: 1 more would pass 2147483647 of a kind."},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(
            refusal<std::invalid_argument>([&] { addElements(database, row.kind, row.count); }), row.text);
    }
    const int again = openProject(path);
    EXPECT_EQ(contentOf(again), "+5 -0 -0 +7 +2147483647 ");
    addElements(again, ElementKind::Beams, 1);
    EXPECT_TRUE(hasBeams(database, nullptr)) << "seen by everyone who has the project open";
}

TEST_F(Project, lockedByAnotherProgramSaysSoAndStaysAsItIs) {
    auto other = execute(path, "BEGIN EXCLUSIVE");
    for (const Call& call : {Call([&] { openProject(path); }), Call([&] { hasQuads(database, nullptr); }),
             Call([&] { addElements(database, ElementKind::Quads, 1); })}) {
        EXPECT_EQ(refusal(call), path + ": database is locked");
    }
    other.reset();
    EXPECT_EQ(contentOf(database), "-0 -0 -0 -0 -0 ");
}

TEST_F(Project, keepsItsTasksInOrderAndByteForByte) {
    const std::string odd = {'\0', '\xff', '\r', '\n', '\'', '"', '\0'};
    storeTask(database, {"b", 3, "CgAA\n"});
    storeTask(database, {"a", 12, ""});
    storeTask(database, {odd, -1, odd});
    storeTask(database, {"b", 4, odd});
    closeProject(database);

    const int again = openProject(path);
    EXPECT_EQ(contentOf(again), "-0 -0 -0 -0 -0 [b|4|" + odd + "][a|12|][" + odd + "|-1|" + odd + "]");
    EXPECT_TRUE(removeTask(again, "a"));
    EXPECT_FALSE(removeTask(again, "a"));
    EXPECT_EQ(contentOf(again), "-0 -0 -0 -0 -0 [b|4|" + odd + "][" + odd + "|-1|" + odd + "]");
}

TEST(Handle, thatIsUnknownIsReportedOncePerCallAndHarmless) {
    const int closed = createProject(":memory:");
    closeProject(closed);
    const int open = createProject(":memory:");
    EXPECT_NE(open, closed) << "handles are never used again";
    int count = -1;
    for (const Call& call : {Call([&] { EXPECT_FALSE(hasBrics(closed, &count)); }),
             Call([&] { addElements(closed, ElementKind::Brics, 1); }), Call([&] {
                 storeTask(closed, {"name", 3, "text"});
             }),
             Call([&] { EXPECT_FALSE(removeTask(closed, "name")); }),
             Call([&] { EXPECT_TRUE(tasks(closed).empty()); }), Call([&] { closeProject(closed); })}) {
        call();
        EXPECT_EQ(
            test::takeReports(), test::Reports({R"(0 && "invalid database handle" at platform/dbo/dbo:40)"}));
    }
    EXPECT_EQ(count, 0);
    EXPECT_EQ(contentOf(open), "-0 -0 -0 -0 -0 ");
}

}  // namespace
}  // namespace tiv::dbo
