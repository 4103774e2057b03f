#include "tool/drawing/PixelRect.h"

#include <algorithm>
#include <cmath>

namespace facetta {

std::optional<LineSegment> clipped(const LineSegment& segment, const PixelRect& rect) {
    // Liang and Barsky: each edge of the rectangle allows a range of the parameter.
    const Vector along = segment.end - segment.start;
    const double steps[] = {-along.x, along.x, -along.y, along.y};
    const double room[] = {segment.start.x - rect.left, rect.right - segment.start.x,
                           segment.start.y - rect.top, rect.bottom - segment.start.y};
    double from = 0.0;
    double to = 1.0;
    for (int edge = 0; edge < 4; ++edge) {
        if (steps[edge] < 0.0)
            from = std::max(from, room[edge] / steps[edge]);
        else if (steps[edge] > 0.0)
            to = std::min(to, room[edge] / steps[edge]);
        else if (room[edge] < 0.0)
            return std::nullopt; // parallel to the edge, outside
    }
    if (from > to) return std::nullopt;
    return LineSegment{segment.start + from * along, segment.start + to * along};
}

AIPoint nearestPixel(Point pixels) {
    static constexpr double kFarAway = 1e9;
    const auto nearest = [](double at) {
        return static_cast<ai::int32>(std::lround(std::clamp(at, -kFarAway, kFarAway)));
    };
    return {nearest(pixels.x), nearest(pixels.y)};
}

} // namespace facetta
