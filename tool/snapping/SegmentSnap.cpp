#include "tool/snapping/SegmentSnap.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Lent.h"
#include "host/References.h"
#include "host/suites/AIPathSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/geometry/PerpendicularFeet.h"

#include <algorithm>

namespace facetta {
namespace {

/// Points. The host's own tolerance is in pixels and large when the view is zoomed out: what it
/// hits from farther away does not attract.
constexpr double kCloseEnough = 3.0;

ai::Hit hit(Point point, ai::int32 request) {
    const AIRealPoint at = narrow(point);
    ai::Hit found;
    ai::checkLent(ai::suites.hitTest->HitTest(nullptr, &at, request, found.put()), found);
    if (!found || !ai::suites.hitTest->IsHit(found.get())) found.reset();
    return found;
}

/// What of selected art is hit, else what of any art, fills left out.
ai::Hit hitOutline(Point point) {
    ai::Hit selected = hit(point, kSelectionHitRequest);
    if (selected && ai::suites.hitTest->GetType(selected.get()) != kFillHit) return selected;
    return hit(point, kAllNoFillHitRequest);
}

/// The curve of `path` that ends at anchor `end`; the one that closes the path ends at the first.
std::optional<Cubic> curveEndingAt(AIArtHandle path, ai::int16 end) {
    ai::int16 start = end;
    if (start == 0) {
        AIBoolean closed = false;
        ai::check(ai::suites.path->GetPathClosed(path, &closed));
        if (!closed) return std::nullopt;
        ai::check(ai::suites.path->GetPathSegmentCount(path, &start));
    }
    --start;
    AIPathSegment from{};
    AIPathSegment to{};
    ai::check(ai::suites.path->GetPathSegments(path, start, 1, &from));
    ai::check(ai::suites.path->GetPathSegments(path, end, 1, &to));
    return Cubic{widen(from.p), widen(from.out), widen(to.in), widen(to.p)};
}

double distanceFrom(const Cubic& curve, Point point) {
    double nearest = std::min(distance(point, curve.p0), distance(point, curve.p3));
    const Feet feet = perpendicularFeet(curve, point);
    for (const double t : feet.all())
        nearest = std::min(nearest, distance(point, evaluate(curve, t)));
    return nearest;
}

} // namespace

std::optional<Point> findPlaceOnPath(Point point) {
    const ai::Hit found = hitOutline(point);
    if (!found || ai::suites.hitTest->GetType(found.get()) != kSegmentHit) return std::nullopt;
    const AIArtHandle path = ai::suites.hitTest->GetArt(found.get());
    if (path == nullptr || typeOf(path) != kPathArt) return std::nullopt;
    const auto curve = curveEndingAt(path, ai::suites.hitTest->GetPathSegment(found.get()));
    if (!curve || distanceFrom(*curve, point) > kCloseEnough) return std::nullopt;
    const AIReal t = ai::suites.hitTest->GetPathParameter(found.get());
    return evaluate(*curve, static_cast<double>(t));
}

} // namespace facetta
