#include "symmetry/geometry/MirrorFrame.h"

#include <algorithm>
#include <cmath>

namespace facetta {

MirrorFrame::MirrorFrame(const PageAxes& pageAxes, double reach)
    : axes(pageAxes), wedge(pageAxes), snapDistance(std::max(reach, kOnAxisDistance)),
      chains(pageAxes) {
    for (int sector = 0; sector < sectorCount(axes); ++sector)
        folds.push_back(foldMatrix(axes, sector));
}

ActiveSector activeSectorOf(const MirrorFrame& frame, const PathShape& path, double clear) {
    constexpr double kSamples[] = {kSampleParameter, 1.0 - kSampleParameter, 0.5};
    const auto& [axes, wedge, snapDistance, chains, folds] = frame;
    for (const double distance : {clear, 0.5 * kOnAxisDistance})
        for (std::size_t i = 0; i < curveCount(path); ++i)
            for (const double t : kSamples) {
                const Point sample = evaluate(curveAt(path, i), t);
                const double place = static_cast<double>(i) + t;
                if (wedge.margin(sample) > distance) return {0, place};
                if (wedge.margin(foldIntoSector0(axes, sample)) > distance)
                    return {sectorIndexOf(axes, sample), place};
            }
    if (path.segments.empty()) return {};
    // The path lies on axes throughout, or is a single anchor. One on a ray of sector 0 is at home.
    const Point sample = curveCount(path) > 0 ? evaluate(curveAt(path, 0), kSampleParameter)
                                              : path.segments.front().anchor;
    const bool atHome = wedge.margin(sample) >= -kOnAxisDistance;
    return {atHome ? 0 : sectorIndexOf(axes, sample)};
}

namespace {

/// Whether a path lies within `radius` of a place, with its handles.
bool liesWithin(double radius, Point centre, const PathShape& path) {
    return std::ranges::all_of(path.segments, [&](const PathSegment& segment) {
        return distance(segment.anchor, centre) < radius && distance(segment.in, centre) < radius &&
               distance(segment.out, centre) < radius;
    });
}

bool isDot(const PathShape& path) {
    return path.segments.empty() || liesWithin(kSmallestCut, path.segments.front().anchor, path);
}

/// Whether a path lies where sectors are too narrow for cutting.
bool liesAtOrigin(const MirrorFrame& frame, const PathShape& path) {
    return liesWithin(kSmallestSectorWidth / sectorAngle(frame.axes), frame.axes.origin, path);
}

} // namespace

bool isTooSmallToCut(const MirrorFrame& frame, const PathShape& path) {
    return (path.closed && isDot(path)) || liesAtOrigin(frame, path);
}

std::vector<DrawnIsland> drawnIslands(const MirrorFrame& frame, std::span<const PathShape> members,
                                      std::span<const std::size_t> islandOf) {
    std::vector<DrawnIsland> islands;
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (islandOf[i] == islands.size()) islands.emplace_back();
        DrawnIsland& island = islands[islandOf[i]];
        island.asDrawn = island.asDrawn && (isDot(members[i]) || liesAtOrigin(frame, members[i]));
        const bool first = island.leader == nullptr && !members[i].segments.empty();
        const bool firstWithCurve = curveCount(members[i]) > 0 &&
                                    (island.leader == nullptr || curveCount(*island.leader) == 0);
        if (first || firstWithCurve) island.leader = &members[i];
    }
    for (DrawnIsland& island : islands)
        if (!island.asDrawn && island.leader != nullptr)
            island.start = activeSectorOf(frame, *island.leader);
    return islands;
}

void foldInto0(const MirrorFrame& frame, int sector, PathShape& path) {
    if (sector == 0) return;
    for (PathSegment& segment : path.segments)
        segment = transformed(segment, frame.fold(sector));
}

namespace {

/// Whether two points are one but for the rounding of each to what the host can store.
bool coincide(Point a, Point b) {
    constexpr double kRoundings = 3.0; // when it was made, when it was folded, and here
    const double magnitude = std::max({std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y)});
    return distance(a, b) <= kRoundings * kStorageSpacing * magnitude;
}

bool coincide(const PathSegment& a, const PathSegment& b) {
    return coincide(a.anchor, b.anchor) && coincide(a.in, b.in) && coincide(a.out, b.out);
}

/// A path as seen from one of its anchors.
class AroundAnchor {
public:
    AroundAnchor(const MirrorFrame& frame, const PathShape& path, std::size_t anchor)
        : frame_(frame), path_(path), anchor_(anchor),
          ray_(frame.wedge.rayAt(path.segments[anchor].anchor)) {}

    [[nodiscard]] Ray ray() const { return ray_; }

    /// Whether what follows on the anchor is the reflection of what precedes it across `ray`, as
    /// far as `count` anchors.
    [[nodiscard]] bool isReflected(Ray ray, std::size_t count) const {
        const Matrix& reflection = frame_.chains.from(ray)[1];
        const PathSegment& joint = path_.segments[anchor_]; // on the ray as nearly as an anchor is
        if (!coincide(joint.out, joint.anchor + apply(reflection, joint.in - joint.anchor)))
            return false;
        for (std::size_t i = 1; i <= count; ++i)
            if (!coincide(after(i), transformed(reversed(before(i)), reflection))) return false;
        return true;
    }

    /// Whether the path stays inside sector 0 for `count` curves from the anchor on, or back from
    /// it.
    [[nodiscard]] bool staysInside(std::size_t count) const {
        const std::size_t anchors = path_.segments.size();
        return curvesStayInside(anchor_, count) ||
               curvesStayInside(anchor_ + anchors - count, count);
    }

private:
    [[nodiscard]] const PathSegment& after(std::size_t i) const {
        return path_.segments[(anchor_ + i) % path_.segments.size()];
    }
    [[nodiscard]] const PathSegment& before(std::size_t i) const {
        return path_.segments[(anchor_ + path_.segments.size() - i) % path_.segments.size()];
    }

    [[nodiscard]] bool curvesStayInside(std::size_t first, std::size_t count) const {
        for (std::size_t i = first; i < first + count; ++i) {
            const Cubic curve = curveAt(path_, i % path_.segments.size());
            for (const double t : {0.0, 0.25, 0.5, 0.75, 1.0})
                if (frame_.wedge.margin(evaluate(curve, t)) < -kTouchDepth) return false;
        }
        return true;
    }

    const MirrorFrame& frame_;
    const PathShape& path_;
    std::size_t anchor_;
    Ray ray_;
};

bool isOn(Ray place, Ray ray) { return place == ray || place == Ray::Origin; }

Ray otherThan(Ray ray) { return ray == Ray::First ? Ray::Last : Ray::First; }

/// The same for a closed path, by an anchor that lies on `ray`.
Images ownImagesAround(const MirrorFrame& frame, const PathShape& path, std::size_t anchor,
                       Ray ray) {
    const std::size_t half = path.segments.size() / 2;
    const AroundAnchor here{frame, path, anchor};
    if (!isOn(here.ray(), ray) || !here.isReflected(ray, half)) return Images::All;
    if (isOn(AroundAnchor{frame, path, (anchor + half) % path.segments.size()}.ray(), ray) &&
        here.staysInside(half))
        return Images::Rotations;
    const auto sectors = static_cast<std::size_t>(sectorCount(frame.axes));
    if (path.segments.size() % sectors != 0) return Images::All;
    const std::size_t spacing = path.segments.size() / sectors;
    const Ray other = otherThan(ray);
    const AroundAnchor next{frame, path, (anchor + spacing) % path.segments.size()};
    const AroundAnchor previous{frame, path,
                                (anchor + path.segments.size() - spacing) % path.segments.size()};
    for (const AroundAnchor& end : {next, previous})
        if (isOn(end.ray(), other) && end.isReflected(other, half) && here.staysInside(spacing))
            return Images::None;
    return Images::All;
}

} // namespace

Images ownImages(const MirrorFrame& frame, const PathShape& path) {
    const std::size_t anchors = path.segments.size();
    if (!path.closed) {
        const std::size_t middle = anchors / 2;
        if (anchors % 2 == 0 || anchors < 3) return Images::All;
        const AroundAnchor here{frame, path, middle};
        for (const Ray ray : {Ray::First, Ray::Last})
            if (isOn(here.ray(), ray) && here.isReflected(ray, middle) && here.staysInside(middle))
                return Images::Rotations;
        return Images::All;
    }
    if (anchors % 2 != 0) return Images::All;
    for (std::size_t anchor = 0; anchor < anchors; ++anchor)
        for (const Ray ray : {Ray::First, Ray::Last}) {
            const Images images = ownImagesAround(frame, path, anchor, ray);
            if (images != Images::All) return images;
        }
    return Images::All;
}

} // namespace facetta
