#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AITimerSuite.h"

namespace easel {
namespace {

Timer& at(AITimerHandle timer) { return host().timers.at(timer); }

AIErr addTimer(SPPluginRef plugin, const char* name, ai::int32 period, AITimerHandle* timer) {
    static_cast<void>(host().plugins.at(plugin));
    const AITimerHandle added =
        host().timers.add({plugin, &required(name), period, host().clock.ticks() + period});
    if (timer != nullptr) *timer = added;
    return kNoErr;
}

AIErr setActive(AITimerHandle handle, AIBoolean active) {
    Timer& timer = at(handle);
    if (active != 0 && !timer.active) timer.next = host().clock.ticks() + timer.period;
    timer.active = active != 0;
    return kNoErr;
}

} // namespace

void installTimerSuite(SuiteServer& server) {
    auto table = server.table<AITimerSuite>(kAITimerSuite, kAITimerSuiteVersion);
    expose<&AITimerSuite::AddTimer, addTimer>(table);
    expose<&AITimerSuite::SetTimerActive, setActive>(table);
}

} // namespace easel
