#pragma once

#include "host/Handles.h"
#include "host/Types.h"
#include "symmetry/SymmetryAxes.h"
#include "tool/DialogPlacement.h"

namespace facetta {

/// What lies under the cursor, and so what a press there does.
enum class ToolZone : ai::int32 {
    Canvas = 0,
    Sector = 1,
    SectorPicked = 2,
    Axis = 3,
    Origin = 4,
    DialogTitle = 5,
    DialogButton = 6,
    LayerLocked = 7,
};

/// How this host takes the point of a cursor-snap call; it differs between generations.
enum class SnapPointForm : ai::uint8 { Unknown, Reference, Value };

/// Where the tool stands between two messages. Written by the tool's handlers; read by the panel
/// and the overlay.
struct ToolState {
    /// Angle in radians counter-clockwise with y up; origin hardened: in canvas coordinates, y
    /// down, so that it stays where it is when the user moves the ruler origin.
    SymmetryAxes axes;
    SymmetryAxes dragBackup; ///< the axes at mouse-down, for Escape

    bool committed = false; ///< the axes shown are applied, and no edit is pending
    bool toolSelected = false;
    bool selectionEmpty = true; ///< as it was when the tool was chosen
    bool cancelled = false;     ///< Escape was pressed in this drag
    bool dragging = false;      ///< the cursor has moved since mouse-down

    ToolZone zone = ToolZone::Canvas;
    double grabIndex = 0.0; ///< which ray is grabbed, in half steps from the first axis

    // Positions on the page, in points, y up.
    AIRealPoint mouseDown{};
    AIRealPoint previousCursor{};
    AIRealPoint cursor{};
    AIRealPoint anchor{}; ///< the mouse-down point after snapping: the origin of new axes

    double snapDistance = 0.0;            ///< points; fixed when a drag begins
    bool sectorHandleHighlighted = false; ///< the cursor is over the active sector's handle
    SnapPointForm snapPointForm = SnapPointForm::Unknown;
    DialogPosition dialog; ///< top left corner of the on-canvas dialog
};

/// Are axes being made, or edited apart from their layer?
[[nodiscard]] constexpr bool hasAxes(const ToolState& state) {
    return state.axes.provisional || state.axes.onLayer;
}

} // namespace facetta
