#include "tool/Zones.h"

#include "symmetry/ArtSpace.h"
#include "symmetry/ViewScale.h"
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
    if (isOnAxes(state.zone) && axesOnLayer(state)) tell(HintId::RepositionLayerAxes);
}

void setSectorHandleHighlight(ToolSession& session, bool highlighted) {
    if (session.state.sectorHandleHighlighted == highlighted) return;
    session.state.sectorHandleHighlighted = highlighted;
    redrawOverlay(session.view);
}

/// What a press would do there.
ZoneUnder zoneAtCursor(const ToolSession& session) {
    const ToolState& state = session.state;
    const bool inHand = state.toolSelected && state.place.document != nullptr;
    if (!inHand) return {hasAxes(state) ? ToolZone::Sector : ToolZone::Canvas};
    if (!state.place.editable) return {ToolZone::LayerLocked};
    if (state.hoverItem == DialogItem::Title) return {ToolZone::DialogTitle};
    if (state.hoverItem != DialogItem::None) return {ToolZone::DialogButton};
    if (!hasAxes(state)) return {ToolZone::Canvas};
    return zoneUnder(pageAxes(state.axes), widen(state.cursor), kGrabPixels / currentZoom());
}

} // namespace

void updateHoverItem(ToolSession& session) {
    ToolState& state = session.state;
    const bool mayBeOn = state.toolSelected && state.place.editable && axesHaveDialog(session);
    const DialogItem item =
        mayBeOn ? dialogItemAt(state.dialog, viewPixelOf(session.view, state.cursor))
                : DialogItem::None;
    if (item == state.hoverItem) return;
    state.hoverItem = item;
    redrawDialog(session);
}

void findZone(ToolSession& session) {
    ToolState& state = session.state;
    updateHoverItem(session);
    const ZoneUnder under = zoneAtCursor(session);
    const bool lockChanges =
        (under.zone == ToolZone::LayerLocked) != (state.zone == ToolZone::LayerLocked);
    state.zone = under.zone;
    state.grabIndex = under.grabIndex;
    setSectorHandleHighlight(session, under.onSectorHandle);
    if (lockChanges) redrawOverlay(session.view); // new axes come and go, the dialog is dimmed
}

void updateZone(ToolSession& session) {
    findZone(session);
    if (session.state.hoverItem != DialogItem::None) hideHint(session.state.hint);
    updateAltHint(session);
    showZoneCursor(session);
}

void showZoneCursor(const ToolSession& session) {
    showCursor(session, kCursors.at(static_cast<std::size_t>(session.state.zone)));
}

} // namespace facetta
