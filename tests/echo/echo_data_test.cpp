// The public interface, as a host sees it.
#include "tiv/echo/echo_data.h"
#include "bond/exceptions.h"
#include "echo/expected_options.h"
#include "echo/src/internal_data.h"
#include "support/failure.h"
#include "support/printing.h"
#include "support/reports.h"
#include "support/session.h"
#include "support/table.h"

#include <gmock/gmock.h>

#include <boost/signals2/connection.hpp>

namespace {

using namespace test;
using tiv::echo::EchoData;
using tiv::echo::data::programTypeCount;

const Project everything(everyKind);

TEST(EchoData, WithoutOptionsReturnsNothingAndReportsOnlyAnUnknownType) {
    for (const unsigned type : {12U, unsigned{programTypeCount}, 0xFFFFFFFF}) {
        EchoData echo(static_cast<EchoData::ProgrammTypes>(type), everything.handle);
        const Reports invalid{R"(0 && "invalid prog_type" at echo/src/internal_data:120)"};
        EXPECT_EQ(takeReports(), type == 12 ? Reports() : invalid) << type;
        echo.insertXMLData("{");
        EXPECT_TRUE(echo.getXMLData().isNull());
        EXPECT_TRUE(echo.getTELINP(true, true, 1).empty() && echo.getTELINP(false, false, 0).empty());
    }
}

TEST(SettingsString, IsReadAsAWholeAndReportedOnceOrChangesNothing) {
    const auto table = tiv::echo::data::makeInternalData(EchoData::ESK, everything.handle);
    int reported = 0;
    table->model->onChange([&](const auto&) { ++reported; });
    for (const QStringList& row : test::table("settings_strings.tsv")) {
        SCOPED_TRACE(row[0].toStdString());
        table->insertXMLData(R"({"prop":{"load":1}})");
        const QString before = table->getXMLData(), text = QString(row[0]).replace("\\n", "\n");
        reported = 0;
        const std::string failure = failureOf<bond::Exception>([&] { table->insertXMLData(text); });
        const QString saved = table->getXMLData();
        EXPECT_EQ(failure.empty() ? saved : QString::fromStdString(failure) + '\n', row[1] + '\n');
        EXPECT_EQ(saved == before, !failure.empty());
        EXPECT_EQ(reported, failure.empty() ? 1 : 0);
    }
    const tiv::container::model::Transaction open(*table->model);
    EXPECT_THAT(
        failureOf([&] { table->insertXMLData("*"); }), testing::StartsWith("Transaction in progress"));
}

TEST(EchoData, TranslatesEveryLabelCommentAndLevel) {
    QStringList sources{"Default output", "No output", "Normal output", "Full output", "Extensive output",
        "no output of text lists", "extensive output of text lists"};
    for (int type = 0; type < programTypeCount; ++type)
        for (const ExpectedOption& o : expectedOptions(type)) sources << o.label << o.comment;
    setGerman(true);
    for (const QString& source : sources)
        EXPECT_NE(EchoData::tr(source.toUtf8().constData()), source) << source;
    EXPECT_EQ(EchoData::tr("no such text"), "no such text");
    setGerman(false);
    EXPECT_EQ(EchoData::tr("Loads"), "Loads");
}

}  // namespace
