#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIAppContextSuite.h"

namespace easel {
namespace {

AIWindowRef getPlatformAppWindow() { return host().user.appWindow; }

AIAppContextHandle pushAppContext(SPPluginRef plugin) {
    static_cast<void>(host().plugins.at(plugin));
    const AIAppContextHandle context = host().contexts.push(
        plugin, kStandardUndoContext,
        session().switches.ownContextsNest ? Contexts::Nested::Yes : Contexts::Nested::No);
    session().ledger.lend(Lent::AppContext, context);
    return context;
}

void popAppContext(AIAppContextHandle context) {
    session().ledger.require(Lent::AppContext, context);
    if (host().contexts.top() != context)
        session().ledger.report("a context is popped that is not the innermost one");
    host().contexts.pop(context);
    session().ledger.takeBack(Lent::AppContext, context);
    // A context outside any message is what its plug-in did on its own, in a window or a timer.
    if (host().contexts.depth() == 0) host().collectChanges();
}

bool allowAllChanges(AIBoolean allow) { return host().contexts.allowAllChanges(allow != 0); }

} // namespace

void installContextSuite(SuiteServer& server) {
    expose<&AIAppContextSuite::GetPlatformAppWindow, getPlatformAppWindow>(server);
    expose<&AIAppContextSuite::PushAppContext, pushAppContext>(server);
    exposeEnding<&AIAppContextSuite::PopAppContext, popAppContext>(server);
    expose<&AIAppContextSuite::AllowAllChanges, allowAllChanges, OutputMayBeNull>(server);
}

} // namespace easel
