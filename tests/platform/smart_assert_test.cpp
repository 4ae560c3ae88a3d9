#include "tiv/smartassert/smart_assert.h"

#include <gtest/gtest.h>

namespace tiv::smartassert {
namespace {

// Returns what a report writes to stderr while `reporter` is set.
std::string errorOutput(Reporter reporter) {
    const Reporter recorder = setReporter(std::move(reporter));
    testing::internal::CaptureStderr();
    SmartAssert("0 && \"text\"", "some/source", 7);
    setReporter(recorder);
    return testing::internal::GetCapturedStderr();
}

TEST(SmartAssert, goesToStderrUnlessAReporterTakesIt) {
    constexpr const char* line = "some/source:7: assertion failed: 0 && \"text\"\n";
    EXPECT_EQ(errorOutput({}), line);
    EXPECT_EQ(errorOutput([](const Report&) { throw 1; }), line);
    EXPECT_EQ(errorOutput([](const Report&) { SmartAssert("nested", "inner", 8); }),
        "inner:8: assertion failed: nested\n");
}

}  // namespace
}  // namespace tiv::smartassert
