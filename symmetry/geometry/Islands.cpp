#include "symmetry/geometry/Islands.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace facetta {
namespace {

/// Around all control points, and so around the path.
struct Box {
    Point least{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    Point most{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::lowest()};

    void add(Point point) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        most = {std::max(most.x, point.x), std::max(most.y, point.y)};
    }
    [[nodiscard]] bool contains(Point point) const {
        return point.x >= least.x && point.x <= most.x && point.y >= least.y && point.y <= most.y;
    }
    [[nodiscard]] double area() const { return (most.x - least.x) * (most.y - least.y); }
};

Box boxOf(const PathShape& path) {
    Box box;
    for (const PathSegment& segment : path.segments)
        for (const Point point : {segment.anchor, segment.in, segment.out})
            box.add(point);
    return box;
}

/// How often the line crosses the half-line from `point` to the right: 1 upwards, -1 downwards. A
/// point level with `point` counts as above, so that two lines cross once where they meet.
int crossings(const LineSegment& line, Point point) {
    const bool fromAbove = line.start.y >= point.y;
    const bool toAbove = line.end.y >= point.y;
    if (fromAbove == toAbove) return 0;
    const double side = cross(line.end - line.start, point - line.start);
    if (toAbove) return side > 0.0 ? 1 : 0;
    return side < 0.0 ? -1 : 0;
}

int crossings(const Cubic& curve, Point point) {
    const auto [leastX, mostX] = std::minmax({curve.p0.x, curve.p1.x, curve.p2.x, curve.p3.x});
    const auto [leastY, mostY] = std::minmax({curve.p0.y, curve.p1.y, curve.p2.y, curve.p3.y});
    if (mostX < point.x || leastY > point.y || mostY < point.y) return 0;
    const bool straight = curve.p0 == curve.p1 && curve.p2 == curve.p3;
    if (straight || leastX > point.x) return crossings(LineSegment{curve.p0, curve.p3}, point);
    constexpr int kPieces = 16; // enough to tell what lies inside from what lies beside
    int count = 0;
    Point from = curve.p0;
    for (int piece = 1; piece <= kPieces; ++piece) {
        const Point to = piece == kPieces ? curve.p3 : evaluate(curve, piece / double{kPieces});
        count += crossings(LineSegment{from, to}, point);
        from = to;
    }
    return count;
}

/// A place of the path itself; none for an empty path.
std::optional<Point> sampleOf(const PathShape& path) {
    if (path.segments.empty()) return std::nullopt;
    if (curveCount(path) == 0) return path.segments.front().anchor;
    return evaluate(curveAt(path, 0), kSampleParameter);
}

} // namespace

int windingNumber(const PathShape& path, Point point) {
    int count = 0;
    for (std::size_t i = 0; i < curveCount(path); ++i)
        count += crossings(curveAt(path, i), point);
    if (!path.closed && !path.segments.empty())
        count += crossings(LineSegment{path.segments.back().anchor, path.segments.front().anchor},
                           point);
    return count;
}

std::vector<std::size_t> islandsOf(std::span<const PathShape> members, FillRule rule) {
    struct Member {
        Box box;
        std::vector<std::size_t> around; ///< the members inside which it lies
        bool isOutline = true;
    };
    std::vector<Member> found(members.size());
    std::ranges::transform(members, found.begin(), [](const PathShape& path) {
        return Member{boxOf(path), {}};
    });
    for (std::size_t i = 0; i < members.size(); ++i) {
        const std::optional<Point> sample = sampleOf(members[i]);
        int winding = 0;
        for (std::size_t other = 0; sample && other < members.size(); ++other) {
            if (other == i || !found[other].box.contains(*sample)) continue;
            const int turns = windingNumber(members[other], *sample);
            if (turns != 0) found[i].around.push_back(other);
            winding += turns;
        }
        found[i].isOutline = rule == FillRule::NonZero ? winding == 0 : winding % 2 == 0;
    }

    const auto outlineOf = [&](std::size_t member) {
        std::size_t closest = member;
        for (const std::size_t other : found[member].around)
            if (found[other].isOutline &&
                (closest == member || found[other].box.area() < found[closest].box.area()))
                closest = other;
        return closest;
    };
    constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
    std::vector<std::size_t> numbers(members.size(), kNone); // of the islands, by their outlines
    std::vector<std::size_t> islands;
    std::size_t count = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
        std::size_t& number = numbers[found[i].isOutline ? i : outlineOf(i)];
        if (number == kNone) number = count++;
        islands.push_back(number);
    }
    return islands;
}

} // namespace facetta
