#pragma once

/// What the tool does with the host's messages.
///
///   1. While the button is up, new axes follow the cursor (`trackCursor`).
///   2. A press on the canvas pins their origin (`mouseDown`); each `mouseDrag` first takes back
///      what the one before it changed and then builds the axes anew from where the press was; the
///      release (`mouseUp`) leaves them pending: provisional, to be applied or dropped.
///   3. Pending axes can be grabbed by a line, their origin or the active sector's handle, and
///      dragged on.
///   4. A double click on the tool's icon (`editOptions`) applies them.
///
/// The cursor comes in art space, y up. Angles grow counter-clockwise there; the origin is kept
/// hardened. All handlers throw `ai::Error`.

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

void selectTool(ToolSession& session, const AIToolMessage& message);
void deselectTool(ToolSession& session);

void trackCursor(ToolSession& session, const AIToolMessage& message);
void mouseDown(ToolSession& session, const AIToolMessage& message);
void mouseDrag(ToolSession& session, const AIToolMessage& message);
void mouseUp(ToolSession& session, const AIToolMessage& message);

/// Applies pending axes, to the layer or to the selection as the user has set it. With Ctrl or
/// Shift held, or with nothing pending, nothing is applied.
void editOptions(ToolSession& session);

/// One axis more (`step` 1) or fewer (-1), within 1 to 72; axes on a layer keep theirs.
void changeAxisCount(ToolSession& session, int step);

} // namespace facetta
