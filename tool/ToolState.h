#pragma once

#include "host/Handles.h"
#include "host/References.h"
#include "host/Types.h"
#include "symmetry/SymmetryAxes.h"
#include "tool/drawing/DialogPlacement.h"
#include "tool/drawing/Hint.h"
#include "tool/drawing/Preview.h"

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

/// What acts once while its key is held, and again only after the key was up.
struct KeyLatches {
    bool smartGuides = false;
    bool shift = false;
    bool space = false;
    bool control = false;
};

/// The item of the on-canvas dialog under the cursor.
enum class DialogItem : ai::int32 {
    None = 0,
    Title = 1,
    ApplyToSelection = 2,
    ApplyToLayer = 3,
    Cancel = 4,
};

/// Where the tool stands between two messages. Written by the tool's handlers; read by the panel
/// and the overlay.
struct ToolState {
    /// Angle in radians counter-clockwise with y up; origin hardened: in canvas coordinates, y
    /// down, so that it stays where it is when the user moves the ruler origin.
    SymmetryAxes axes;
    SymmetryAxes dragBackup;  ///< the axes at mouse-down, for Escape
    SymmetryAxes layerBackup; ///< the layer's axes before their edit began
    AILayerHandle editedLayer =
        nullptr;                   ///< whose axes those are; compared, never handed to the host
    ai::ArtSet releasedCopies;     ///< the art that was generated on it before the edit began
    SymmetryAxes repositionBackup; ///< the axes when the layer's art began to move with them

    bool committed = false; ///< the axes shown are applied, and no edit is pending
    bool toolSelected = false;
    bool selectionEmpty = true;   ///< as it was when the tool was chosen
    bool cancelled = false;       ///< Escape was pressed in this drag
    bool dragging = false;        ///< the cursor has moved since mouse-down
    bool secondClick = false;     ///< the axes were clicked once without a drag
    bool layerEdit = false;       ///< a layer's axes are being edited and may be restored
    bool guidesToRestore = false; ///< the layer had guides along its axes when the edit began
    bool reposition = false;      ///< the drag moves the layer's art with the axes
    bool perpendicularSnapFound = false;
    bool smartGuidesSuppressed = false; ///< for the length of one drag
    KeyLatches latches;

    ToolZone zone = ToolZone::Canvas;
    DialogItem hoverItem = DialogItem::None;
    double grabIndex = 0.0;     ///< which ray is grabbed, in sectors from the first axis
    ai::int32 pickedSector = 0; ///< counter-clockwise from the active one

    // Positions on the page, in points, y up.
    AIRealPoint mouseDown{};
    AIRealPoint previousCursor{};
    AIRealPoint cursor{};
    AIRealPoint anchor{}; ///< the mouse-down point after snapping: the origin of new axes
    AIRealPoint previousSnapped{};
    AIRealPoint snapped{};
    AIRealPoint target{};      ///< the cursor after snaps and constraints: what a drag applies
    AIRealPoint originStart{}; ///< where the origin was when its drag began

    double constrainedAngle = 0.0;        ///< radians; the direction Shift allows
    double snapDistance = 0.0;            ///< points; fixed when a drag begins
    bool sectorHandleHighlighted = false; ///< the cursor is over the active sector's handle
    SnapPointForm snapPointForm = SnapPointForm::Unknown;
    DialogPosition dialog; ///< top left corner of the on-canvas dialog
    Hint hint;
    Preview preview;
    ai::ArtSet repositionArt; ///< the art that moves with the axes; empty between drags
};

/// Are axes being made, or edited apart from their layer?
[[nodiscard]] constexpr bool hasAxes(const ToolState& state) {
    return state.axes.provisional || state.axes.onLayer;
}

/// The cursor moves to `point`.
constexpr void storeCursor(ToolState& state, AIRealPoint point) {
    state.previousCursor = state.cursor;
    state.cursor = point;
}

} // namespace facetta
