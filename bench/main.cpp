// bench                        times by Google Benchmark; --help lists its options
// bench --count [TEXT]         under callgrind: counts each operation, or those with TEXT in their names, in a dump
//                              named after it
// bench --memory               the bytes kept by each object, and those needed at the peak of a large operation
#include "bench/operations.h"

#include <QApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/resource.h>
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
    std::printf("%s: bytes kept\t%zu\n", holding.name.c_str(), (after - before) / kept);
}

// The most memory that this process has used so far, in bytes.
long mostMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024;
}

void measurePeak(const bench::Operation& operation) {
    const bench::Work once = operation.prepare(1);
    const long before = mostMemory();
    once();
    std::printf("%s: bytes at the peak\t%ld\n", operation.name.c_str(), mostMemory() - before);
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
    const char* only = argc > 2 ? argv[2] : "";
    if (std::strcmp(mode, "--memory") == 0) {
        mallopt(M_MMAP_THRESHOLD, 128 * 1024);  // fixed, so that images of windows are never counted
        for (const auto& operation : bench::peaks()) measurePeak(operation);
        for (const auto& holding : bench::holdings()) measure(holding);
    } else if (std::strcmp(mode, "--count") == 0) {
        for (const auto& operation : bench::operations())
            if (operation.name.find(only) != std::string::npos) count(operation);
    } else {
        for (const auto& operation : bench::operations()) time(operation);
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
        benchmark::RunSpecifiedBenchmarks();
    }
    return 0;
}
