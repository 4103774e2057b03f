#include "host/suites/AIArraySuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/art/Entries.h"

namespace easel {
namespace {

ai::int32 release(AIArrayRef array) { return arrayOf(array).takeBack(session()); }

} // namespace

void installArraySuite(SuiteServer& server) {
    using S = AIArraySuite;
    auto table = server.table<S>(kAIArraySuite, kAIArraySuiteVersion);
    expose<&S::Release, release>(table);
}

} // namespace easel
