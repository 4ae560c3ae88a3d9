// Every program's table against its independent statement in data/programs.tsv.
#include "echo/expected_options.h"
#include "echo/src/internal_data.h"
#include "echo/src/program_classes.h"
#include "support/printing.h"
#include "support/reports.h"
#include "tiv/echo/echo_data.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace test;
using namespace tiv::echo::data;
using namespace tiv::echo;

// The lines are those that the options promise for these levels, in every language.
void expectLines(EchoData& echo, const std::vector<ExpectedOption>& options, const std::vector<int>& levels,
    const Project& project) {
    for (const int language : {0, 1, 2}) {
        const QStringList words = language == 0 ? QStringList{"", "NEIN", "JA", "VOLL", "EXTR"}
                                                : QStringList{"", "NO", "YES", "FULL", "EXTR"};
        const QString line = language == 0 ? "ECHO OPT %1 WERT %2 $ %3" : "ECHO OPT %1 VAL %2 $ %3";
        std::vector<QString> lines;
        Reports withoutKeyword;
        for (std::size_t i = 0; i < options.size(); ++i) {
            const ExpectedOption& o = options[i];
            if (!project.has(o.needs) || levels[i] == 0) continue;
            if (levels[i] < 0 || levels[i] > 4)
                withoutKeyword.emplace_back("0 at echo/src/utils:48");
            else
                lines.push_back(line.arg(language == 0 ? o.german : o.english, words[levels[i]], o.comment));
        }
        ASSERT_EQ(echo.getTELINP(false, true, language), lines);
        ASSERT_EQ(takeReports(), withoutKeyword);
    }
}

// Every record x the defaults and every rotation of eleven levels over its fields (so every field takes
// every level) x 32 combinations of elements, with a save and load between.
TEST(EveryProgram, WritesTheLinesOfItsTableForAllLevelsElementsAndLanguages) {
    const int most = std::numeric_limits<int>::max();
    const int known[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, -1, most};
    for (unsigned kinds = 0; kinds <= everyKind; ++kinds) {
        const Project project(kinds);
        for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13}) {
            SCOPED_TRACE(type);
            const auto options = expectedOptions(type);
            std::vector<int> levels;
            for (const ExpectedOption& o : options) levels.push_back(o.byDefault);
            EchoData echo(EchoData::ProgrammTypes(type), project.handle);
            EchoData loaded(EchoData::ProgrammTypes(type), project.handle);
            EXPECT_EQ(echo.getXMLData(), "CgAA\n");
            std::vector<std::string> visible;
            for (const ExpectedOption& o : options)  // esk shows a key that is nobody's
                if (project.has(o.needs))
                    visible.push_back(o.shown == "-" ? "prop.forc" : o.shown.toStdString());
            EXPECT_EQ(makeInternalData(EchoData::ProgrammTypes(type), project.handle)->visibleKeys, visible);
            expectLines(echo, options, levels, project);
            for (std::size_t rotation = 0; rotation < std::size(known); ++rotation) {
                for (std::size_t i = 0; i < levels.size(); ++i)
                    levels[i] = known[(rotation + i) % std::size(known)];
                echo.insertXMLData(jsonSettings(options, levels));
                loaded.insertXMLData(echo.getXMLData());
                ASSERT_EQ(loaded.getXMLData(), echo.getXMLData());
                expectLines(loaded, options, levels, project);
            }
        }
    }
}

// A record may keep a field out of the inspector.
struct Sample {
    OutPutType hidden = DEFAULT_OUTPUT, shown = DEFAULT_OUTPUT;
};
struct SampleData {
    Sample prop;
};
constexpr auto describe(const Sample*) {
    return bond::record<Sample>(
        "test.Sample", bond::field("hidden", &Sample::hidden), option("shown", &Sample::shown, "Shown"));
}
constexpr auto describe(const SampleData*) {
    return bond::record<SampleData>("test.SampleData", bond::field("prop", &SampleData::prop));
}
constexpr OptionNumber sampleOptions[] = {2, 4};
constexpr ServedType sampleTypes[] = {serves<SampleData>(EchoData::KURTA, sampleOptions)};
constexpr Program sampleProgram{sampleTypes, OtherTypes::Refused};

struct SampleTable : public ProgramData {
    explicit SampleTable(int database) : ProgramData(EchoData::KURTA, database, sampleProgram) {}
};

TEST(EveryProgram, WritesAFieldWithoutALabelAndShowsTheOthers) {
    SampleTable table(Project(0).handle);
    ASSERT_EQ(table.properties->list.size(), 1u);
    EXPECT_EQ(*table.properties->list[0]->configuration.get<QString>(keywordPath), "REAC, REAK");
    table.insertXMLData(R"({"prop":{"hidden":3}})");
    EXPECT_EQ(table.getTELINP(false, false, 1), std::vector<QString>{"ECHO OPT LOAD VAL FULL $ Loads"});
}

template <class... Programs>
std::vector<std::shared_ptr<InternalInterface>> madeForKurta(int database) {
    return {std::make_shared<Programs>(EchoData::KURTA, database)...};
}

TEST(EveryProgram, KeepsItsOwnMannersForAProgramTypeItDoesNotServe) {
    const Project project(everyKind);
    std::string manners;  // properties, lines, whether settings change the lines, what is reported
    for (const auto& table : madeForKurta<QsxData, EskData, DimvelData, KSTData, VibrData, MexoraData,
             Plax2Data, TiviloadData, RovaData>(project.handle)) {
        const auto lines = table->getTELINP(false, false, 1);
        manners += std::to_string(table->properties->list.size()) + ' ' + std::to_string(lines.size());
        for (const std::string& report : takeReports()) manners += ' ' + report;
        table->insertXMLData("ChAGAAA=\n");
        manners += table->getTELINP(false, false, 1) == lines ? "\n" : " inserts\n";
        takeReports();
        EXPECT_TRUE(table->getXMLData().isNull());
        EXPECT_EQ(
            table->getTELINP(true, false, 1), std::vector<QString>{"ECHO FULL NO $ no output of text lists"});
    }
    EXPECT_EQ(manners, R"(0 0 0 && "invalid programtypoe" at echo/src/qsx_data:121
0 0 0 && "invalid programtypoe" at echo/src/esk_data:99
0 0 0 && "invalid programtypoe" at echo/src/dimvel_data:100
3 0 inserts
9 0
3 1
15 0
3 0
4 4
)");
}

}  // namespace
