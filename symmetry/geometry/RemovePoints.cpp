#include "symmetry/geometry/RemovePoints.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace facetta {

namespace {

/// Tells the points that lie on one of the N lines. Points of a path mostly share a sector with the
/// one before them, and then two products tell; only a new sector costs the functions of angles.
class AxisProbe {
public:
    explicit AxisProbe(const PageAxes& axes)
        : origin_(axes.origin), angle_(axes.angle), sectorAngle_(sectorAngle(axes)) {}

    [[nodiscard]] bool isOnAxis(Point point) {
        const Vector offset = point - origin_;
        if (!known_ || marginOf(offset) < -kOnAxisDistance) enterSector(offset);
        return marginOf(offset) <= kOnAxisDistance;
    }

private:
    /// How far a point inside the sector is from the nearer of its two edges; negative outside. The
    /// other lines are farther.
    [[nodiscard]] double marginOf(Vector offset) const {
        return std::min(cross(first_, offset), cross(offset, last_));
    }

    void enterSector(Vector offset) {
        const double sector = std::floor((std::atan2(offset.y, offset.x) - angle_) / sectorAngle_);
        first_ = direction(angle_ + sector * sectorAngle_);
        last_ = direction(angle_ + (sector + 1.0) * sectorAngle_);
        known_ = true;
    }

    Point origin_;
    double angle_;
    double sectorAngle_;
    Vector first_; ///< Unit vectors along the edges of the last sector.
    Vector last_;
    bool known_ = false;
};

/// One curve in place of two, and how far it is from them at most.
struct MergedCurve {
    Cubic curve;
    double deviation = 0.0;
};

bool isStraight(const Cubic& curve) { return curve.p0 == curve.p1 && curve.p2 == curve.p3; }

/// A straight run through the common end of two straight lines; none when the second turns back.
std::optional<MergedCurve> mergeLines(const Cubic& first, const Cubic& second) {
    const Point joint = first.p3;
    if (dot(joint - first.p0, second.p3 - joint) < 0.0) return std::nullopt;
    const Point nearest = nearestPoint({first.p0, second.p3}, joint);
    return MergedCurve{{first.p0, first.p0, second.p3, second.p3}, distance(joint, nearest)};
}

/// The curve of which `first` and `second` are the two parts, as splitting it at t makes them: the
/// handles at the joint are to each other as t to 1 - t, and the outer handles are the curve's own
/// times t and times 1 - t.
std::optional<MergedCurve> mergeParts(const Cubic& first, const Cubic& second) {
    const double before = distance(first.p2, first.p3);
    const double after = distance(second.p0, second.p1);
    if (before == 0.0 || after == 0.0) return std::nullopt;
    const double t = before / (before + after);
    const Cubic whole{first.p0, rounded(first.p0 + (1.0 / t) * (first.p1 - first.p0)),
                      rounded(second.p3 + (1.0 / (1.0 - t)) * (second.p2 - second.p3)), second.p3};
    const auto [head, tail] = split(whole, t);
    const auto square = [](Point a, Point b) { return dot(b - a, b - a); };
    const double farthest =
        std::max({square(head.p1, first.p1), square(head.p2, first.p2), square(head.p3, first.p3),
                  square(tail.p1, second.p1), square(tail.p2, second.p2)});
    return MergedCurve{whole, std::sqrt(farthest)};
}

std::optional<MergedCurve> merge(const Cubic& first, const Cubic& second) {
    return isStraight(first) && isStraight(second) ? mergeLines(first, second)
                                                   : mergeParts(first, second);
}

Cubic curveBetween(const PathSegment& from, const PathSegment& to) {
    return {from.anchor, from.out, to.in, to.anchor};
}

/// Whether two curves bend too much where they meet for one curve that stays within `limit` of
/// them, as most do. Split there, that curve has its point on the line between the handles beside
/// it; so theirs is at most twice the limit from the line between their handles.
bool bends(const Cubic& first, const Cubic& second, double limit) {
    const Vector handles = second.p1 - first.p2;
    const double area = cross(handles, first.p3 - first.p2); // length times distance
    return area * area > 4.0 * limit * limit * dot(handles, handles);
}

/// One curve past the anchor `middle` in place of the two that meet there; none when it would be
/// farther from them than `limit`.
std::optional<MergedCurve> mergeWithin(const PathSegment& before, const PathSegment& middle,
                                       const PathSegment& after, double limit) {
    const Cubic first = curveBetween(before, middle);
    const Cubic second = curveBetween(middle, after);
    if (limit < 0.0 || bends(first, second, limit)) return std::nullopt;
    std::optional<MergedCurve> merged = merge(first, second);
    if (merged && merged->deviation > limit) merged.reset();
    return merged;
}

/// Thins a path out while it is run through. What has been run through is kept in place, at the
/// front of the path's own segments. `MayGo` tells by its index in the path and its place whether
/// an anchor is one that may go.
template <typename MayGo> class Thinner {
public:
    /// `deviations` serves as storage.
    Thinner(std::vector<PathSegment>& segments, MayGo mayGo, std::vector<double>& deviations)
        : segments_(segments), mayGo_(mayGo), deviations_(deviations),
          lastIndex_(segments.size() - 1) {
        deviations_.assign(segments.size(), 0.0);
    }

    void thin(bool closed) {
        for (std::size_t i = 0; i <= lastIndex_; ++i)
            step(i);
        if (closed) closeSeam();
        segments_.resize(count_);
    }

private:
    /// Goes on to the next segment; the one before it goes if it is redundant.
    void step(std::size_t next) {
        if (count_ >= 2 && mayGo_(next - 1, segments_[count_ - 1].anchor) &&
            removable(count_ - 2, count_ - 1, next))
            --count_;
        segments_[count_] = segments_[next];
        deviations_[count_] = deviations_[next];
        ++count_;
    }

    /// Treats the last and the first anchor of a closed path, whose neighbours meet at its seam.
    void closeSeam() {
        if (count_ > 2 && mayGo_(lastIndex_, segments_[count_ - 1].anchor) &&
            removable(count_ - 2, count_ - 1, 0))
            --count_;
        if (count_ > 2 && mayGo_(0, segments_[0].anchor) && removable(count_ - 1, 0, 1)) {
            std::rotate(segments_.begin(), segments_.begin() + 1,
                        segments_.begin() + static_cast<std::ptrdiff_t>(count_));
            --count_;
        }
    }

    /// Whether the anchor `middle` can go; if so, its neighbours get the handles of the one curve
    /// that then joins them. The deviations of removals in a row add up and count together.
    bool removable(std::size_t before, std::size_t middle, std::size_t after) {
        const double soFar = deviations_[middle] + deviations_[after];
        const auto merged = mergeWithin(segments_[before], segments_[middle], segments_[after],
                                        kRemovalDistance - soFar);
        if (!merged) return false;
        segments_[before].out = merged->curve.p1;
        segments_[after].in = merged->curve.p2;
        deviations_[after] = soFar + merged->deviation;
        return true;
    }

    std::vector<PathSegment>& segments_;
    MayGo mayGo_;
    std::vector<double>& deviations_; // of the curve that ends at each anchor, from the original
    std::size_t lastIndex_;
    std::size_t count_ = 0;
};

} // namespace

PathShape removeRedundantAxisPoints(PathShape shape, const PageAxes& axes) {
    if (shape.segments.empty()) return shape;
    AxisProbe probe{axes};
    std::vector<double> deviations;
    const auto mayGo = [&](std::size_t, Point anchor) { return probe.isOnAxis(anchor); };
    Thinner{shape.segments, mayGo, deviations}.thin(shape.closed);
    return shape;
}

namespace {

/// Whether any joint lies within one curve, as few do: most paths need no more than this look at
/// their joints. The ends of an open path are none, and a path of two anchors keeps both.
bool hasRemovable(const Contour& contour) {
    const std::vector<PathSegment>& segments = contour.shape.segments;
    const std::size_t count = segments.size();
    const bool closed = contour.shape.closed && count > 2;
    for (std::size_t joint = contour.firstJoint; joint < count; joint += contour.jointSpacing) {
        const bool atSeam = joint == 0 || joint + 1 == count;
        if (atSeam && !closed) continue;
        const std::size_t before = joint == 0 ? count - 1 : joint - 1;
        const std::size_t after = joint + 1 == count ? 0 : joint + 1;
        if (mergeWithin(segments[before], segments[joint], segments[after], kRemovalDistance))
            return true;
    }
    return false;
}

} // namespace

void JointRemover::removeFrom(Contour& contour) {
    if (contour.jointSpacing == 0 || !hasRemovable(contour)) return;
    const auto mayGo = [&](std::size_t index, Point) {
        return index % contour.jointSpacing == contour.firstJoint;
    };
    Thinner{contour.shape.segments, mayGo, deviations_}.thin(contour.shape.closed);
}

} // namespace facetta
