#include "tool/drawing/Overlay.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"
#include "host/suites/AILayerSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/LayerAxesStore.h"
#include "tool/drawing/Mask.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace facetta {
namespace {

constexpr AIReal kLineWidth = 1.0F;
constexpr AIReal kHaloWidth = 2.0F; // half a pixel on each side

/// With more axes than this the halos would run into each other around the origin.
constexpr int kMostHalos = 20;

/// The mask reaches over the edge of the view by this many pixels, so that no border shows.
constexpr double kMaskMargin = 12.0;

bool currentLayerIsVisible() {
    for (AILayerHandle layer = currentLayer(); layer != nullptr;) {
        AIBoolean visible = false;
        ai::check(ai::suites.layer->GetLayerVisible(layer, &visible));
        if (visible == 0) return false;
        ai::check(ai::suites.layer->GetLayerParent(layer, &layer));
    }
    return true;
}

void setColour(const Surface& surface, const AIRGBColor& colour) {
    ai::suites.annotatorDrawer->SetColor(surface.drawer, colour);
}

/// What of `line` lies in the view.
void drawLine(const Surface& surface, const LineSegment& line) {
    const std::optional<LineSegment> visible = clipped(line, surface.view.visible);
    if (!visible) return;
    ai::check(ai::suites.annotatorDrawer->DrawLine(surface.drawer, nearestPixel(visible->start),
                                                   nearestPixel(visible->end)));
}

enum class Fill : AIBoolean { No = 0, Yes = 1 };

void drawPolygon(const Surface& surface, std::span<const Point> corners, Fill fill) {
    std::array<AIPoint, 8> pixels{}; // a polygon of the mask has the most
    assert(corners.size() <= pixels.size());
    std::ranges::transform(corners, pixels.begin(), nearestPixel);
    ai::check(ai::suites.annotatorDrawer->DrawPolygon(surface.drawer, pixels.data(),
                                                      static_cast<ai::uint32>(corners.size()),
                                                      static_cast<AIBoolean>(fill)));
}

/// The pixels of `rect`, whichever way up the host gives it.
AIRect pixelsIn(const AIRealRect& rect) {
    const auto [top, bottom] = std::minmax({rect.top, rect.bottom});
    const AIPoint first = nearestPixel(widen(AIRealPoint{std::floor(rect.left), std::floor(top)}));
    const AIPoint last = nearestPixel(widen(AIRealPoint{std::ceil(rect.right), std::ceil(bottom)}));
    return {first.h, first.v, last.h, last.v};
}

/// From here to `ClearClip` only what the host has erased is drawn on.
void clipToErased(const Surface& surface) {
    if (surface.erased.empty()) return;
    ai::suites.annotatorDrawer->DefineClipStart(surface.drawer);
    for (const AIRealRect& rect : surface.erased)
        ai::check(ai::suites.annotatorDrawer->DrawRect(surface.drawer, pixelsIn(rect), 1));
    ai::suites.annotatorDrawer->DefineClipEnd(surface.drawer);
}

void drawLines(const Surface& surface, const PixelAxes& axes) {
    for (int axis = 0; axis < axes.axisCount; ++axis) {
        const Vector reach = axes.reach * pixelDirection(axes.angle + axis * axes.sectorAngle);
        drawLine(surface, {axes.origin - reach, axes.origin + reach});
    }
}

void drawMarkers(const Surface& surface, const PixelAxes& axes, Fill fill) {
    drawPolygon(surface, markerOn(axes, axes.angle, 1.0), fill);
    drawPolygon(surface, markerOn(axes, axes.angle + axes.sectorAngle, -1.0), fill);
}

void drawSectorHandle(const Surface& surface, const PixelAxes& axes) {
    AIFloat dashes[] = {4.0F, 4.0F};
    const Vector reach = axes.reach * pixelDirection(axes.angle + axes.sectorAngle / 2);
    ai::check(ai::suites.annotatorDrawer->SetLineDashedEx(
        surface.drawer, dashes, static_cast<ai::int32>(std::size(dashes))));
    drawLine(surface, {axes.origin, axes.origin + reach});
    ai::suites.annotatorDrawer->SetLineDashed(surface.drawer, 0);
}

void drawOrigin(const Surface& surface, const PixelAxes& axes) {
    constexpr ai::int32 kRadius = 4;
    const AIPoint at = nearestPixel(axes.origin);
    const AIRect square = grown(AIRect{at.h, at.v, at.h, at.v}, kRadius);
    setColour(surface, surface.colours.buttonFill);
    ai::check(ai::suites.annotatorDrawer->DrawEllipse(surface.drawer, square, 1));
    setColour(surface, surface.colours.axes);
    ai::check(ai::suites.annotatorDrawer->DrawEllipse(surface.drawer, square, 0));
}

} // namespace

bool axesAreShown(const ToolSession& session) {
    const ToolState& state = session.state;
    if (state.axes.axisCount < kFewestAxes) return false;
    if (axesOnLayer(state)) return currentLayerIsVisible();
    return axesPending(state) ||
           (state.activity != Activity::Away && state.zone == ToolZone::Canvas);
}

bool axesArePending(const ToolState& state) {
    return axesPending(state) || (state.activity == Activity::MakingAxes && dragging(state));
}

bool maskIsShown(const ToolSession& session) {
    if (session.preferences.opacity <= 0.0) return false; // it would not be seen
    if (axesOnLayer(session.state)) return session.preferences.useOverlay;
    return axesArePending(session.state);
}

double markerDistance(int axisCount) {
    constexpr double kNear = 72.0;
    constexpr int kFew = 20;
    constexpr double kFarther = 45.0 / 13.0; // an axis beyond the few; 252 in all at 72 axes
    return axisCount <= kFew ? kNear : kNear + (axisCount - kFew) * kFarther;
}

std::array<Point, 3> markerOn(const PixelAxes& axes, double angle, double side) {
    constexpr double kLength = 8.0;
    constexpr double kHeight = 6.0;
    const double begin = markerDistance(axes.axisCount);
    const Vector along = pixelDirection(angle);
    const Vector across = side * pixelDirection(angle + kPi / 2);
    const auto at = [&](double x, double y) { return axes.origin + x * along + y * across; };
    return {at(begin, 0.0), at(begin + kLength / 2, kHeight), at(begin + kLength, 0.0)};
}

void drawMask(const Surface& surface, const PixelAxes& axes, double opacity) {
    constexpr std::size_t kFewestCorners = 3;
    clipToErased(surface);
    setColour(surface, surface.colours.mask);
    ai::check(ai::suites.annotatorDrawer->SetOpacity(surface.drawer,
                                                     narrow(std::clamp(opacity, 0.0, 1.0))));
    const Mask mask = maskOf(axes, grown(surface.view.visible, kMaskMargin));
    for (const MaskPolygon& polygon : mask.all())
        if (polygon.corners().size() >= kFewestCorners)
            drawPolygon(surface, polygon.corners(), Fill::Yes);
    ai::check(ai::suites.annotatorDrawer->SetOpacity(surface.drawer, 1.0F));
    if (!surface.erased.empty()) ai::suites.annotatorDrawer->ClearClip(surface.drawer);
}

void drawAxes(const Surface& surface, const PixelAxes& axes, SectorHandle handle) {
    if (axes.axisCount <= kMostHalos) {
        setColour(surface, surface.colours.halo);
        ai::suites.annotatorDrawer->SetLineWidth(surface.drawer, kHaloWidth);
        drawLines(surface, axes);
        drawMarkers(surface, axes, Fill::No);
    }
    setColour(surface, surface.colours.axes);
    ai::suites.annotatorDrawer->SetLineWidth(surface.drawer, kLineWidth);
    drawLines(surface, axes);
    drawMarkers(surface, axes, Fill::Yes);
    if (handle == SectorHandle::Shown) drawSectorHandle(surface, axes);
    drawOrigin(surface, axes);
}

} // namespace facetta
