// A fuzz target is one function that takes any bytes and never crashes or throws. The comment
// at its head describes the format of the bytes. `./dev fuzz` links it with an engine that generates them;
// otherwise replay.cpp feeds it the files of fuzz/corpus/<target>, as a test.
//
// An input that fails is build/fuzz/<target>-crash-<hash>. When the fault is fixed, the input goes into the
// corpus under a name that describes the fault. The other inputs that reached new code are in
// build/fuzz/corpus. To add those that the corpus lacks:
//
//     build/fuzz/address/bin/fuzz_codec -merge=1 fuzz/corpus/codec build/fuzz/corpus/codec
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// Throws an exception that no target catches.
inline void require(bool holds, const char* otherwise) {
    if (!holds) throw std::logic_error(otherwise);
}

}  // namespace fuzz
