#include "easel/core/Arguments.h"
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

bool allowAllChanges(AIBoolean allow) {
    const bool before = host().contexts.allowAllChanges();
    host().contexts.setAllowAllChanges(allow != 0);
    return before;
}

} // namespace

void installContextSuite(SuiteServer& server) {
    auto table = server.table<AIAppContextSuite>(kAIAppContextSuite, kAIAppContextSuiteVersion);
    expose<&AIAppContextSuite::GetPlatformAppWindow, getPlatformAppWindow>(table);
    expose<&AIAppContextSuite::PushAppContext, pushAppContext>(table);
    exposeEnding<&AIAppContextSuite::PopAppContext, popAppContext>(table);
    expose<&AIAppContextSuite::AllowAllChanges, allowAllChanges, OutputMayBeNull>(table);
}

} // namespace easel
