#include "easel/core/Arguments.h"
#include "easel/core/Blocks.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIBlockSuite.h"

namespace easel {
namespace {

AIErr allocate(std::size_t size, void** block) {
    required(block) = allocateBlock(size);
    return kNoErr;
}

AIErr dispose(void* block) {
    freeBlock(block);
    return kNoErr;
}

AIErr reallocate(void* block, std::size_t size, void** moved) {
    required(moved) = reallocateBlock(block, size);
    return kNoErr;
}

AIErr sizeOf(void* block, std::size_t* size) {
    required(size) = blockSize(block);
    return kNoErr;
}

} // namespace

void installBlockSuite(SuiteServer& server) {
    auto table = server.table<AIBlockSuite>(kAIBlockSuite, kAIBlockSuiteVersion);
    expose<&AIBlockSuite::AllocateBlock, allocate>(table);
    exposeEnding<&AIBlockSuite::DisposeBlock, dispose>(table);
    expose<&AIBlockSuite::ReallocateBlock, reallocate>(table);
    expose<&AIBlockSuite::SizeOfMemoryBlock, sizeOf>(table);
}

} // namespace easel
