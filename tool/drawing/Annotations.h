#pragma once

/// Everything that the tool draws over the document, from the bottom up: the mask over the inactive
/// sectors, mirrored art that is not there yet, the axes, the on-canvas dialog, the hint.

#include "host/Messages.h"
#include "tool/ToolSession.h"
#include "tool/drawing/Colours.h"

namespace facetta {

/// Answers the host's draw message. `now` is the system's tick counter in milliseconds. Throws
/// `ai::Error`.
void drawAnnotations(ToolSession& session, const AIAnnotatorMessage& message, Interface brightness,
                     ai::uint64 now);

/// Asks the host to draw anew what follows the cursor, which went from `from` to `to` on the page.
/// Throws `ai::Error`.
void invalidateBetween(const ToolSession& session, AIRealPoint from, AIRealPoint to);

/// The same for the hint where it stands; nothing happens without a view. Throws `ai::Error`.
void redrawHint(const CurrentView& view, const ToolState& state);

} // namespace facetta
