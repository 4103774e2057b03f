#include "tool/drawing/Annotations.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/drawing/HintDrawing.h"
#include "tool/drawing/OnCanvasDialog.h"
#include "tool/drawing/Overlay.h"
#include "tool/drawing/Preview.h"

namespace facetta {
namespace {

constexpr ai::uint32 kSmooth = 1; ///< the port option of anti-aliased drawing

std::span<const AIRealRect> erasedIn(const AIAnnotatorMessage& message) {
    if (message.invalidationRects == nullptr || message.numInvalidationRects <= 0) return {};
    return {message.invalidationRects, static_cast<std::size_t>(message.numInvalidationRects)};
}

void drawSymmetry(const Surface& surface, ToolSession& session) {
    if (!axesAreShown(session)) return;
    const ToolState& state = session.state;
    const PixelAxes axes = inPixels(pageAxes(state.axes), surface.view);
    if (maskIsShown(session)) drawMask(surface, axes, session.preferences.opacity);
    if (axesArePending(state)) {
        refreshPreview(session); // the art may have changed since the axes did
        drawPreview(surface, session);
    }
    const bool canBeGrabbed = axesOnLayer(state) || axesArePending(state);
    drawAxes(surface, axes,
             canBeGrabbed && state.sectorHandleHighlighted ? SectorHandle::Shown
                                                           : SectorHandle::Hidden);
}

} // namespace

void drawAnnotations(ToolSession& session, const AIAnnotatorMessage& message, Interface brightness,
                     ai::uint64 now) {
    const bool canDraw = message.drawer != nullptr && ai::suites.annotatorDrawer != nullptr;
    if (!canDraw || !documentIsOpen()) return;
    const Surface surface{message.drawer, fetchViewMap(message.view), coloursOf(brightness),
                          erasedIn(message)};
    ai::check(ai::suites.annotatorDrawer->SetPortOptions(message.drawer, kSmooth, kSmooth));
    drawSymmetry(surface, session);
    // The host is scrolling under a drag: what stands still in the view would leave traces.
    const bool scrolling = message.updateData != nullptr;
    if (!scrolling) drawDialog(surface, session);
    const Hint& hint = session.state.hint;
    if (isVisible(hint, now))
        drawHint(surface, session.state, session.textOf(stringOf(hint.id)), now);
}

void invalidateBetween(const ToolSession& session, AIRealPoint from, AIRealPoint to) {
    if (session.view.handle == nullptr) return;
    invalidate(session.view,
               hintReach(viewPixelOf(session.view, from), viewPixelOf(session.view, to)));
}

void redrawHint(const CurrentView& view, const ToolState& state) {
    if (view.handle == nullptr || !documentIsOpen()) return;
    const AIPoint cursor = viewPixelOf(view, state.cursor);
    invalidate(view, hintReach(cursor, cursor));
}

} // namespace facetta
