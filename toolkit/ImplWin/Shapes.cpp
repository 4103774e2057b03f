#include "toolkit/ImplWin/Shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace NRDM {
namespace {

/// Lays `colour` over the pixels of `area`, each by its share. `distance` of a point from the shape
/// is negative inside.
template <typename Distance>
void cover(Surface& surface, Box area, Colour colour, const Distance& distance) {
    if (!surface) return;
    const RECT& clip = surface.clip();
    const auto within = [](double value, LONG low, LONG high) {
        return static_cast<int>(
            std::clamp(value, static_cast<double>(low), static_cast<double>(high)));
    };
    const int left = within(std::floor(area.left), clip.left, clip.right);
    const int right = within(std::ceil(area.right), left, clip.right);
    const int top = within(std::floor(area.top), clip.top, clip.bottom);
    const int bottom = within(std::ceil(area.bottom), top, clip.bottom);
    for (int y = top; y < bottom; ++y) {
        const std::span<std::uint32_t> row = surface.row(y);
        for (int x = left; x < right; ++x) {
            const double share = std::clamp(0.5 - distance({x + 0.5, y + 0.5}), 0.0, 1.0);
            if (share <= 0.0) continue;
            std::uint32_t& pixel = row[static_cast<std::size_t>(x)];
            const Colour under{static_cast<std::uint8_t>(pixel >> 16),
                               static_cast<std::uint8_t>(pixel >> 8),
                               static_cast<std::uint8_t>(pixel)};
            const Colour mixed = mix(under, colour, share);
            pixel = static_cast<std::uint32_t>(mixed.red) << 16 |
                    static_cast<std::uint32_t>(mixed.green) << 8 | mixed.blue;
        }
    }
}

double distanceToRound(Spot point, Box box, double radius) {
    const double halfWidth = (box.right - box.left) / 2;
    const double halfHeight = (box.bottom - box.top) / 2;
    const double r = std::min({radius, halfWidth, halfHeight});
    const double x = std::abs(point.x - (box.left + halfWidth)) - (halfWidth - r);
    const double y = std::abs(point.y - (box.top + halfHeight)) - (halfHeight - r);
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - r;
}

double distanceToSegment(Spot point, Spot a, Spot b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double t =
        square == 0 ? 0.0
                    : std::clamp(((point.x - a.x) * dx + (point.y - a.y) * dy) / square, 0.0, 1.0);
    return std::hypot(point.x - (a.x + t * dx), point.y - (a.y + t * dy));
}

Box boundsOf(std::span<const Spot> points, double margin) {
    constexpr double kFar = std::numeric_limits<double>::max();
    Box box{kFar, kFar, -kFar, -kFar};
    for (const Spot& point : points)
        box = {std::min(box.left, point.x - margin), std::min(box.top, point.y - margin),
               std::max(box.right, point.x + margin), std::max(box.bottom, point.y + margin)};
    return box;
}

} // namespace

void fillRound(Surface& surface, Box box, double radius, Colour colour) {
    cover(surface, box, colour, [&](Spot point) { return distanceToRound(point, box, radius); });
}

void strokeRound(Surface& surface, Box box, double radius, double width, Colour colour) {
    const double half = width / 2;
    const Box middle = inset(box, half);
    cover(surface, box, colour, [&](Spot point) {
        return std::abs(distanceToRound(point, middle, std::max(radius - half, 0.0))) - half;
    });
}

void strokeLines(Surface& surface, std::span<const Spot> points, double width, Colour colour) {
    if (points.empty()) return;
    cover(surface, boundsOf(points, width / 2 + 1), colour, [&](Spot point) {
        double least = std::numeric_limits<double>::max();
        for (std::size_t i = 0; i + 1 < points.size(); ++i)
            least = std::min(least, distanceToSegment(point, points[i], points[i + 1]));
        return least - width / 2;
    });
}

void fillConvex(Surface& surface, std::span<const Spot> points, Colour colour) {
    if (points.size() < 3) return;
    cover(surface, boundsOf(points, 1), colour, [&](Spot point) {
        double most = -std::numeric_limits<double>::max();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Spot a = points[i];
            const Spot b = points[(i + 1) % points.size()];
            const double length = std::hypot(b.x - a.x, b.y - a.y);
            if (length == 0) continue;
            most = std::max(most, ((b.y - a.y) * (point.x - a.x) - (b.x - a.x) * (point.y - a.y)) /
                                      length);
        }
        return most;
    });
}

void fillRect(Surface& surface, const RECT& rect, Colour colour) {
    RECT area;
    if (!surface || !IntersectRect(&area, &rect, &surface.clip())) return;
    const std::uint32_t pixel = static_cast<std::uint32_t>(colour.red) << 16 |
                                static_cast<std::uint32_t>(colour.green) << 8 | colour.blue;
    for (LONG y = area.top; y < area.bottom; ++y) {
        const std::span<std::uint32_t> row = surface.row(static_cast<int>(y));
        std::fill(row.begin() + area.left, row.begin() + area.right, pixel);
    }
}

void frameRect(Surface& surface, const RECT& rect, int width, Colour colour) {
    strokeRound(surface, toBox(rect), 0, width, colour);
}

} // namespace NRDM
