#pragma once

/// Keys that do something while the button is down. All functions throw `ai::Error`.

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

/// Digits and brackets: another number of axes, in drags that make or change axes. Sets
/// `Gesture::recounted`.
void changeCountByKeys(ToolSession& session);

/// The U key: turns suppression of the host's smart guides on or off, once a press. Only while the
/// host has them on, and not over sectors and the dialog.
void toggleSmartGuides(ToolSession& session, const AIToolMessage& message);

/// The A key over an axis: the direction of the grabbed line becomes the constrain angle of the
/// host, which is told.
void setConstrainAngle(ToolSession& session);

} // namespace facetta
