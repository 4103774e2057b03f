#pragma once

#include "host/Handles.h"

namespace facetta {

/// How the plug-in hears that live layers which had to wait can be regenerated: a mouse button was
/// down, or the host's pen was drawing. No message of the host's tells that either is over, but for
/// the one with which it has tools forget what they were drawing; so a timer asks again.
///
/// Timer and registration are made when something waits for the first time.
class RegenerationWatch {
public:
    /// Throws `ai::Error`.
    void start(SPPluginRef self);
    void stop() noexcept;

    [[nodiscard]] bool runs() const noexcept { return runs_; }
    [[nodiscard]] bool isIts(AITimerHandle timer) const noexcept {
        return timer != nullptr && timer == timer_;
    }
    /// Does the notification tell that the pen forgets its path?
    [[nodiscard]] bool penIsDone(AINotifierHandle notifier) const noexcept {
        return notifier != nullptr && notifier == toolsForget_;
    }

private:
    void add(SPPluginRef self);

    AITimerHandle timer_ = nullptr;
    AINotifierHandle toolsForget_ = nullptr;
    bool runs_ = false;
};

} // namespace facetta
