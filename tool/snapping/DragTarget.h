#pragma once

/// From the cursor to the place that a drag applies to the axes.
///
///   1. The host snaps the cursor (`snapByHost`).
///   2. The hint tells that Ctrl turns the next step about (`updateOverrideHint`).
///   3. A dragged axis snaps to where a path is perpendicular to it (`snapToPerpendicular`); else
///   4. to the path under it (`snapToPath`).
///   5. That is the target, and the way from the one before it is the movement (`takeTarget`).
///   6. With Space held the axes move along with it and do not turn (`moveWithSpace`).
///   7. With Shift held a dragged axis turns in steps (`constrainTurning`),
///   8. and a dragged origin moves along directions in the same steps (`constrainOrigin`).
///   9. What ends when Shift comes up (`releaseShift`).
///
/// Positions are in page coordinates, y up; angles grow counter-clockwise there. All functions
/// throw `ai::Error`.

#include "host/Messages.h"
#include "symmetry/geometry/Geometry.h"
#include "tool/ToolSession.h"

namespace facetta {

/// All the steps, in zones where a drag makes or changes axes; elsewhere the target is the cursor.
/// Sets `snapped` and `previousSnapped`, `target` and `constrainedAngle`, hints and latches; Space
/// moves the axes.
void findDragTarget(ToolSession& session, const AIToolMessage& message);

// The steps, each for such a zone.

/// Sets `snapped`; with smart guides suppressed it is the cursor.
void snapByHost(ToolSession& session, const AIToolMessage& message);
void updateOverrideHint(ToolSession& session);
/// Sets `perpendicularSnapFound`, and if so `snapped`.
void snapToPerpendicular(ToolSession& session);
/// Sets `snapped` when a path is hit there.
void snapToPath(ToolSession& session);
/// Sets `target`; answers the movement since the last message.
[[nodiscard]] Vector takeTarget(ToolSession& session);
/// Moves the place of new axes, or the origin of those there are.
void moveWithSpace(ToolSession& session, Vector movement);
/// Sets `constrainedAngle`, the direction of the dragged line, and `target`.
void constrainTurning(ToolSession& session);
/// Sets `constrainedAngle` and `target`, the new origin.
void constrainOrigin(ToolSession& session);
void releaseShift(ToolSession& session);

/// The U key: turns suppression of the host's smart guides on or off, once a press. Only while the
/// host has them on, and not over sectors and the dialog.
void toggleSmartGuides(ToolSession& session, const AIToolMessage& message);

/// The A key over an axis: the direction of the grabbed line becomes the constrain angle of the
/// host, which is told.
void setConstrainAngle(ToolSession& session);

} // namespace facetta
