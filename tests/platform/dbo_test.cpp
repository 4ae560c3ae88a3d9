#include "tiv/dbo/dbo.h"

#include "support/failure.h"
#include "support/reports.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>

namespace tiv::dbo {
namespace {

using test::failureOf;

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
    // As another program would; the lock it takes ends with the returned connection.
    std::shared_ptr<sqlite3> execute(const std::string& name, const char* sql) const {
        sqlite3* connection = nullptr;
        sqlite3_open(name.c_str(), &connection);
        EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
        return {connection, &sqlite3_close};
    }

    const QTemporaryDir folder;
    const std::string path = file("Brücke 橋.tiv");
    int database = createProject(path);
};

TEST_F(Project, isCreatedOnlyWhereNoFileIsAndOpenedOnlyFromAProjectFile) {
    const std::string blocked = file("blocked");
    std::filesystem::create_directory(blocked + "-journal");
    const struct {
        int (*call)(const std::string&);
        std::string path;
        const char* reason;
        const char* sql = nullptr;  // first done to a copy of the project, of that name
    } rows[] = {
        {createProject, "", "no file name"},
        {createProject, path, "already exists"},
        {createProject, path + "/project", "unable to open database file"},
        {createProject, path + "/", "no file name"},
        {createProject, blocked, "unable to open database file"},
        {openProject, blocked, "no such file"},
        {openProject, folder.path().toStdString(), "not a file"},
        {openProject, file("other"), "not a project", "PRAGMA application_id = 0"},
        {createProject, file("nowhere/../other"), "already exists"},
        {openProject, file("less"), "no such table: elements", "DROP TABLE elements"},
    };
    for (const auto& row : rows) {
        if (row.sql) QFile::copy(path.c_str(), row.path.c_str()), execute(row.path, row.sql);
        EXPECT_EQ(failureOf([&] { row.call(row.path); }), row.path + ": " + row.reason);
    }
}

TEST_F(Project, keepsElementsAndTasksInOrderAndByteForByte) {
    const std::string odd = {'\0', '\xff', '\r', '\n', '\'', '"', '\0'};
    addElements(database, ElementKind::Quads, 2);
    addElements(database, ElementKind::Quads, 3);
    addElements(database, ElementKind::Cables, 7);
    addElements(database, ElementKind::Springs, 2147483647);
    storeTask(database, {"b", 3, "CgAA\n"});
    storeTask(database, {"a", 12, ""});
    storeTask(database, {odd, -1, odd});
    storeTask(database, {"b", 4, odd});
    const int again = openProject(path);
    addElements(again, ElementKind::Beams, 1);
    EXPECT_TRUE(hasBeams(database, nullptr)) << "seen by everyone who has the project open";
    closeProject(std::exchange(database, again));
    EXPECT_EQ(
        contentOf(again), "+5 -0 +1 +7 +2147483647 [b|4|" + odd + "][a|12|][" + odd + "|-1|" + odd + "]");
    EXPECT_TRUE(removeTask(again, "a"));
    EXPECT_FALSE(removeTask(again, "a"));
    const auto refusal = [&](ElementKind kind, int more) {
        return failureOf<std::invalid_argument>([&] { addElements(again, kind, more); });
    };
    EXPECT_EQ(refusal(ElementKind::Brics, 0), "Elements to add: expected 1 or more, got 0.");
    EXPECT_EQ(refusal(ElementKind::Springs, 1), "Elements to add: 1 more would pass 2147483647 of a kind.");
    EXPECT_EQ(contentOf(again), "+5 -0 +1 +7 +2147483647 [b|4|" + odd + "][" + odd + "|-1|" + odd + "]");
}

#if !defined(_WIN32)  // where no file may have such a name
TEST_F(Project, mayHaveAnAddressForItsName) {
    const std::string name = "file:x?mode=memory";
    QDir::setCurrent(folder.path());
    closeProject(createProject(name));
    QDir::setCurrent("/");
    EXPECT_TRUE(std::filesystem::exists(file(name.c_str())));
}
#endif

TEST_F(Project, lockedByAnotherProgramSaysSoAndStaysAsItIs) {
    auto other = execute(path, "BEGIN EXCLUSIVE");
    const std::string locked = path + ": database is locked";
    EXPECT_EQ(failureOf([&] { openProject(path); }), locked);
    EXPECT_EQ(failureOf([&] { hasQuads(database, nullptr); }), locked);
    EXPECT_EQ(failureOf([&] { addElements(database, ElementKind::Quads, 1); }), locked);
    other.reset();
    EXPECT_EQ(contentOf(database), "-0 -0 -0 -0 -0 ");
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
    closeProject(closed);
    EXPECT_EQ(
        test::takeReports(), test::Reports(6, R"(0 && "invalid database handle" at platform/dbo/dbo:40)"));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(contentOf(open), "-0 -0 -0 -0 -0 ");
}

}  // namespace
}  // namespace tiv::dbo
