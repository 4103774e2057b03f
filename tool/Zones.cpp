#include "tool/Zones.h"

#include "symmetry/ArtSpace.h"
#include "tool/HitTest.h"
#include "tool/ToolCursor.h"
#include "tool/drawing/OnCanvasDialog.h"

#include <array>
#include <cstddef>

namespace facetta {
namespace {

using platform::Key;

constexpr std::array<ToolCursor, 8> kCursors{
    ToolCursor::Base,        // Canvas
    ToolCursor::Base,        // Sector
    ToolCursor::Base,        // SectorPicked
    ToolCursor::Move,        // Axis
    ToolCursor::Move,        // Origin
    ToolCursor::Finger,      // DialogTitle
    ToolCursor::Finger,      // DialogButton
    ToolCursor::LayerLocked, // LayerLocked
};

/// What a press with Alt held would do.
void updateAltHint(ToolSession& session) {
    ToolState& state = session.state;
    const bool alt = session.keys.isDown(Key::Alt);
    const auto tell = [&](HintId id) {
        if (alt)
            showHint(state.hint, id, platform::ticks());
        else
            hideHint(state.hint);
    };
    if (state.zone == ToolZone::Sector) tell(HintId::SpecifySector);
    if (isOnAxes(state.zone) && state.axes.onLayer) tell(HintId::RepositionLayerAxes);
}

void setSectorHandleHighlight(ToolSession& session, bool highlighted) {
    if (session.state.sectorHandleHighlighted == highlighted) return;
    session.state.sectorHandleHighlighted = highlighted;
    redrawOverlay(session.view);
}

void enterDialog(ToolSession& session) {
    ToolState& state = session.state;
    state.zone =
        state.hoverItem == DialogItem::Title ? ToolZone::DialogTitle : ToolZone::DialogButton;
    hideHint(state.hint);
    setSectorHandleHighlight(session, false);
    showZoneCursor(session);
}

} // namespace

void updateHoverItem(ToolSession& session) {
    ToolState& state = session.state;
    const DialogItem item =
        axesHaveDialog(session)
            ? dialogItemAt(state.dialog, viewPixelOf(session.view, state.cursor))
            : DialogItem::None;
    if (item == state.hoverItem) return;
    state.hoverItem = item;
    redrawDialog(session);
}

void updateZone(ToolSession& session) {
    ToolState& state = session.state;
    updateHoverItem(session);
    if (state.hoverItem != DialogItem::None) return enterDialog(session);
    if (!hasAxes(state) || state.axes.axisCount == 0) return;
    const ZoneUnder under =
        zoneUnder(pageAxes(state.axes), widen(state.cursor), kGrabPixels / currentZoom());
    state.zone = under.zone;
    state.grabIndex = under.grabIndex;
    updateAltHint(session);
    setSectorHandleHighlight(session, under.onSectorHandle);
    showZoneCursor(session);
}

void showZoneCursor(const ToolSession& session) {
    showCursor(session, kCursors.at(static_cast<std::size_t>(session.state.zone)));
}

} // namespace facetta
