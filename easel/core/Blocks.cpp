#include "easel/core/Blocks.h"

#include "host/Error.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace easel {

void* allocateBlock(Ledger& ledger, std::size_t size) {
    const std::size_t bytes = std::max<std::size_t>(size, 1);
    void* const block = std::malloc(bytes);
    if (block == nullptr) throw ai::Error{kOutOfMemoryErr};
    // Nobody may count on what is in a new block; that it is always the same makes mistakes repeat.
    std::memset(block, 0xCD, bytes);
    ledger.lend(Lent::Block, block);
    return block;
}

void freeBlock(Ledger& ledger, void* block) {
    if (block == nullptr) return;
    ledger.takeBack(Lent::Block, block);
    std::free(block);
}

} // namespace easel
