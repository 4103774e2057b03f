#pragma once

#include "easel/core/Ledger.h"

#include <cstddef>

/// Memory that plug-in and host hand to each other. Contents are not initialised; every block is on
/// loan in the ledger until it is freed.

namespace easel {

/// Throws '!MEM' when there is none. A size of 0 gives a block all the same.
[[nodiscard]] void* allocateBlock(Ledger& ledger, std::size_t size);
/// Null is accepted. Throws 'PARM' for what is no block.
void freeBlock(Ledger& ledger, void* block);

} // namespace easel
