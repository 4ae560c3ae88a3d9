// bench                        times by Google Benchmark; --help lists its options
// bench --count                under callgrind: counts each operation, in a dump named after it
// bench --memory               the bytes kept by each object
#include "bench/operations.h"

#include <QApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstring>

namespace {

void work(const bench::Work& once, int runs) {
    for (int i = 0; i < runs; ++i) once();
}

// The first dump of an operation contains everything before it; its name marks it.
void count(const bench::Operation& operation) {
    work(operation.prepare(2), 2);  // work done once per process
    for (const int runs : {operation.few, operation.many}) {
        const bench::Work once = operation.prepare(runs);
        const std::string dump =
            std::to_string(runs) + " x " + operation.name;  // used when the dump is written
        CALLGRIND_START_INSTRUMENTATION;
        CALLGRIND_ZERO_STATS;
        work(once, runs);
        CALLGRIND_DUMP_STATS_AT(dump.c_str());
        CALLGRIND_STOP_INSTRUMENTATION;
    }
}

void measure(const bench::Holding& holding) {
    constexpr int warm = 10, kept = 200;
    std::vector<std::shared_ptr<void>> alive;
    alive.reserve(warm + kept);
    for (int i = 0; i < warm; ++i) alive.push_back(holding.make());
    const auto before = mallinfo2().uordblks;
    for (int i = 0; i < kept; ++i) alive.push_back(holding.make());
    const auto after = mallinfo2().uordblks;
    std::printf("%s\t%zu\n", holding.name.c_str(), (after - before) / kept);
}

void time(const bench::Operation& operation) {
    benchmark::RegisterBenchmark(operation.name.c_str(), [=](benchmark::State& state) {
        const bench::Work once = operation.prepare(static_cast<int>(state.max_iterations));
        for ([[maybe_unused]] auto run : state) once();
    })->Iterations(operation.many);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules("*.debug=false\nqt.qpa.*=false\ndefault=false");
    const char* mode = argc > 1 ? argv[1] : "";
    if (std::strcmp(mode, "--memory") == 0) {
        for (const auto& holding : bench::holdings()) measure(holding);
    } else if (std::strcmp(mode, "--count") == 0) {
        for (const auto& operation : bench::operations()) count(operation);
    } else {
        for (const auto& operation : bench::operations()) time(operation);
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
        benchmark::RunSpecifiedBenchmarks();
    }
    return 0;
}
