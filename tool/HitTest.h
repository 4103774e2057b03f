#pragma once

/// What of the axes lies under the cursor. All positions are in page coordinates.

#include "symmetry/geometry/PageAxes.h"
#include "tool/ToolState.h"

namespace facetta {

/// Half the width of what can be grabbed, in view pixels: divide by the zoom.
constexpr double kGrabPixels = 18.0;

struct AxisHits {
    int count = 0;          ///< 0, 1 or 2: the search ends at the second
    double grabIndex = 0.0; ///< the ray of the last hit, in sectors counter-clockwise
};

/// The axes whose lines pass within `tolerance` of `cursor`. Ray i lies at `angle` + i pi/N: the
/// half-line of axis i - N when i is N or more.
[[nodiscard]] AxisHits axesUnder(const PageAxes& axes, Point cursor, double tolerance);

/// Is `cursor` on the bisector of the active sector, the handle that turns it?
[[nodiscard]] bool sectorHandleUnder(const PageAxes& axes, Point cursor, double tolerance);

struct ZoneUnder {
    ToolZone zone = ToolZone::Sector;
    double grabIndex = 0.0; ///< of a grabbed axis; that of the handle is 0.5
    bool onSectorHandle = false;
};

/// The zone of the axes that `cursor` is in. With a single axis the origin is whatever lies within
/// `tolerance` of it; with more it is where two lines do.
[[nodiscard]] ZoneUnder zoneUnder(const PageAxes& axes, Point cursor, double tolerance);

} // namespace facetta
