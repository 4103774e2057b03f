#include "host/References.h"

#include "host/Error.h"

namespace ai {

AppContext::AppContext(SPPluginRef self) {
    check(suites.appContext->PushAppContext(self, &context_));
}

AppContext::~AppContext() { suites.appContext->PopAppContext(context_); }

} // namespace ai
