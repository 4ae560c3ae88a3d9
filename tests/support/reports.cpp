#include "support/reports.h"

#include "tiv/smartassert/smart_assert.h"

#include <gtest/gtest.h>

namespace test {
namespace {

Reports recorded;

// Fails a test for each report that it did not take.
class ReportListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { recorded.clear(); }
    void OnTestEnd(const testing::TestInfo&) override {
        for (const std::string& report : takeReports())
            ADD_FAILURE() << "unexpected assertion report: " << report;
    }
};

}  // namespace

Reports takeReports() {
    return std::exchange(recorded, {});
}

void recordReports() {
    tiv::smartassert::setReporter([](const tiv::smartassert::Report& report) {
        recorded.push_back(std::string(report.expression) + " at " + std::string(report.source) + ":" +
                           std::to_string(report.line));
    });
    testing::UnitTest::GetInstance()->listeners().Append(new ReportListener);
}

}  // namespace test
