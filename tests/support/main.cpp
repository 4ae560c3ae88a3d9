// The program of the tests. Records assertion reports, and fails a test for each that it did not take.
#include "support/reports.h"

#include "tiv/smartassert/smart_assert.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

test::Reports recorded;

void record(const tiv::smartassert::Report& report) {
    recorded.push_back(std::string(report.expression) + " at " + std::string(report.source) + ":" +
                       std::to_string(report.line));
}

class ReportListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { recorded.clear(); }
    void OnTestEnd(const testing::TestInfo&) override {
        for (const std::string& report : test::takeReports())
            ADD_FAILURE() << "unexpected assertion report: " << report;
    }
};

// Qt warnings are failures, except known warnings of the offscreen platform.
void onQtMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    const bool ofThePlatform = text.startsWith(QLatin1String("This plugin does not support")) ||
                               text.startsWith(QLatin1String("QStandardPaths:"));
    if (!ofThePlatform) ADD_FAILURE() << "message of Qt: " << text.toStdString();
}

}  // namespace

test::Reports test::takeReports() {
    return std::exchange(recorded, {});
}

int main(int argc, char** argv) {
    qInstallMessageHandler(onQtMessage);
    qunsetenv("LANGUAGE");
    qputenv("LC_ALL", "C");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    tiv::smartassert::setReporter(record);
    testing::UnitTest::GetInstance()->listeners().Append(new ReportListener);
    return RUN_ALL_TESTS();
}
