#pragma once

/// Giving the axes in numbers.
///
///   1. `editAxesByNumbers` prepares what the modal dialog is about to change, and opens it.
///   2. Each field that the user changes calls one of the functions below: the canvas follows at
///      once.
///   3. OK keeps what was done, as one named step. Cancel gives back what there was; the next new
///      axes still get the angle and count given last. A failure ends the dialog and travels on to
///      the gesture that opened it, which takes everything back.
///
/// All functions throw `ai::Error`.

#include "tool/ToolSession.h"

namespace facetta {

/// Axes of a layer are edited apart from it, or, with Alt held, take the art of the layer along.
void editAxesByNumbers(ToolSession& session);

/// The axes as they were given last, to be seen on the canvas, with the layer's art where that
/// comes along.
void showEditedAxes(ToolSession& session);

/// In canvas coordinates.
void editOrigin(ToolSession& session, Point hard);
void editAngle(ToolSession& session, double radians);
void editCount(ToolSession& session, int count);

} // namespace facetta
