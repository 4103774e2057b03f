#include "tool/drawing/Hint.h"

namespace facetta {

void showHint(Hint& hint, HintId id, ai::uint64 now) { hint = {id, true, now}; }

void hideHint(Hint& hint) {
    // The counter may still be below one lifetime shortly after the machine has started.
    hint.stamp = hint.stamp > kHintLifetime ? hint.stamp - kHintLifetime : 0;
    hint.shown = false;
}

bool isVisible(const Hint& hint, ai::uint64 now) {
    return hint.shown && now - hint.stamp < kHintLifetime;
}

} // namespace facetta
