#include "shell/RegenerationWatch.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AITimerSuite.h"

namespace facetta {
namespace {

constexpr char kTimerName[] = "Facetta Live Layers";
constexpr ai::int32 kPeriod = 12; ///< of 60 a second: soon enough to look like an answer
constexpr char kToolsForgetNotifier[] = "AI Tool Clear State Notifier";

} // namespace

void RegenerationWatch::start(SPPluginRef self) {
    if (runs_) return;
    if (timer_ == nullptr)
        add(self);
    else
        ai::check(ai::suites.timer->SetTimerActive(timer_, 1));
    runs_ = true;
}

void RegenerationWatch::add(SPPluginRef self) {
    AITimerHandle timer = nullptr;
    ai::check(ai::suites.timer->AddTimer(self, kTimerName, kPeriod, &timer));
    timer_ = timer;
    AINotifierHandle notifier = nullptr; // without it the timer notices, a moment later
    const AIErr err =
        ai::suites.notifier->AddNotifier(self, "FacettaPlugin", kToolsForgetNotifier, &notifier);
    if (err == kNoErr) toolsForget_ = notifier;
}

void RegenerationWatch::stop() noexcept {
    if (runs_) ai::suites.timer->SetTimerActive(timer_, 0);
    runs_ = false;
}

} // namespace facetta
