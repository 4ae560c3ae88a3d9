// A fuzz target is one function that is fed bytes of any kind and neither crashes nor lets an exception
// out. Each says at its head how it takes the bytes. `./dev fuzz` links it with an engine that invents
// them; everywhere else replay.cpp feeds it the files of fuzz/corpus/<target>, as a test.
//
// An input that fails is build/fuzz/<target>-crash-<hash>. Once it is mended, it goes into the corpus
// under a name that says what was wrong. The rest that was found worth keeping is in build/fuzz/corpus:
//
//     build/fuzz/address/bin/fuzz_codec -merge=1 fuzz/corpus/codec build/fuzz/corpus/codec
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// Throws what no target catches.
inline void require(bool holds, const char* otherwise) {
    if (!holds) throw std::logic_error(otherwise);
}

}  // namespace fuzz
