// The transactional object model, compared with a naive one. A byte is an operation and an allocation that fails,
// as described in tests/container/operation_sequence.h.
#include "container/operation_sequence.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::runOperations({data, size});
    fuzz::require(test::Value::alive == 0, "objects outlive their model");
    return 0;
}
