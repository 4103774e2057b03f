#include "tool/drawing/HintTimer.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AITimerSuite.h"
#include "tool/drawing/HintDrawing.h"

namespace facetta {
namespace {

constexpr char kTimerName[] = "Facetta Hint";
constexpr ai::int32 kPeriod = 3; ///< of 60 a second: a fade of five steps

} // namespace

void HintTimer::addTimer(SPPluginRef self) {
    AITimerHandle added = nullptr;
    ai::check(ai::suites.timer->AddTimer(self, kTimerName, kPeriod, &added));
    handle_ = added;
}

void HintTimer::follow(SPPluginRef self, const Hint& hint, ai::uint64 now) {
    if (runs_ || !isVisible(hint, now)) return;
    if (handle_ == nullptr)
        addTimer(self);
    else
        ai::check(ai::suites.timer->SetTimerActive(handle_, 1));
    runs_ = true;
}

void HintTimer::stop() noexcept {
    if (runs_) ai::suites.timer->SetTimerActive(handle_, 0);
    runs_ = false;
}

bool HintTimer::isDue(AITimerHandle timer, const Hint& hint, ai::uint64 now) {
    if (timer == nullptr || timer != handle_) return false;
    runs_ = true; // even if the host was told to stop it, and could not
    const double opacity = hintOpacity(hint, now);
    if (opacity == 0.0) stop();
    return opacity < 1.0;
}

} // namespace facetta
