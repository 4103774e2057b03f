#include "tool/drawing/Hint.h"

#include <array>
#include <cstddef>

namespace facetta {
namespace {

constexpr std::array<const char*, 13> kTexts{
    "",
    "Smart Guides Enabled",
    "Smart Guides Disabled",
    "Increase Number of Axes",
    "Decrease Number of Axes",
    "Specify Number of Axes",
    "Constrain Angle",
    "Constrain Origin",
    "Move Origin",
    "Specify Active Sector",
    "Reposition Layer Axes",
    "Set Constrain Angle",
    "Override Snapping",
};

} // namespace

void showHint(Hint& hint, HintId id, ai::uint64 now) { hint = {id, true, now}; }

void hideHint(Hint& hint) {
    // The counter may still be below one lifetime shortly after the machine has started.
    hint.stamp = hint.stamp > kHintLifetime ? hint.stamp - kHintLifetime : 0;
    hint.shown = false;
}

bool isVisible(const Hint& hint, ai::uint64 now) {
    return hint.shown && now - hint.stamp < kHintLifetime;
}

const char* hintText(HintId id) { return kTexts.at(static_cast<std::size_t>(id)); }

} // namespace facetta
