#pragma once

#include "host/Types.h"
#include "tool/Preferences.h"

namespace facetta {

/// The top left corner of the on-canvas dialog, in view pixels, y down.
struct DialogPosition {
    ai::int32 x = kNeverPlaced;
    ai::int32 y = kNeverPlaced;

    bool operator==(const DialogPosition&) const = default;
};

constexpr ai::int32 kDialogWidth = 192;
constexpr ai::int32 kDialogHeight = 102;

/// The dialog in the middle of `view` (view pixels). The view's own left and top are not added: the
/// place is remembered as a distance from them, so that it means the same in another window.
[[nodiscard]] DialogPosition centredIn(const AIRect& view);

/// `dialog` pulled into `view`, or centred when it has never been placed.
[[nodiscard]] DialogPosition placedIn(const AIRect& view, DialogPosition dialog);

} // namespace facetta
