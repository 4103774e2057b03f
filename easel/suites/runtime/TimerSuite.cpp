#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/runtime/Host.h"
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

AIErr getName(AITimerHandle timer, char** name) {
    required(name) = at(timer).name.data();
    return kNoErr;
}

AIErr getActive(AITimerHandle timer, AIBoolean* active) {
    required(active) = at(timer).active ? 1 : 0;
    return kNoErr;
}

AIErr setActive(AITimerHandle handle, AIBoolean active) {
    Timer& timer = at(handle);
    if (active != 0 && !timer.active) timer.next = host().clock.ticks() + timer.period;
    timer.active = active != 0;
    return kNoErr;
}

AIErr getPeriod(AITimerHandle timer, ai::int32* period) {
    required(period) = at(timer).period;
    return kNoErr;
}

AIErr setPeriod(AITimerHandle handle, ai::int32 period) {
    Timer& timer = at(handle);
    timer.period = period;
    timer.next = host().clock.ticks() + period;
    return kNoErr;
}

AIErr getPlugin(AITimerHandle timer, SPPluginRef* plugin) {
    required(plugin) = at(timer).plugin;
    return kNoErr;
}

AIErr count(ai::int32* number) {
    required(number) = host().timers.count();
    return kNoErr;
}

AIErr nth(ai::int32 index, AITimerHandle* timer) {
    required(timer) = host().timers.nth(index);
    return kNoErr;
}

} // namespace

void installTimerSuite(SuiteServer& server) {
    auto table = server.table<AITimerSuite>(kAITimerSuite, kAITimerSuiteVersion);
    expose<&AITimerSuite::AddTimer, addTimer>(table);
    expose<&AITimerSuite::GetTimerName, getName>(table);
    expose<&AITimerSuite::GetTimerActive, getActive>(table);
    expose<&AITimerSuite::SetTimerActive, setActive>(table);
    expose<&AITimerSuite::GetTimerPeriod, getPeriod>(table);
    expose<&AITimerSuite::SetTimerPeriod, setPeriod>(table);
    expose<&AITimerSuite::GetTimerPlugin, getPlugin>(table);
    expose<&AITimerSuite::CountTimers, count>(table);
    expose<&AITimerSuite::GetNthTimer, nth>(table);
}

} // namespace easel
