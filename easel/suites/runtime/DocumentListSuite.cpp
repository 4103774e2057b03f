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
    expose<&AIDocumentListSuite::Count, count>(server);
}

} // namespace easel
