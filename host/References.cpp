#include "host/References.h"

#include "host/Error.h"

namespace ai {

AppContext::AppContext(SPPluginRef self) {
    if (suites.appContext == nullptr) throw Error{kSPSuiteNotFoundError};
    check(suites.appContext->PushAppContext(self, &context_));
}

AppContext::~AppContext() {
    // What ran meanwhile may have given the suites back: the host then ends its contexts itself.
    if (suites.appContext != nullptr) suites.appContext->PopAppContext(context_);
}

} // namespace ai
