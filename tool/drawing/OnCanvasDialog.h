#pragma once

/// The small dialog on the document by which pending axes are applied or dropped. It is no window:
/// it is drawn with the axes, and the tool tests what of it the cursor is over.
///
/// A row is hit from below its upper border to a pixel or two below its lower one: borders belong
/// to the row above.

#include "tool/ToolSession.h"
#include "tool/drawing/Surface.h"

namespace facetta {

/// Is there a dialog for the cursor to be on? Only pending axes have one, if the user wants it.
[[nodiscard]] bool axesHaveDialog(const ToolSession& session);

/// Is it on screen? Never while a press on the canvas makes new axes, or a modal dialog is open.
[[nodiscard]] bool dialogIsShown(const ToolSession& session);

/// The item at `viewPixels` of a dialog at `position`. Does not ask whether the dialog is shown.
[[nodiscard]] DialogItem dialogItemAt(DialogPosition position, AIPoint viewPixels);

/// Draws it when it is shown. Throws `ai::Error`.
void drawDialog(const Surface& surface, const ToolSession& session);

/// Asks the host to draw the place of the dialog anew. Throws `ai::Error`.
void redrawDialog(const ToolSession& session);

/// Moves it by `by` pixels; both places are drawn anew. Throws `ai::Error`.
void moveDialog(ToolSession& session, AIPoint by);

} // namespace facetta
