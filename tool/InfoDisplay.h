#pragma once

#include "symmetry/geometry/Geometry.h"
#include "tool/Preferences.h"

#include <array>

namespace facetta {

/// What the host's info display shows while the tool drags, by the host's numbers: document X and
/// Y, width, height, distance, angle. The list ends with -1.
inline constexpr std::array<ai::int32, 7> kInfoVariables{15, 16, 2, 3, 4, 5, -1};

/// Shows how far and in which direction `to` lies from `from`, in points of the page and degrees
/// counter-clockwise, and where it lies, y running as the user's rulers do. A host that shows none
/// of it is no reason to end a drag.
void showDragInfo(const HostPreferences& host, Point from, Point to) noexcept;

} // namespace facetta
