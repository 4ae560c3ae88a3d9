// Assertion reports during a test. A report that the test does not take is a failure.
//
//     makeInternalData(1000, db);
//     EXPECT_EQ(takeReports(), Reports({R"(0 && "invalid prog_type" at echo/src/internal_data:120)"}));
#pragma once

#include <string>
#include <vector>

namespace test {

using Reports = std::vector<std::string>;

// The reports since the test began or since the last call, each as "<expression> at <source>:<line>".
Reports takeReports();

}  // namespace test
