#include "bench/sample.h"
#include "bench/subjects.h"
#include "tiv/dbo/dbo.h"

#include <stdexcept>

namespace bench {
namespace {

using namespace tiv::dbo;

auto opens(int elements) {
    return [=](int) -> Work {
        const std::string path = projectFile(elements);
        return [=] { closeProject(openProject(path)); };
    };
}

auto queries(int elements) {
    return [=](int) -> Work {
        const int database = openProject(projectFile(elements));
        return [=] {
            for (const auto has : {hasQuads, hasBrics, hasBeams, hasCables, hasSprings})
                if (!has(database, nullptr)) throw std::logic_error("elements are missing");
        };
    };
}

}  // namespace

std::vector<Operation> projectOperations() {
    std::vector<Operation> result;
    for (const int elements : {10, 100'000, 10'000'000}) {
        const std::string of = ", " + std::to_string(elements) + " elements";
        result.push_back({"open and close a project" + of, opens(elements)});
        result.push_back({"five queries" + of, queries(elements)});
    }
    return result;
}

}  // namespace bench
