// Feeds files to a fuzz target, and names each one first, so that a crash has its name, too:
//
//     fuzz_codec fuzz/corpus/codec crash-0123    every file of the folder, then the one file
#include "fuzz/target.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

bool replay(const fs::path& path) try {
    std::fprintf(stderr, "%s\n", path.string().c_str());
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot be read");
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return true;
} catch (const std::exception& error) {
    std::fprintf(stderr, "failed: %s\n", error.what());
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    int files = 0, failures = 0;
    for (const fs::path path : std::vector(argv + 1, argv + argc)) {
        std::vector<fs::path> paths{path};
        if (fs::is_directory(path)) paths.assign(fs::directory_iterator(path), {});
        for (const fs::path& one : paths) {
            ++files;
            if (!replay(one)) ++failures;
        }
    }
    std::printf("%d files, %d failures\n", files, failures);
    return files > 0 && failures == 0 ? 0 : 1;
}
