// The table of every program, compared with data/programs.tsv.
#include "echo/expected_options.h"
#include "echo/src/internal_data.h"
#include "echo/src/program_classes.h"
#include "support/printing.h"
#include "support/reports.h"
#include "tiv/echo/echo_data.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace test;
using namespace tiv::echo::data;
using tiv::echo::EchoData;

// Expects the lines of these options and levels in every language.
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

// For all 32 combinations of elements: the defaults of each record, and eleven levels rotated over its fields, so
// that every field takes every level, saved and loaded.
TEST(EveryProgram, WritesTheLinesOfItsTableForAllLevelsElementsAndLanguages) {
    const int known[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, -1, 2147483647};
    for (unsigned kinds = 0; kinds <= everyKind; ++kinds) {
        const Project project(kinds);
        for (int type = 0; type < programTypeCount; ++type) {
            SCOPED_TRACE(type);
            const auto options = expectedOptions(type);
            if (type == EchoData::KURTA) continue;  // it has none
            std::vector<int> levels;
            std::ranges::transform(options, std::back_inserter(levels), &ExpectedOption::byDefault);
            EchoData echo(EchoData::ProgrammTypes(type), project.handle);
            EchoData loaded(EchoData::ProgrammTypes(type), project.handle);
            EXPECT_EQ(echo.getXMLData(), "CgAA\n");
            std::vector<std::string> visible;
            for (const ExpectedOption& o : options)  // esk shows a key that no option has
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

template <class... Programs>
std::vector<std::shared_ptr<InternalInterface>> madeForKurta(int database) {
    return {std::make_shared<Programs>(EchoData::KURTA, database)...};
}

TEST(EveryProgram, BehavesAsRecordedForAProgramTypeItDoesNotServe) {
    const Project project(everyKind);
    std::string behaviour;  // properties, lines, whether settings change the lines, what is reported
    for (const auto& table : madeForKurta<QsxData, EskData, DimvelData, KSTData, VibrData, MexoraData,
             Plax2Data, TiviloadData, RovaData>(project.handle)) {
        const auto lines = table->getTELINP(false, false, 1);
        behaviour += std::to_string(table->properties->list.size()) + ' ' + std::to_string(lines.size());
        for (const std::string& report : takeReports()) behaviour += ' ' + report;
        table->insertXMLData("ChAGAAA=\n");
        behaviour += table->getTELINP(false, false, 1) == lines ? "\n" : " inserts\n";
        takeReports();
        EXPECT_TRUE(table->getXMLData().isNull());
        EXPECT_EQ(
            table->getTELINP(true, false, 1), std::vector<QString>{"ECHO FULL NO $ no output of text lists"});
    }
    EXPECT_EQ(behaviour, R"(0 0 0 && "invalid programtypoe" at echo/src/qsx_data:121
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
