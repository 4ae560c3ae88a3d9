// The public interface, as a host sees it.
#include "tiv/echo/echo_data.h"
#include "bond/exceptions.h"
#include "echo/expected_options.h"
#include "echo/src/internal_data.h"
#include "support/printing.h"
#include "support/reports.h"

#include <gtest/gtest.h>

namespace {

using namespace test;
using tiv::echo::EchoData;
using Lines = std::vector<QString>;

const Project everything(everyKind);

TEST(EchoData, WithoutOptionsAnswersNothingAndReportsOnlyAnUnknownType) {
    const Reports invalid{R"(0 && "invalid prog_type" at echo/src/internal_data:120)"};
    const struct {
        std::uint32_t type;
        Reports reports;
    } rows[] = {{12, {}}, {14, invalid}, {0xFFFFFFFF, invalid}};
    for (const auto& row : rows) {
        EchoData echo(static_cast<EchoData::ProgrammTypes>(row.type), everything.handle);
        EXPECT_EQ(takeReports(), row.reports) << row.type;
        echo.insertXMLData("{");
        EXPECT_TRUE(echo.getXMLData().isNull());
        EXPECT_TRUE(echo.getTELINP(true, true, 1).empty());
        EXPECT_TRUE(echo.getTELINP(false, false, 0).empty());
    }
}

TEST(EchoData, WithAnUnknownDatabaseStillServesOptionsThatNeedNoElements) {
    EchoData echo(EchoData::PLAX2, -1);
    EXPECT_EQ(takeReports().size(), 5u);  // one per kind of element
    echo.insertXMLData(R"({"prop":{"beam":3,"mat":3}})");
    EXPECT_EQ(echo.getTELINP(false, false, 1), Lines{"ECHO OPT MAT VAL FULL $ Material constants"});
}

TEST(AllOptionsLine, StandsAloneWhateverIsStored) {
    EchoData echo(EchoData::ESK, everything.handle);
    echo.insertXMLData("ChAGAAA=");
    EXPECT_EQ(echo.getTELINP(true, false, 0), Lines{"ECHO VOLL NEIN $ no output of text lists"});
    EXPECT_EQ(echo.getTELINP(true, true, 0), Lines{"ECHO VOLL VOLL $ extensive output of text lists"});
    EXPECT_EQ(echo.getTELINP(true, false, 1), Lines{"ECHO FULL NO $ no output of text lists"});
    EXPECT_EQ(echo.getTELINP(true, true, 2), Lines{"ECHO FULL FULL $ extensive output of text lists"});
}

TEST(SettingsString, IsReadInEitherForm) {
    const struct {
        const char* text;
        const char* saved;  // what getXMLData then gives
    } rows[] = {
        {"CgAA", "CgAA\n"},
        {"ChAGAAA=\n", "ChAGAAA=\n"},
        {"\n\nChAGAAA=\n\n", "ChAGAAA=\n"},
        {" C h A G-AA-A=", "ChAGAAA=\n"},  // characters outside base64 are skipped
        {R"({"prop":{"full":3}})", "ChAGAAA=\n"},
        {R"({"prop":{"full":"FULL_OUTPUT","grp":99}})", "ChAGMMYBAAA=\n"},
        {"", "CgAA\n"},  // no record and two records reset
        {"\n\n\n", "CgAA\n"},
        {"ChAGAAA=\nChAGAAA=\n", "CgAA\n"},
        {"{}\n{\"prop\":{\"full\":3}}", "CgAA\n"},
    };
    for (const auto& row : rows) {
        EchoData echo(EchoData::ESK, everything.handle);
        echo.insertXMLData(R"({"prop":{"load":1}})");
        echo.insertXMLData(row.text);
        EXPECT_EQ(echo.getXMLData(), row.saved) << row.text;
    }
}

TEST(SettingsString, ThatCannotBeReadThrowsAndChangesNothing) {
    const struct {
        const char* text;
        const char* what;
    } rows[] = {
        {"ChAG", "Read out of bounds: 1 bytes requested, offset: 3, length: 3"},
        {"*", "Read out of bounds: 1 bytes requested, offset: 0, length: 0"},
        {R"( {"prop":{"full":3}})", nullptr},  // a blank first: base64, and not a record
        {R"({"prop":)", "JSON parser error: Invalid value. at offset 8"},
        {"{\"a\":1,}", "JSON parser error: Missing a name for object member. at offset 7"},
        {"CgAA\n{}\nCh", "Read out of bounds: 1 bytes requested, offset: 0, length: 0"},
        {"ChAGzQkCAv////8PAAA=", nullptr},  // a count that no input backs
    };
    const auto table = tiv::echo::data::makeInternalData(EchoData::ESK, everything.handle);
    table->insertXMLData("ChAGAAA=");
    int told = 0;
    table->model->onChange([&](const auto&) { ++told; });
    for (const auto& row : rows) {
        try {
            table->insertXMLData(row.text);
            ADD_FAILURE() << row.text << " was read";
        } catch (const bond::Exception& problem) {
            EXPECT_STREQ(problem.what(), row.what ? row.what : problem.what()) << row.text;
        }
        EXPECT_EQ(table->getXMLData(), "ChAGAAA=\n") << row.text;
    }
    EXPECT_EQ(told, 0);
    table->insertXMLData("CgAA");
    EXPECT_EQ(told, 1);
}

TEST(SettingsString, WaitsForAnOpenTransaction) {
    const auto table = tiv::echo::data::makeInternalData(EchoData::KST, everything.handle);
    const tiv::container::model::Transaction open(*table->model);
    EXPECT_THROW(table->insertXMLData("CgAA"), std::runtime_error);
}

TEST(Levels, OutsideTheKnownRangeSurviveAndAreReportedInsteadOfWritten) {
    EchoData echo(EchoData::ESK_EIGE, everything.handle);
    const QString text = R"({"prop":{"full":-1,"eige":2147483647,"grp":4}})";
    echo.insertXMLData(text);
    EchoData copy(EchoData::ESK_EIGE, everything.handle);
    copy.insertXMLData(echo.getXMLData());
    EXPECT_EQ(copy.getXMLData(), echo.getXMLData());
    EXPECT_EQ(copy.getTELINP(false, false, 0), Lines{"ECHO OPT GRUP WERT EXTR $ Group parameters"});
    EXPECT_EQ(takeReports(), Reports(2, "0 at echo/src/utils:48"));
}

}  // namespace
