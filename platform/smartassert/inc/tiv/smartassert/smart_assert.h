// Reports of programming errors that the program survives. The code that finds one reports it and goes
// on with a safe result; a host decides what becomes of reports:
//
//     if (type > ROVA) {
//         SmartAssert(R"(0 && "invalid prog_type")", "echo/src/internal_data", 120);
//         return dummy;
//     }
//
//     const Reporter previous = setReporter([&](const Report& report) { log << report.expression; });
//
// Source and line are data that the reporting code chooses and keeps, so that a report reads the same
// from every build. Every call comes from one thread.
#pragma once

#include <tiv/smartassert/export.h>

#include <functional>
#include <string_view>

namespace tiv::smartassert {

// The texts live as long as the call of the reporter.
struct Report {
    std::string_view expression;  // 0 && "invalid prog_type"
    std::string_view source;      // echo/src/internal_data
    int line;                     // 120
};

using Reporter = std::function<void(const Report&)>;

// Takes all reports from now on; returns the previous reporter. An empty one brings back the default,
// which is returned as an empty one, too: one line on stderr,
// `echo/src/internal_data:120: assertion failed: 0 && "invalid prog_type"`.
// A reporter may set another one. It is not called for a report made while it runs, and what it
// throws is dropped; in both cases the report goes to stderr instead.
TIV_SMARTASSERT_EXPORT Reporter setReporter(Reporter reporter);

// Constructing one reports a failed assertion and returns.
class TIV_SMARTASSERT_EXPORT SmartAssert {
 public:
    SmartAssert(std::string_view expression, std::string_view source, int line) noexcept;
};

}  // namespace tiv::smartassert
