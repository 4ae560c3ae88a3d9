/// \file
/// Reports of programming errors that the program survives. The code that finds one reports it and continues
/// with a safe result. A host may handle the reports:
///
///     if (type > ROVA) {
///         SmartAssert(R"(0 && "invalid prog_type")", "echo/src/internal_data", 120);
///         return dummy;
///     }
///
///     const Reporter previous = setReporter([&](const Report& report) { log << report.expression; });
///
/// Source and line are fixed data of the reporting code, so that a report is the same from every build. All
/// calls come from one thread.
#pragma once

#if (defined(_MSVC_LANG) ? _MSVC_LANG : __cplusplus) < 201703L
#error "tiv_echotable needs C++17: compile with -std=c++17 or later."
#endif

#include <tiv/smartassert/export.h>

#include <functional>
#include <string_view>

/// Assertion reports.
namespace tiv::smartassert {

/// One failed assertion. The texts live as long as the call of the reporter.
struct Report {
    std::string_view expression;  ///< `0 && "invalid prog_type"`
    std::string_view source;      ///< `echo/src/internal_data`, without a file's ending
    int line;                     ///< 120
};

/// Handles a report.
using Reporter = std::function<void(const Report&)>;

/// Sets the function that handles all reports from now on.
/// \param reporter may set another one. It is not called for a report made while it runs, and its exceptions
///     are ignored; in both cases the report goes to stderr instead. An empty one restores the default: one
///     line on stderr, `echo/src/internal_data:120: assertion failed: 0 && "invalid prog_type"`.
/// \returns the previous reporter; an empty one for the default.
TIV_SMARTASSERT_EXPORT Reporter setReporter(Reporter reporter);

/// Constructing one reports a failed assertion and returns.
class TIV_SMARTASSERT_EXPORT SmartAssert {
 public:
    /// \param expression that did not hold.
    /// \param source where: a path without an ending, the same in every build.
    /// \param line in that source, the same in every build.
    SmartAssert(std::string_view expression, std::string_view source, int line) noexcept;
};

}  // namespace tiv::smartassert
