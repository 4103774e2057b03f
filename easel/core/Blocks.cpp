#include "easel/core/Blocks.h"

#include "host/Error.h"

#include <algorithm>
#include <cstdlib>

namespace easel {

void* allocateBlock(Ledger& ledger, std::size_t size) {
    void* const block = std::malloc(std::max<std::size_t>(size, 1));
    if (block == nullptr) throw ai::Error{kOutOfMemoryErr};
    ledger.lend(Lent::Block, block);
    return block;
}

void freeBlock(Ledger& ledger, void* block) {
    if (block == nullptr) return;
    ledger.takeBack(Lent::Block, block);
    std::free(block);
}

} // namespace easel
