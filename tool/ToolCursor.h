#pragma once

#include "host/Types.h"

namespace facetta {

struct ToolSession;

/// The tool's cursors, by the ids of their resources. The point that counts is 15,15 in all.
enum class ToolCursor : ai::int32 {
    Base = 16021,        ///< new axes, or the sectors of those there are
    Move = 16022,        ///< over an axis or the origin
    LayerLocked = 16023, ///< nothing can be drawn here
    Finger = 16024,      ///< over the on-canvas dialog
};

/// Shows `cursor` over the document. The host falls back to its own when the mouse leaves it, so
/// every message of the tool says it anew.
void showCursor(const ToolSession& session, ToolCursor cursor);

} // namespace facetta
