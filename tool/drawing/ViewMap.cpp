#include "tool/drawing/ViewMap.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIDocumentViewSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ViewScale.h"

namespace facetta {
namespace {

/// Points. Axes are drawn this far from their origin, longer than any canvas.
constexpr double kAxisReach = 131072.0;

Point pixelsOf(AIDocumentViewHandle view, AIRealPoint page) {
    AIRealPoint pixels{};
    ai::check(ai::suites.documentView->FixedArtworkPointToViewPoint(view, &page, &pixels));
    return widen(pixels);
}

} // namespace

ViewMap fetchViewMap(AIDocumentViewHandle view) {
    // The scale comes from two points as far apart as the canvas: the corners of a view at high
    // zoom are so close that 32-bit reals would bend lines that start far outside.
    constexpr AIReal kApart = 16384.0F;
    AIRealRect page{};
    ai::check(ai::suites.documentView->GetDocumentViewBounds(view, &page));
    const AIRealPoint near{page.left, page.top};
    const AIRealPoint far{page.left + kApart, page.top - kApart};
    const Point nearPixels = pixelsOf(view, near);
    const double measured = (pixelsOf(view, far).x - nearPixels.x) / (widen(far).x - widen(near).x);

    ViewMap map;
    map.zoom = measured > 0.0 ? measured : kSmallestZoom;
    map.toPixels = {.a = map.zoom,
                    .d = -map.zoom,
                    .tx = nearPixels.x - map.zoom * widen(near).x,
                    .ty = nearPixels.y + map.zoom * widen(near).y};
    const Point end = apply(map.toPixels, widen(AIRealPoint{page.right, page.bottom}));
    map.visible = {nearPixels.x, nearPixels.y, end.x, end.y};
    return map;
}

PixelAxes inPixels(const PageAxes& axes, const ViewMap& view) {
    return {.origin = apply(view.toPixels, axes.origin),
            .angle = axes.angle,
            .sectorAngle = sectorAngle(axes),
            .axisCount = axes.axisCount,
            .reach = kAxisReach * view.zoom};
}

Vector pixelDirection(double angle) {
    const Vector upwards = direction(angle);
    return {upwards.x, -upwards.y};
}

} // namespace facetta
