#pragma once

#include "host/Types.h"

namespace facetta {

/// What a key held does to the tool, told beside the cursor.
enum class HintId : ai::int32 {
    None = 0,
    SmartGuidesEnabled = 1,
    SmartGuidesDisabled = 2,
    IncreaseAxes = 3,
    DecreaseAxes = 4,
    SpecifyAxes = 5,
    ConstrainAngle = 6,
    ConstrainOrigin = 7,
    MoveOrigin = 8,
    SpecifySector = 9,
    RepositionLayerAxes = 10,
    SetConstrainAngle = 11,
    OverrideSnapping = 12,
};

/// The hint of the tool and since when it is shown.
struct Hint {
    HintId id = HintId::None;
    bool shown = false;
    ai::uint64 stamp = 0; ///< milliseconds of the system's tick counter
};

/// A hint goes this many milliseconds after its stamp.
constexpr ai::uint64 kHintLifetime = 1250;

void showHint(Hint& hint, HintId id, ai::uint64 now);

/// Ends the hint early: its stamp moves back by its whole lifetime.
void hideHint(Hint& hint);

/// Is there a hint to be drawn at the time `now`?
[[nodiscard]] bool isVisible(const Hint& hint, ai::uint64 now);

/// The string of the plug-in's resources that holds the text of `id`.
[[nodiscard]] constexpr ai::int32 stringOf(HintId id) {
    constexpr ai::int32 kFirstHint = 17100;
    return kFirstHint + static_cast<ai::int32>(id);
}

} // namespace facetta
