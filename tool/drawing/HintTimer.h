#pragma once

#include "host/Handles.h"
#include "tool/drawing/Hint.h"

namespace facetta {

/// The host's timer that takes a hint off the screen: while the cursor rests no message comes that
/// would.
///
///   1. `follow` after every message of the tool starts it when there is a hint.
///   2. Each time it goes off, `isDue` tells whether the hint has to be drawn anew.
///   3. It stops itself when the hint is gone; `stop` at the end of the plug-in.
class HintTimer {
public:
    /// Throws `ai::Error`.
    void follow(SPPluginRef self, const Hint& hint, ai::uint64 now);
    void stop() noexcept;

    /// Does the message of `timer` ask for drawing the hint anew, because it fades or has gone?
    /// False for other timers. Throws `ai::Error`.
    [[nodiscard]] bool isDue(AITimerHandle timer, const Hint& hint, ai::uint64 now);

private:
    void addTimer(SPPluginRef self);

    AITimerHandle handle_ = nullptr; ///< null until there has been a hint
    bool runs_ = false;
};

} // namespace facetta
