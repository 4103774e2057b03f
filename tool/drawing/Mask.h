#pragma once

#include "tool/drawing/ViewMap.h"

#include <array>
#include <span>

namespace facetta {

/// A polygon of a rectangle cut by lines: its corners in order, in pixels.
class MaskPolygon {
public:
    void add(Point corner) { corners_.at(count_++) = corner; }
    [[nodiscard]] std::span<const Point> corners() const { return {corners_.data(), count_}; }

private:
    std::array<Point, 8> corners_{}; // the origin, two points on the edge, four corners; and one
    std::size_t count_ = 0;
};

/// What covers the inactive sectors: `area` without the active sector, as polygons that do not
/// overlap. Two where a sector from an origin outside runs across the area and parts it.
struct Mask {
    std::array<MaskPolygon, 2> polygons;
    std::size_t count = 0;

    [[nodiscard]] std::span<const MaskPolygon> all() const { return {polygons.data(), count}; }
};

[[nodiscard]] Mask maskOf(const PixelAxes& axes, const PixelRect& area);

} // namespace facetta
