// Feeds the files of a folder to a fuzz target. Prints the name of each file first, so that it precedes a crash:
//
//     fuzz_codec fuzz/corpus/codec
#include "fuzz/target.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argc > 1 ? argv[1] : ".")) {
        std::fprintf(stderr, "%s\n", entry.path().string().c_str());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++files;
    }
    return files > 0 ? 0 : 1;
}
