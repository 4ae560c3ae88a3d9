#include "tiv/smartassert/smart_assert.h"

#include <cstdio>
#include <utility>

namespace tiv::smartassert {
namespace {

Reporter& current = *new Reporter;  // empty: the default. Never destroyed: for a host's last calls
bool reporting = false;             // a reporter is running

int printable(std::string_view text) {
    return static_cast<int>(text.size());
}

void print(const Report& report) {
    std::fprintf(stderr,
        "%.*s:%d: assertion failed: %.*s\n",
        printable(report.source),
        report.source.data(),
        report.line,
        printable(report.expression),
        report.expression.data());
}

}  // namespace

Reporter setReporter(Reporter reporter) {
    return std::exchange(current, std::move(reporter));
}

SmartAssert::SmartAssert(std::string_view expression, std::string_view source, int line) noexcept {
    const Report report{expression, source, line};
    if (reporting || !current) {
        print(report);
        return;
    }
    reporting = true;
    try {
        const Reporter reporter = current;  // a copy: it may set another one
        reporter(report);
    } catch (...) {
        print(report);
    }
    reporting = false;
}

}  // namespace tiv::smartassert
