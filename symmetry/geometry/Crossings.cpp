#include "symmetry/geometry/Crossings.h"

#include "symmetry/geometry/Tolerances.h"

#include <cmath>
#include <span>
#include <utility>

namespace facetta {

namespace {

/// Signed distances of the four control points of a curve from the lines of both rays.
using CurveDistances = std::array<Wedge::Distances, 4>;

CurveDistances distancesOf(const Wedge& wedge, const Cubic& curve) {
    return {wedge.distances(curve.p0), wedge.distances(curve.p1), wedge.distances(curve.p2),
            wedge.distances(curve.p3)};
}

BernsteinCubic distancesFrom(Ray ray, const CurveDistances& all) {
    const std::size_t side = ray == Ray::First ? 0 : 1;
    return {all[0].both[side], all[1].both[side], all[2].both[side], all[3].both[side]};
}

/// Whether a curve runs along the line of a ray: its control points do.
bool liesOnLine(Ray ray, const CurveDistances& all) {
    return std::ranges::all_of(distancesFrom(ray, all), [](double distance) {
        return std::abs(distance) <= kOnAxisDistance;
    });
}

/// Whether four points are clear of both bounding rays on the same side, so that their curve has
/// nothing to do with them. This is all that is asked about most curves.
bool staysClear(const CurveDistances& all) {
    const Pair lowest = lesser(lesser(all[0].both, all[1].both), lesser(all[2].both, all[3].both));
    if (std::min(lowest[0], lowest[1]) > kOnAxisDistance) return true;
    const Pair highest =
        greater(greater(all[0].both, all[1].both), greater(all[2].both, all[3].both));
    return std::min(highest[0], highest[1]) < -kOnAxisDistance;
}

Side sideOf(double margin) { return margin > 0.0 ? Side::Inside : Side::Outside; }

bool leavesEdge(Side side) { return side == Side::Inside || side == Side::Outside; }

/// Finds the contacts of one path.
class ContactFinder {
public:
    ContactFinder(const Wedge& wedge, const PathShape& path, ContactScratch& scratch)
        : wedge_(wedge), path_(path), margins_(scratch.margins), crossings_(scratch.crossings),
          sides_(scratch.sides), found_{.all = scratch.contacts.take()} {}

    Contacts find();

private:
    /// True when every curve is clear of both rays, so that any anchor tells the side of all.
    bool collectCrossings();
    [[nodiscard]] Crossing anchorCrossing(std::size_t index, Point anchor,
                                          const Wedge::Distances& distances) const;
    void addCurveCrossings(std::size_t index, const Cubic& curve, const CurveDistances& distances);
    void addRayCrossings(std::size_t index, const Cubic& curve, Ray ray, const Roots& roots);
    [[nodiscard]] double farthestMargin(std::size_t firstAnchor, std::size_t endAnchor) const;
    [[nodiscard]] double farthestMargin(const Cubic& curve, const Crossing& from,
                                        const Crossing& to) const;
    [[nodiscard]] bool hardlyLeaves(const Cubic& curve, const Crossing& from, const Crossing& to,
                                    double apart) const;
    [[nodiscard]] bool runsAlong(const Cubic& curve, const Crossing& from,
                                 const Crossing& to) const;
    [[nodiscard]] Side sideBetween(const Crossing& from, const Crossing& to) const;
    [[nodiscard]] bool isTipThroughEdge(const Crossing& from, const Crossing& to) const;
    [[nodiscard]] Side sideOfTouching() const;
    [[nodiscard]] Side sideOnCurve(const Cubic& curve, const Crossing& from,
                                   const Crossing& to) const;
    void groupClosed();
    void groupOpen();
    void group(Side before, Side after);
    void addContact(std::size_t begin, std::size_t last, Side before, Side after);

    const Wedge& wedge_;
    const PathShape& path_;
    std::vector<double>& margins_;
    std::vector<Crossing>& crossings_;
    std::vector<Side>& sides_;
    Contacts found_;
};

Contacts ContactFinder::find() {
    crossings_.clear();
    sides_.clear();
    found_.all.clear();
    const bool staysOnOneSide = collectCrossings();

    const std::size_t anchors = path_.segments.size();
    if (crossings_.empty()) {
        found_.whole = sideOf(staysOnOneSide ? margins_.front() : farthestMargin(0, anchors));
        return std::move(found_);
    }
    for (std::size_t i = 0; i + 1 < crossings_.size(); ++i)
        sides_.push_back(sideBetween(crossings_[i], crossings_[i + 1]));
    if (path_.closed)
        groupClosed();
    else
        groupOpen();
    return std::move(found_);
}

bool ContactFinder::collectCrossings() {
    margins_.resize(path_.segments.size());
    if (path_.segments.empty()) return false;
    bool allStayClear = true;
    // Copies, which nothing that is written below can change.
    const std::span segments{path_.segments};
    const std::span margins{margins_};
    const std::size_t curves = curveCount(path_);
    const Wedge wedge = wedge_;
    Wedge::Distances here = wedge.distances(segments.front().anchor);
    for (std::size_t i = 0; i < curves; ++i) {
        const PathSegment& next = segments[i + 1 == segments.size() ? 0 : i + 1];
        const Wedge::Distances there = wedge.distances(next.anchor);
        margins[i] = here.margin();
        const CurveDistances all{here, wedge.distances(segments[i].out), wedge.distances(next.in),
                                 there};
        if (!staysClear(all)) {
            addCurveCrossings(i, curveAt(path_, i), all);
            allStayClear = false;
        }
        here = there;
    }
    if (!path_.closed) {
        margins_.back() = here.margin();
        const Crossing end = anchorCrossing(segments.size() - 1, segments.back().anchor, here);
        if (end.ray != Ray::None) crossings_.push_back(end);
    }
    return allStayClear;
}

Crossing ContactFinder::anchorCrossing(std::size_t index, Point anchor,
                                       const Wedge::Distances& distances) const {
    return {static_cast<std::int32_t>(index), 0.0, anchor, wedge_.rayAt(anchor, distances), true};
}

/// Adds the crossings of one curve: its first anchor and the places up to the second one.
void ContactFinder::addCurveCrossings(std::size_t index, const Cubic& curve,
                                      const CurveDistances& distances) {
    const Crossing start = anchorCrossing(index, curve.p0, distances.front());
    const Crossing end = anchorCrossing(index + 1, curve.p3, distances.back());
    if (start.ray != Ray::None) crossings_.push_back(start);
    const auto first = std::ssize(crossings_);
    const BernsteinCubic fromFirst = distancesFrom(Ray::First, distances);
    const BernsteinCubic fromLast = distancesFrom(Ray::Last, distances);
    const Roots onFirst = signChanges(fromFirst);
    addRayCrossings(index, curve, Ray::First, onFirst);
    addRayCrossings(index, curve, Ray::Last,
                    fromLast == fromFirst ? onFirst : signChanges(fromLast));
    std::ranges::sort(crossings_.begin() + first, crossings_.end(), {}, &Crossing::parameter);

    // Places at which the curve has hardly left an anchor on the axis are that anchor's own.
    const auto isStart = [&](const Crossing& place) {
        return start.ray != Ray::None && hardlyLeaves(curve, start, place, place.parameter);
    };
    const auto isEnd = [&](const Crossing& place) {
        return end.ray != Ray::None && hardlyLeaves(curve, place, end, 1.0 - place.parameter);
    };
    while (std::ssize(crossings_) > first && isEnd(crossings_.back()))
        crossings_.pop_back();
    const auto begin = crossings_.begin() + first;
    crossings_.erase(begin, std::find_if_not(begin, crossings_.end(), isStart));
}

/// Whether a curve does not get away from the edge between an anchor on it and another place, which
/// is `apart` from it in parameter.
bool ContactFinder::hardlyLeaves(const Cubic& curve, const Crossing& from, const Crossing& to,
                                 double apart) const {
    if (apart < kAnchorParameter) return true;
    return std::abs(farthestMargin(curve, from, to)) <= kOnAxisDistance &&
           !runsAlong(curve, from, to);
}

void ContactFinder::addRayCrossings(std::size_t index, const Cubic& curve, Ray ray,
                                    const Roots& roots) {
    for (const double t : roots.all()) {
        const Point found = evaluate(curve, t);
        if (wedge_.along(ray, found) < -kOnAxisDistance) continue; // behind the origin
        const Point point = rounded(wedge_.onto(ray, found));
        const Ray place = wedge_.atOrigin(point) ? Ray::Origin : ray;
        crossings_.push_back({static_cast<std::int32_t>(index), t, point, place, false});
    }
}

double ContactFinder::farthestMargin(std::size_t firstAnchor, std::size_t endAnchor) const {
    double farthest = 0.0;
    for (std::size_t i = firstAnchor; i < endAnchor; ++i) {
        const double margin = margins_[i < margins_.size() ? i : i - margins_.size()];
        if (std::abs(margin) > std::abs(farthest)) farthest = margin;
    }
    return farthest;
}

Side ContactFinder::sideBetween(const Crossing& from, const Crossing& to) const {
    const auto firstAnchor = static_cast<std::size_t>(from.segment) + 1;
    const auto endAnchor = static_cast<std::size_t>(to.segment) + (to.onAnchor ? 0 : 1);
    if (firstAnchor == endAnchor)
        return sideOnCurve(curveAt(path_, static_cast<std::size_t>(from.segment)), from, to);
    if (endAnchor == firstAnchor + 1 && isTipThroughEdge(from, to)) return Side::Touching;
    return sideOf(farthestMargin(firstAnchor, endAnchor));
}

/// Whether the path only touches the edge with the one anchor between two crossings: they all but
/// coincide, and it does not reach far beyond them. The crossings of a line that is drawn there and
/// back coincide as well, but it runs across.
bool ContactFinder::isTipThroughEdge(const Crossing& from, const Crossing& to) const {
    const bool coincide = to.position() - from.position() < kTouchParameter ||
                          distance(from.point, to.point) < kOnAxisDistance;
    if (from.onAnchor || to.onAnchor || !coincide) return false;
    const std::size_t tipIndex = static_cast<std::size_t>(to.segment) % path_.segments.size();
    Crossing tip{to.segment, 0.0, path_.segments[tipIndex].anchor, Ray::None, true};
    const Cubic before = curveAt(path_, static_cast<std::size_t>(from.segment));
    const Cubic after = curveAt(path_, tipIndex);
    return std::abs(wedge_.margin(tip.point)) <= kTouchDepth &&
           std::abs(farthestMargin(before, from, tip)) <= kTouchDepth &&
           std::abs(farthestMargin(after, tip, to)) <= kTouchDepth;
}

double ContactFinder::farthestMargin(const Cubic& curve, const Crossing& from,
                                     const Crossing& to) const {
    const double end = to.segment == from.segment ? to.parameter : 1.0;
    double farthest = 0.0;
    for (const double part : {0.25, 0.5, 0.75}) {
        const double t = std::lerp(from.parameter, end, part);
        const double margin = wedge_.margin(evaluate(curve, t));
        if (std::abs(margin) > std::abs(farthest)) farthest = margin;
    }
    return farthest;
}

/// Whether a curve that does not leave the edge between two places runs along it there.
bool ContactFinder::runsAlong(const Cubic& curve, const Crossing& from, const Crossing& to) const {
    if (distance(from.point, to.point) <= kOnAxisDistance) return false;
    const CurveDistances distances = distancesOf(wedge_, curve);
    return liesOnLine(Ray::First, distances) || liesOnLine(Ray::Last, distances);
}

Side ContactFinder::sideOnCurve(const Cubic& curve, const Crossing& from,
                                const Crossing& to) const {
    const double margin = farthestMargin(curve, from, to);
    if (std::abs(margin) > kOnAxisDistance) return sideOf(margin);
    if (runsAlong(curve, from, to)) return Side::AlongRay;
    // Between anchors half the distance is enough, so that a piece that was once worth cutting out
    // is found again whatever rounding has done to it since.
    const bool leaves = from.onAnchor && to.onAnchor && std::abs(margin) > 0.5 * kOnAxisDistance;
    return leaves ? sideOf(margin) : Side::Touching;
}

/// The side of a path that touches the edge between all crossings. Its tips may reach farther.
Side ContactFinder::sideOfTouching() const {
    const double farthest = farthestMargin(0, margins_.size());
    return std::abs(farthest) > kOnAxisDistance ? sideOf(farthest) : Side::AlongRay;
}

void ContactFinder::groupClosed() {
    Crossing nextLap = crossings_.front();
    nextLap.segment += static_cast<std::int32_t>(path_.segments.size());
    sides_.push_back(sideBetween(crossings_.back(), nextLap));
    const auto leaving = std::ranges::find_if(sides_, leavesEdge);
    if (leaving == sides_.end()) {
        found_.whole = sideOfTouching();
        return;
    }
    const auto turn = leaving + 1 - sides_.begin();
    std::rotate(sides_.begin(), sides_.begin() + turn, sides_.end());
    std::rotate(crossings_.begin(), crossings_.begin() + turn, crossings_.end());
    const Side seam = sides_.back();
    group(seam, seam);
}

void ContactFinder::groupOpen() {
    const Crossing& front = crossings_.front();
    const std::size_t anchors = path_.segments.size();
    const auto anchorsBefore = static_cast<std::size_t>(front.segment) + (front.onAnchor ? 0 : 1);
    const auto firstAfter = static_cast<std::size_t>(crossings_.back().segment) + 1;
    const Side before =
        anchorsBefore > 0 ? sideOf(farthestMargin(0, anchorsBefore)) : Side::Nowhere;
    const Side after =
        firstAfter < anchors ? sideOf(farthestMargin(firstAfter, anchors)) : Side::Nowhere;
    const bool staysOnEdge = before == Side::Nowhere && after == Side::Nowhere &&
                             std::ranges::none_of(sides_, leavesEdge);
    if (staysOnEdge)
        found_.whole = sideOfTouching();
    else
        group(before, after);
}

/// Joins the crossings between which the path does not leave the edge into contacts.
void ContactFinder::group(Side before, Side after) {
    std::size_t begin = 0;
    while (begin < crossings_.size()) {
        std::size_t last = begin;
        while (last + 1 < crossings_.size() && !leavesEdge(sides_[last]))
            ++last;
        const Side next = last + 1 < crossings_.size() ? sides_[last] : after;
        addContact(begin, last, before, next);
        before = next;
        begin = last + 1;
    }
}

/// The contact of the crossings `begin` to `last`. Where the path touches the edge near an anchor
/// that lies on it, the anchor is the place, so that no second anchor arises beside it.
void ContactFinder::addContact(std::size_t begin, std::size_t last, Side before, Side after) {
    const auto touches = [this](std::size_t i) { return sides_[i] == Side::Touching; };
    std::size_t from = begin;
    while (from < last && !crossings_[from].onAnchor && touches(from))
        ++from;
    std::size_t to = last;
    while (to > begin && !crossings_[to].onAnchor && touches(to - 1))
        --to;
    bool alongRay = false;
    for (std::size_t i = begin; i < last; ++i)
        alongRay = alongRay || sides_[i] == Side::AlongRay;
    if (!alongRay && from > to) { // touches without an anchor
        from = begin;
        to = last;
    }
    found_.all.push_back({crossings_[from], crossings_[to], before, after, alongRay});
}

} // namespace

Wedge::Wedge(const PageAxes& axes)
    : origin_(axes.origin), first_(direction(rayAngle(axes, 0))),
      last_(axes.axisCount == 1 ? -first_ : direction(rayAngle(axes, sectorCount(axes) - 1))),
      x_{first_.x, -last_.x}, y_{first_.y, -last_.y} {}

bool Wedge::atOrigin(Point point) const { return distance(point, origin_) <= kOnAxisDistance; }

Ray Wedge::rayAt(Point point, const Distances& both) const {
    const bool onFirst = std::abs(both.fromFirst()) <= kOnAxisDistance &&
                         along(Ray::First, point) >= -kOnAxisDistance;
    const bool onLast =
        std::abs(both.fromLast()) <= kOnAxisDistance && along(Ray::Last, point) >= -kOnAxisDistance;
    if (onFirst && onLast && atOrigin(point)) return Ray::Origin;
    if (onFirst && (!onLast || std::abs(both.fromFirst()) <= std::abs(both.fromLast())))
        return Ray::First;
    return onLast ? Ray::Last : Ray::None;
}

Contacts findContacts(const Wedge& wedge, const PathShape& path, ContactScratch& scratch) {
    return ContactFinder{wedge, path, scratch}.find();
}

} // namespace facetta
