#pragma once

#include "host/Types.h"

namespace facetta {

/// The on-canvas dialog has not been placed yet.
constexpr ai::int32 kNeverPlaced = -999;

/// The user's settings. Read once at start-up, written back at shut-down, changed in between by the
/// tool, the panel and the dialogs.
struct Preferences {
    double angle = 0.0; ///< radians, [0, 2 pi); of the first axis of the next new axes
    ai::int32 count = 3;
    ai::int32 dialogX = kNeverPlaced; ///< view pixels
    ai::int32 dialogY = kNeverPlaced;
    bool useAnnotationDialog = true;
    bool initialDragMovesOrigin = false; ///< else the drag that makes axes turns them
    bool removePoints = true;
    bool applyToSelection = false; ///< else to the layer
    bool autoMirror = true;
    bool useOverlay = false;
    double opacity = 0.85; ///< of the overlay
    bool snapPerpendicular = true;
    ai::int32 panelExpansion = 0;
};

/// Settings of the host that Facetta follows.
struct HostPreferences {
    bool isRulerIn4thQuad = false; ///< rulers show y downwards
    double constrainAngle = 0.0;   ///< degrees
};

/// Where the host keeps its constrain angle: among the application's own preferences, in degrees.
inline constexpr char kConstrainAnglePreference[] = "constrain/angle";

} // namespace facetta
