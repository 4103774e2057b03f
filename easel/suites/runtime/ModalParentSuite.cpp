#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIModalParentSuite.h"

namespace easel {
namespace {

/// Easel's alerts are recorded, not shown, so that it matters to none of them who owns it; but a
/// plug-in that sets an owner and leaves it there is at fault.
void setParent(const AIWindowRef& window) { host().user.modalParents.push_back(window); }

void removeParent() {
    if (host().user.modalParents.empty()) throw ai::Error{kBadParameterErr};
    host().user.modalParents.pop_back();
}

} // namespace

void installModalParentSuite(SuiteServer& server) {
    expose<&AIModalParentSuite::SetParent, setParent>(server);
    expose<&AIModalParentSuite::RemoveParent, removeParent>(server);
}

} // namespace easel
