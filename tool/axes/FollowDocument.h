#pragma once

/// The tool keeps up with the document, which the user, the host and other plug-ins change as they
/// like: with the one in front, its current layer, its history and its selection.

#include "tool/ToolSession.h"

namespace facetta {

/// To be called whenever the document may have changed, and before each press. It may be called any
/// number of times, and changes no art. While the button is down nothing happens, unless another
/// document has come to the front: the next message of the gesture sees to the rest.
///
///   1. What belongs to a document or a layer that has been left is set aside; it goes on when the
///      user comes back.
///   2. After undo and redo the tool holds what it held at that step.
///   3. The current layer's axes are shown, or none.
///
/// Throws `ai::Error`.
void followDocument(ToolSession& session);

/// The same when the user has moved to another document, layer or step since the last time: for
/// messages too frequent to read the layer's axes each time. Throws `ai::Error`.
void followIfElsewhere(ToolSession& session);

/// Shows the current layer's axes, if it carries any, after pending axes have gone. Throws
/// `ai::Error`.
void showLayerAxes(ToolSession& session);

} // namespace facetta
