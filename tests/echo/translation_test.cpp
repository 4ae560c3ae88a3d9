// German reaches every text a user sees.
#include "echo/expected_options.h"
#include "echo/src/internal_data.h"
#include "echo/src/levels.h"
#include "support/printing.h"
#include "tiv/echo/echo_data.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>

#include <gtest/gtest.h>

namespace {

using namespace test;
using tiv::echo::EchoData;

void speak(const QLocale& locale) {
    QLocale::setDefault(locale);
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

class German : public testing::Test {
    void SetUp() override { speak(QLocale(QLocale::German, QLocale::Germany)); }
    void TearDown() override { speak(QLocale::c()); }
};

TEST_F(German, TranslatesEveryLabelCommentAndLevel) {
    // These German words are the English ones.
    const QStringList same{"4", "5", "6", "7"};
    QStringList sources;
    for (const ExpectedOption& o : expectedOptions()) sources << o.label << o.comment;
    for (const char* text : {"Default output", "No output", "Normal output", "Full output",
             "Extensive output", "no output of text lists", "extensive output of text lists"})
        sources << text;
    for (const QString& source : sources)
        EXPECT_NE(EchoData::tr(source.toUtf8().constData()), source) << source.toStdString();
    EXPECT_EQ(EchoData::tr("no such text"), "no such text");
}

TEST_F(German, WritesTheCommentInTheApplicationsLanguageAndTheKeywordsInTheAskedOne) {
    const Project project(everyKind);
    EchoData echo(EchoData::ESK, project.handle);
    echo.insertXMLData(R"({"prop":{"esk_reac":3}})");
    EXPECT_EQ(
        echo.getTELINP(false, false, 1), std::vector<QString>{"ECHO OPT REAC VAL FULL $ Auflagerreaktionen"});
    EXPECT_EQ(echo.getTELINP(true, true, 0),
        std::vector<QString>{"ECHO VOLL VOLL $ erweiterte Ausgabe von Textlisten"});
    speak(QLocale::c());
    EXPECT_EQ(
        echo.getTELINP(false, false, 0), std::vector<QString>{"ECHO OPT REAK WERT VOLL $ Support reactions"});
}

TEST_F(German, ReachesLabelsAndLevelsOfProperties) {
    const Project project(everyKind);
    const auto table = tiv::echo::data::makeInternalData(EchoData::KST, project.handle);
    EXPECT_EQ(label(*table->properties, *table->properties->list[1]), "Gruppen");
    EXPECT_EQ(tiv::echo::data::offeredLevels("prop.grp")[4].text, "Erweiterte Ausgabe");
}

TEST(OfferedLevels, DependOnTheWholeKey) {
    for (const ExpectedOption& o : expectedOptions()) {
        QString offered;
        for (const auto& entry : tiv::echo::data::offeredLevels("prop." + o.field.toStdString()))
            offered += entry.value.toString();
        EXPECT_EQ(offered, o.offered) << o.field.toStdString();
    }
    EXPECT_EQ(tiv::echo::data::offeredLevels("prop.Line").size(), 5u);
    EXPECT_EQ(tiv::echo::data::offeredLevels("prop.nost")[5].text, "4");
}

}  // namespace
