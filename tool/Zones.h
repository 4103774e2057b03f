#pragma once

/// What lies under the cursor, and how the user is told: by the cursor's shape, by what lights up
/// and by hints. All functions throw `ai::Error`.

#include "tool/ToolSession.h"

namespace facetta {

[[nodiscard]] constexpr bool isOnAxes(ToolZone zone) {
    return zone == ToolZone::Axis || zone == ToolZone::Origin;
}

/// Where a drag makes or changes axes.
[[nodiscard]] constexpr bool shapesAxes(ToolZone zone) {
    return zone == ToolZone::Canvas || isOnAxes(zone);
}

/// Finds out the zone at the state's cursor, and lights up what is under it.
void findZone(ToolSession& session);

/// The same, and shows the zone's cursor and hints: the cursor is over the document.
void updateZone(ToolSession& session);

/// Finds out which item of the on-canvas dialog the state's cursor is over, if there is one.
void updateHoverItem(ToolSession& session);

/// Shows the cursor of the state's zone.
void showZoneCursor(const ToolSession& session);

} // namespace facetta
