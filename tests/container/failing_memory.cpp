#include "container/operation_sequence.h"

#include <cstdlib>

void* operator new(std::size_t size) {
    test::countAllocation();
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
