#include "host/suites/SPBlocksSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Blocks.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RuntimeSuites.h"

namespace easel {
namespace {

SPErr allocate(std::size_t size, const char* /*debug*/, void** block) {
    required(block) = allocateBlock(size);
    return kNoErr;
}

SPErr release(void* block) {
    freeBlock(block);
    return kNoErr;
}

SPErr reallocate(void* block, std::size_t size, const char* /*debug*/, void** moved) {
    required(moved) = reallocateBlock(block, size);
    return kNoErr;
}

} // namespace

void installSPBlocksSuite(SuiteServer& server) {
    auto table = server.table<SPBlocksSuite>(kSPBlocksSuite, kSPBlocksSuiteVersion);
    expose<&SPBlocksSuite::AllocateBlock, allocate>(table);
    exposeEnding<&SPBlocksSuite::FreeBlock, release>(table);
    expose<&SPBlocksSuite::ReallocateBlock, reallocate>(table);
}

} // namespace easel
