// The operations that are measured. Google Benchmark measures times; the count of instructions is the same in every
// run (main.cpp).
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

using Work = std::function<void()>;

struct Operation {
    std::string name;
    // Prepares `runs` runs, which is not measured. The result does the work of that number of runs.
    std::function<Work(int runs)> prepare;
    // The work is counted for both numbers of runs. The cost of one run is the difference of the counts divided by
    // the difference of the runs, so that work done only once is excluded.
    int few = 20;
    int many = 40;
};

// Memory kept per object.
struct Holding {
    std::string name;
    std::function<std::shared_ptr<void>()> make;
};

// The operations of this program.
std::vector<Operation> operations();
std::vector<Operation> peaks();  // the memory that one run needs at its peak is measured
std::vector<Holding> holdings();

}  // namespace bench
