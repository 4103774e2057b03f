#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIDocumentListSuite.h"

namespace easel {
namespace {

/// Every document has one window, so that counting windows counts documents.
ai::int32 count() { return static_cast<ai::int32>(host().documents().size()); }

} // namespace

void installDocumentListSuite(SuiteServer& server) {
    using Suite = AIDocumentListSuite;
    auto table = server.table<Suite>(kAIDocumentListSuite, kAIDocumentListSuiteVersion);
    expose<&Suite::Count, count>(table);
}

} // namespace easel
