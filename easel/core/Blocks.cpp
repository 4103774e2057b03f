#include "easel/core/Blocks.h"

#include "easel/core/Ledger.h"
#include "host/Error.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace easel {
namespace {

/// Stands before each block and keeps what follows it aligned for every type.
struct alignas(std::max_align_t) Header {
    std::size_t size;
};

Header* headerOf(void* block) { return static_cast<Header*>(block) - 1; }

} // namespace

void* allocateBlock(std::size_t size) {
    if (size > std::numeric_limits<std::size_t>::max() - sizeof(Header))
        throw ai::Error{kOutOfMemoryErr};
    auto* const header = static_cast<Header*>(std::malloc(sizeof(Header) + size));
    if (header == nullptr) throw ai::Error{kOutOfMemoryErr};
    header->size = size;
    ledger().lend(Lent::Block, header + 1);
    return header + 1;
}

void freeBlock(void* block) {
    if (block == nullptr) return;
    ledger().takeBack(Lent::Block, block);
    std::free(headerOf(block));
}

void* reallocateBlock(void* block, std::size_t size) {
    if (block == nullptr) return allocateBlock(size);
    const std::size_t kept = std::min(blockSize(block), size);
    void* const moved = allocateBlock(size);
    std::memcpy(moved, block, kept);
    freeBlock(block);
    return moved;
}

std::size_t blockSize(const void* block) {
    ledger().require(Lent::Block, block);
    return (static_cast<const Header*>(block) - 1)->size;
}

} // namespace easel
