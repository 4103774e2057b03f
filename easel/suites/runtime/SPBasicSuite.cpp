#include "host/suites/SPBasicSuite.h"

#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/SPBlocksSuite.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace easel {
namespace {

SPErr acquireSuite(const char* name, ai::int32 version, const void** functions) {
    const bool refused = host().settings.strictAccessMessages && host().plugins.inAccessMessage() &&
                         std::strcmp(&required(name), kSPBlocksSuite) != 0;
    if (refused) {
        required(functions) = nullptr;
        return kSPSuiteNotFoundError;
    }
    const SPErr result = session().suites.acquire(name, version, functions);
    if (result == kNoErr) session().ledger.lend(Lent::Suite, *functions);
    return result;
}

SPErr releaseSuite(const char* name, ai::int32 version) {
    const void* const functions = session().suites.functions(name, version);
    const SPErr result = session().suites.release(name, version);
    if (result == kNoErr) session().ledger.takeBack(Lent::Suite, functions);
    return result;
}

/// A size of 0 gives a block all the same.
void* allocate(std::size_t size) {
    const std::size_t bytes = std::max<std::size_t>(size, 1);
    void* const block = std::malloc(bytes);
    if (block == nullptr) throw ai::Error{kOutOfMemoryErr};
    // Nobody may count on what is in a new block; that it is always the same makes mistakes repeat.
    std::memset(block, 0xCD, bytes);
    session().ledger.lend(Lent::Block, block);
    return block;
}

void release(void* block) {
    if (block == nullptr) return;
    session().ledger.takeBack(Lent::Block, block);
    std::free(block);
}

} // namespace

void installSPBasicSuite(SuiteServer& server) {
    auto table = server.table<SPBasicSuite>(kSPBasicSuite, kSPBasicSuiteVersion);
    expose<&SPBasicSuite::AcquireSuite, acquireSuite>(table);
    exposeEnding<&SPBasicSuite::ReleaseSuite, releaseSuite>(table);
    expose<&SPBasicSuite::AllocateBlock, allocate>(table);
    exposeEnding<&SPBasicSuite::FreeBlock, release>(table);
}

} // namespace easel
