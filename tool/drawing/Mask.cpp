#include "tool/drawing/Mask.h"

namespace facetta {
namespace {

/// Counter-clockwise as seen, from the bottom right.
std::array<Point, 4> cornersOf(const PixelRect& area) {
    return {Point{area.right, area.bottom}, Point{area.right, area.top}, Point{area.left, area.top},
            Point{area.left, area.bottom}};
}

/// One of the two half-lines that bound the active sector.
struct Bound {
    Point origin;
    Vector along;
    double inside; ///< the sign of the side on which the sector lies

    /// How far `point` lies on the sector's side of the whole line, in pixels.
    [[nodiscard]] double depth(Point point) const { return inside * cross(along, point - origin); }
};

/// Where a half-line from inside `area` leaves it: which edge, counted with the corner it starts
/// from, and the place.
struct Exit {
    std::size_t edge = 0;
    Point at;
};

Exit exitOf(const Bound& bound, const PixelRect& area) {
    const std::array<Point, 4> corners = cornersOf(area);
    Exit exit{0, bound.origin};
    double nearest = -1.0;
    for (std::size_t edge = 0; edge < corners.size(); ++edge) {
        const Vector side = corners[(edge + 1) % corners.size()] - corners[edge];
        const double facing = cross(bound.along, side);
        // Going counter-clockwise as seen, with y down, an edge that is left lies this way round.
        if (facing >= 0.0) continue;
        const double reach = cross(corners[edge] - bound.origin, side) / facing;
        if (nearest >= 0.0 && reach >= nearest) continue;
        nearest = reach;
        exit = {edge, bound.origin + reach * bound.along};
    }
    return exit;
}

/// The origin lies inside: out along the first bound, round the area the long way, and back in
/// along the second.
MaskPolygon aroundSector(const Bound& first, const Bound& last, const PixelRect& area) {
    const std::array<Point, 4> corners = cornersOf(area);
    const Exit from = exitOf(last, area);
    const Exit to = exitOf(first, area);
    MaskPolygon polygon;
    polygon.add(first.origin);
    polygon.add(from.at);
    // On one edge the way leads past all four corners, unless the sector is so wide that the second
    // place follows the first.
    const Vector side = corners[(to.edge + 1) % corners.size()] - corners[to.edge];
    const bool directly = from.edge == to.edge && dot(to.at - from.at, side) > 0.0;
    std::size_t corner = from.edge;
    if (!directly) {
        do {
            corner = (corner + 1) % corners.size();
            polygon.add(corners[corner]);
        } while (corner != to.edge);
    }
    polygon.add(to.at);
    return polygon;
}

/// The part of `area` on the far side of the line of `bound`.
MaskPolygon beyond(const Bound& bound, const PixelRect& area) {
    const std::array<Point, 4> corners = cornersOf(area);
    MaskPolygon polygon;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point here = corners[i];
        const Point next = corners[(i + 1) % corners.size()];
        const double depthHere = bound.depth(here);
        const double depthNext = bound.depth(next);
        if (depthHere <= 0.0) polygon.add(here);
        if ((depthHere < 0.0 && depthNext > 0.0) || (depthHere > 0.0 && depthNext < 0.0))
            polygon.add(lerp(here, next, depthHere / (depthHere - depthNext)));
    }
    return polygon;
}

/// Does the half-line, which starts outside `area`, run through it?
bool runsThrough(const Bound& bound, const PixelRect& area, double reach) {
    const std::optional<LineSegment> inside =
        clipped({bound.origin, bound.origin + reach * bound.along}, area);
    return inside && distance(inside->start, inside->end) > 0.0;
}

} // namespace

Mask maskOf(const PixelAxes& axes, const PixelRect& area) {
    const Bound first{axes.origin, pixelDirection(axes.angle), -1.0};
    const Bound last{axes.origin, pixelDirection(axes.angle + axes.sectorAngle), 1.0};
    Mask mask;
    const auto add = [&mask](const MaskPolygon& polygon) {
        mask.polygons.at(mask.count++) = polygon;
    };
    if (contains(area, axes.origin)) {
        add(aroundSector(first, last, area));
        return mask;
    }
    // From outside, a bound cuts the area in two, of which the far side is masked. The far sides
    // of both cannot overlap: the origin, between them and the sector, would lie inside.
    for (const Bound& bound : {first, last})
        if (runsThrough(bound, area, axes.reach)) add(beyond(bound, area));
    if (mask.count != 0) return mask;
    const Point middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    if (first.depth(middle) < 0.0 || last.depth(middle) < 0.0) {
        MaskPolygon everything;
        for (const Point corner : cornersOf(area))
            everything.add(corner);
        add(everything);
    }
    return mask;
}

} // namespace facetta
