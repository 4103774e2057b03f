#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AITimerSuite.h"

namespace easel {
namespace {

Timer& at(AITimerHandle timer) { return host().timers.at(timer); }

AITimerHandle addTimer(SPPluginRef plugin, const char* name, ai::int32 period) {
    static_cast<void>(host().plugins.at(plugin));
    return host().timers.add({plugin, &required(name), period, host().clock.ticks() + period});
}

void setActive(AITimerHandle handle, AIBoolean active) {
    Timer& timer = at(handle);
    if (active != 0 && !timer.active) timer.next = host().clock.ticks() + timer.period;
    timer.active = active != 0;
}

} // namespace

void installTimerSuite(SuiteServer& server) {
    expose<&AITimerSuite::AddTimer, addTimer, OutputMayBeNull>(server);
    expose<&AITimerSuite::SetTimerActive, setActive>(server);
}

} // namespace easel
