// Every program's table against its independent statement in data/programs.tsv.
#include "echo/expected_options.h"
#include "echo/src/internal_data.h"
#include "echo/src/program_classes.h"
#include "support/printing.h"
#include "support/reports.h"
#include "tiv/echo/echo_data.h"

#include <gtest/gtest.h>

namespace {

using namespace test;
using tiv::echo::EchoData;

EchoData::ProgrammTypes programType(int type) {
    return static_cast<EchoData::ProgrammTypes>(type);
}

constexpr int allTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13};

// The lines that the expected table promises; levels without a keyword are counted, not written.
std::vector<QString> expectedLines(const std::vector<ExpectedOption>& options, const std::vector<int>& levels,
    const Project& project, int language, std::size_t* reports) {
    const QStringList german{"", "NEIN", "JA", "VOLL", "EXTR"};
    const QStringList english{"", "NO", "YES", "FULL", "EXTR"};
    std::vector<QString> lines;
    for (std::size_t i = 0; i < options.size(); ++i) {
        const ExpectedOption& o = options[i];
        if (!project.has(o.needs) || levels[i] == 0) continue;
        if (levels[i] < 0 || levels[i] > 4)
            ++*reports;
        else if (language == 0)
            lines.push_back("ECHO OPT " + o.german + " WERT " + german[levels[i]] + " $ " + o.comment);
        else
            lines.push_back("ECHO OPT " + o.english + " VAL " + english[levels[i]] + " $ " + o.comment);
    }
    return lines;
}

// Every record x every rotation of the levels 0 to 8 over its fields (so every field takes every level)
// x 32 combinations of elements x two languages, with a save and load between.
TEST(EveryProgram, WritesTheLinesOfItsTableForEveryLevelElementsAndLanguage) {
    int combinations = 0;
    for (unsigned kinds = 0; kinds <= everyKind; ++kinds) {
        const Project project(kinds);
        for (const int type : allTypes) {
            const auto options = expectedOptions(type);
            EchoData echo(programType(type), project.handle);
            for (int rotation = 0; rotation < 9; ++rotation) {
                std::vector<int> levels(options.size());
                for (std::size_t i = 0; i < levels.size(); ++i)
                    levels[i] = (rotation + static_cast<int>(i)) % 9;
                echo.insertXMLData(jsonSettings(options, levels));
                const QString saved = echo.getXMLData();
                EchoData loaded(programType(type), project.handle);
                loaded.insertXMLData(saved);
                ASSERT_EQ(loaded.getXMLData(), saved) << "type " << type;
                for (const int language : {0, 1}) {
                    std::size_t reports = 0;
                    const auto expected = expectedLines(options, levels, project, language, &reports);
                    ASSERT_EQ(loaded.getTELINP(false, true, language), expected) << "type " << type;
                    ASSERT_EQ(takeReports(), Reports(reports, "0 at echo/src/utils:48"));
                    ++combinations;
                }
            }
        }
    }
    std::cout << "    " << combinations << " combinations\n";
    RecordProperty("combinations", combinations);
}

TEST(EveryProgram, BeginsWithItsDefaultsAndShowsItsOptionsWithLabelsAndLevels) {
    for (unsigned kinds = 0; kinds <= everyKind; ++kinds) {
        const Project project(kinds);
        for (const int type : allTypes) {
            SCOPED_TRACE(type);
            const auto options = expectedOptions(type);
            std::vector<int> defaults;
            std::vector<std::string> visible;
            for (const ExpectedOption& o : options) {
                defaults.push_back(o.byDefault);
                const QString key =
                    o.shown == "-" ? QString("prop.forc") : o.shown;  // esk lists a key of nobody
                if (project.has(o.needs)) visible.push_back(key.toStdString());
            }
            std::size_t reports = 0;
            EchoData echo(programType(type), project.handle);
            EXPECT_EQ(
                echo.getTELINP(false, false, 1), expectedLines(options, defaults, project, 1, &reports));
            EXPECT_EQ(echo.getXMLData(), "CgAA\n");

            const auto table = tiv::echo::data::makeInternalData(programType(type), project.handle);
            EXPECT_EQ(table->visibleKeys, visible);
            ASSERT_EQ(table->properties->list.size(), options.size());
            for (std::size_t i = 0; i < options.size(); ++i) {
                const auto& property = *table->properties->list[i];
                EXPECT_EQ(property.key, "prop." + options[i].field.toStdString());
                EXPECT_EQ(label(*table->properties, property), options[i].label);
                EXPECT_STREQ(property.category, "");
                EXPECT_EQ(defaultValue(property), options[i].byDefault);
            }
        }
    }
}

// The rows differ in what a class does that was made for a program type which is not its own.
struct OtherType {
    const char* name;
    std::shared_ptr<tiv::echo::data::InternalInterface> (*make)(int database);
    std::size_t properties;
    std::size_t lines;  // of a new table
    bool inserts;
    Reports reports;
};

template <class Program>
std::shared_ptr<tiv::echo::data::InternalInterface> madeForKurta(int database) {
    return std::make_shared<Program>(EchoData::KURTA, database);
}

TEST(EveryProgram, KeepsItsOwnMannersForAProgramTypeItDoesNotServe) {
    using namespace tiv::echo::data;
    const auto refused = [](const char* site) {
        return Reports{std::string(R"(0 && "invalid programtypoe" at echo/src/)") + site};
    };
    const OtherType rows[] = {
        {"qsx", madeForKurta<QsxData>, 0, 0, false, refused("qsx_data:121")},
        {"esk", madeForKurta<EskData>, 0, 0, false, refused("esk_data:99")},
        {"dimvel", madeForKurta<DimvelData>, 0, 0, false, refused("dimvel_data:100")},
        {"kst", madeForKurta<KSTData>, 3, 0, true, {}},
        {"vibr", madeForKurta<VibrData>, 9, 0, false, {}},
        {"mexora", madeForKurta<MexoraData>, 3, 1, false, {}},
        {"plax2", madeForKurta<Plax2Data>, 15, 0, false, {}},
        {"tiviload", madeForKurta<TiviloadData>, 3, 0, false, {}},
        {"rova", madeForKurta<RovaData>, 4, 4, false, {}},
    };
    const Project project(everyKind);
    for (const OtherType& row : rows) {
        SCOPED_TRACE(row.name);
        const auto table = row.make(project.handle);
        EXPECT_EQ(table->properties->list.size(), row.properties);
        EXPECT_TRUE(table->getXMLData().isNull());
        EXPECT_EQ(table->getTELINP(false, false, 1).size(), row.lines);
        EXPECT_EQ(takeReports(), row.reports);
        table->insertXMLData("ChAGAAA=\n");
        const auto after = table->getTELINP(false, false, 1);
        EXPECT_EQ(after.size(), row.inserts ? 1 : row.lines);
        takeReports();
        EXPECT_EQ(
            table->getTELINP(true, false, 1), std::vector<QString>{"ECHO FULL NO $ no output of text lists"});
    }
}

TEST(EveryProgram, ReadsASettingsStringOfAnotherProgramAsItsOwnRecord) {
    const Project project(everyKind);
    EchoData elPl(EchoData::QSX_ELPL, project.handle);
    elPl.insertXMLData(R"({"prop":{"sect":3,"usep":2}})");
    EchoData bruc(EchoData::QSX_BRUC, project.handle);
    bruc.insertXMLData(elPl.getXMLData());
    EXPECT_EQ(bruc.getTELINP(false, false, 1), std::vector<QString>{"ECHO OPT SHEA VAL FULL $ Shear design"});
}

}  // namespace
