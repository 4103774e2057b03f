#include "easel/runtime/Timers.h"

#include "easel/runtime/Sender.h"
#include "host/MessageNames.h"

#include <algorithm>

namespace easel {

void Timers::run(Sender& sender, const Clock& clock) {
    for (const AITimerHandle handle : handles()) {
        Timer* const timer = find(handle); // one may change another
        if (timer == nullptr || !timer->active || timer->next > clock.ticks()) continue;
        timer->next = clock.ticks() + std::max<ai::int32>(timer->period, 1);
        AITimerMessage message{};
        message.timer = handle;
        sender.send(timer->plugin, kCallerTimer, kSelectorGo, message, timer->name);
    }
}

} // namespace easel
