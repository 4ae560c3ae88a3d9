// Loads a library into a running Qt program, once, and prints the time:  bench_load libtiv_echotable
#include <QApplication>
#include <QElapsedTimer>
#include <QLibrary>

#include <valgrind/callgrind.h>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLibrary library(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    QElapsedTimer timer;
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    timer.start();
    const bool loaded = library.load();
    const qint64 taken = timer.nsecsElapsed();
    CALLGRIND_DUMP_STATS_AT("1 x load the library");
    CALLGRIND_STOP_INSTRUMENTATION;
    if (!loaded) std::fprintf(stderr, "%s\n", qPrintable(library.errorString()));
    std::printf("load the library\t%lld\n", static_cast<long long>(taken / 1000));
    return loaded ? 0 : 1;
}
