// The work that is measured. Google Benchmark times it for people; counted by instructions it is the same
// on every run (main.cpp).
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

using Work = std::function<void()>;

struct Operation {
    std::string name;
    // Makes ready for `runs` runs, which is not measured; the work is then done that often.
    std::function<Work(int runs)> prepare;
    // The work is counted for both numbers of runs; what one run takes is the difference over the
    // difference, so that what is done only once does not count.
    int few = 20;
    int many = 40;
};

// What is kept per object while it lives.
struct Holding {
    std::string name;
    std::function<std::shared_ptr<void>()> make;
};

// Of this program.
std::vector<Operation> operations();
std::vector<Holding> holdings();

}  // namespace bench
