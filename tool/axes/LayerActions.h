#pragma once

/// What the panel and its menu do with axes, beyond applying and dropping them (Apply.h). Each
/// action leaves the tool in a state that its table names, the screen up to date, and one named
/// step to undo if it changed the document. The current layer stays as it is while it is locked or
/// hidden. All functions throw `ai::Error`.

#include "tool/ToolSession.h"

#include <cstdint>

namespace facetta {

/// Makes the plug-in's tool the host's current one.
void takeTool(ToolSession& session);

/// The axes shown become `changed`. A layer's are taken off it first, as an edit that can be
/// cancelled and that counts as `countsAs`; guides along them go until then.
void editAxes(ToolSession& session, const SymmetryAxes& changed, CountsAs countsAs);

/// Keeps the layer whose axes are shown mirrored from now on, and mirrors it; or leaves it alone.
void setAutoMirror(ToolSession& session, bool autoMirror);

/// Mirrors the layer whose axes are shown.
void mirrorLayerNow(ToolSession& session);

/// What becomes of guides along axes that are removed.
enum class GuidesAlong : std::uint8_t {
    Go,
    BecomeTheUsers,
};

/// They go, but with Shift held the user keeps them.
[[nodiscard]] inline GuidesAlong guidesAsAskedFor(const ToolSession& session) {
    return session.keys.isDown(platform::Key::Shift) ? GuidesAlong::BecomeTheUsers
                                                     : GuidesAlong::Go;
}

/// Takes the axes shown off their layer.
void removeLayerAxes(ToolSession& session, GuidesAlong guides);

/// Takes the axes off every layer of the document. What was pending is dropped.
void removeAllLayerAxes(ToolSession& session, GuidesAlong guides);

/// Does any layer of the document carry axes? False without a document.
[[nodiscard]] bool someLayerHasAxes();

/// `copied` wait to be applied, as if the tool had just made them. In an edit of a layer's axes
/// they take the place of these, and Cancel still brings back the layer's.
void pasteAsPending(ToolSession& session, const SymmetryAxes& copied);

/// Guides along the axes of the current layer, and away with them.
void addGuides(const ToolState& state);
void removeGuides();

} // namespace facetta
