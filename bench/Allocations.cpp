#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

struct Counter {
    bool (*isOwn)() = nullptr;
    std::uint64_t count = 0;
};

/// The operators below are plain functions, which can carry nothing with them.
Counter& counter() noexcept {
    static Counter instance;
    return instance;
}

} // namespace

// They serve the whole program, the library of the plug-in included.

void* operator new(std::size_t size) {
    Counter& taken = counter();
    if (taken.isOwn != nullptr && taken.isOwn()) ++taken.count;
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void operator delete(void* block) noexcept { std::free(block); }

void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace facetta::bench {

void countAllocations(bool (*isOwn)()) { counter() = {.isOwn = isOwn, .count = 0}; }

std::uint64_t allocationCount() { return counter().count; }

} // namespace facetta::bench
