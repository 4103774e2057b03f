#include "tool/snapping/PerpendicularSnap.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIPathSuite.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/geometry/PerpendicularFeet.h"

#include <algorithm>
#include <span>
#include <vector>

namespace facetta {
namespace {

/// Where the search starts from: farther than anything that attracts, in points.
constexpr double kNothingYet = 99999.0;

/// What is locked or hidden as a whole. The host is asked once about the paths of one group, which
/// follow each other.
class Containers {
public:
    /// Is `path` inside something that is locked or hidden?
    [[nodiscard]] bool block(AIArtHandle path) {
        const AIArtHandle parent = parentOf(path);
        if (parent != asked_ || parent == nullptr) {
            blocked_ = isBlocked(path, parent);
            asked_ = parent;
        }
        return blocked_;
    }

private:
    /// Layers are asked as well: a host may give the group of a sublayer no parent.
    static bool isBlocked(AIArtHandle path, AIArtHandle parent) {
        for (AIArtHandle up = parent; up != nullptr; up = parentOf(up))
            if (attributesOf(up, kArtLocked | kArtHidden) != 0) return true;
        AILayerHandle layer = nullptr;
        ai::check(ai::suites.art->GetLayerOfArt(path, &layer));
        return isLayerBlocked(layer);
    }

    AIArtHandle asked_ = nullptr;
    bool blocked_ = false;
};

/// Most paths are far from the cursor and are told so by their bounds, one call of the host each;
/// most curves of the others by their control points.
class Search {
public:
    Search(Point origin, Point cursor, double reach)
        : origin_(origin), cursor_(cursor), reach_(reach) {}

    void visit(AIArtHandle path) {
        AIRealRect bounds{};
        ai::check(ai::suites.art->GetArtTransformBounds(path, nullptr, kNoStrokeBounds, &bounds));
        const bool isNear = reaches(bounds.left, bounds.right, cursor_.x) &&
                            reaches(bounds.bottom, bounds.top, cursor_.y);
        if (isNear && !containers_.block(path)) visitCurves(path);
    }

    [[nodiscard]] const PerpendicularSnap& found() const { return found_; }

private:
    [[nodiscard]] bool reaches(AIReal low, AIReal high, double place) const {
        return place >= static_cast<double>(low) - reach_ &&
               place <= static_cast<double>(high) + reach_;
    }

    [[nodiscard]] bool reaches(std::initializer_list<AIReal> controls, double place) const {
        const auto [low, high] = std::minmax(controls);
        return reaches(low, high, place);
    }

    void visitCurves(AIArtHandle path) {
        ai::int16 count = 0;
        AIBoolean closed = false;
        ai::check(ai::suites.path->GetPathSegmentCount(path, &count));
        if (count < 2) return;
        ai::check(ai::suites.path->GetPathClosed(path, &closed));
        segments_.resize(static_cast<std::size_t>(count));
        ai::check(ai::suites.path->GetPathSegments(path, 0, count, segments_.data()));
        for (std::size_t i = 1; i < segments_.size(); ++i)
            visitCurve(segments_[i - 1], segments_[i]);
        if (closed) visitCurve(segments_.back(), segments_.front());
    }

    void visitCurve(const AIPathSegment& from, const AIPathSegment& to) {
        if (!reaches({from.p.h, from.out.h, to.in.h, to.p.h}, cursor_.x) ||
            !reaches({from.p.v, from.out.v, to.in.v, to.p.v}, cursor_.y))
            return;
        ++found_.examined;
        const Cubic curve{widen(from.p), widen(from.out), widen(to.in), widen(to.p)};
        const Feet feet = perpendicularFeet(curve, origin_);
        for (const double t : feet.all())
            consider(evaluate(curve, t));
    }

    void consider(Point foot) {
        const double away = distance(foot, cursor_);
        if (away >= reach_ || away >= best_) return;
        best_ = away;
        found_.point = foot;
    }

    Point origin_;
    Point cursor_;
    double reach_;
    double best_ = kNothingYet;
    PerpendicularSnap found_;
    Containers containers_;
    std::vector<AIPathSegment> segments_; ///< of the path being visited
};

} // namespace

PerpendicularSnap findPerpendicular(Point origin, Point cursor, double reach) {
    Search search{origin, cursor, reach};
    for (const AIArtHandle path : freePaths())
        search.visit(path);
    return search.found();
}

} // namespace facetta
