#pragma once

/// The one place where the page becomes pixels: all drawing is computed in pixels of the view.

#include "host/Handles.h"
#include "symmetry/geometry/PageAxes.h"
#include "tool/drawing/PixelRect.h"

namespace facetta {

struct ViewMap {
    /// From the page (points, y up) to the view (pixels, y down).
    Matrix toPixels;
    double zoom = 1.0; ///< pixels per point, not 0
    /// The annotation rectangle: what the view shows, and so what the overlay covers.
    PixelRect visible;
};

/// As the host has it now, to a fraction of a pixel wherever on the canvas. Throws `ai::Error`.
[[nodiscard]] ViewMap fetchViewMap(AIDocumentViewHandle view);

/// Axes as they stand in the view.
struct PixelAxes {
    Point origin; ///< pixels
    double angle; ///< of the first axis, radians; growing counter-clockwise as seen
    double sectorAngle;
    int axisCount; ///< at least 1
    double reach;  ///< pixels; as far as an axis is drawn from the origin
};

/// `axes` has at least one axis.
[[nodiscard]] PixelAxes inPixels(const PageAxes& axes, const ViewMap& view);

/// The unit vector at `angle`, radians counter-clockwise as seen: y runs down in the view.
[[nodiscard]] Vector pixelDirection(double angle);

} // namespace facetta
