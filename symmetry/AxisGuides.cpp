#include "symmetry/AxisGuides.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIDocumentSuite.h"
#include "host/suites/AIPathSuite.h"
#include "symmetry/AllChangesAllowed.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/GuideTag.h"
#include "symmetry/LayerAxesStore.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace facetta {
namespace {

/// Points; half the length of an axis before it is clipped: farther than any canvas reaches.
constexpr double kReach = 131072.0;

constexpr ai::int16 kGuideSegments = 2;

/// The part of a line that lies inside one pair of the rectangle's edges, as parameters along it.
/// False when there is none.
bool clipBetween(double from, double by, double low, double high, double& first, double& last) {
    if (by == 0.0) return low <= from && from <= high;
    const double atLow = (low - from) / by;
    const double atHigh = (high - from) / by;
    first = std::max(first, std::min(atLow, atHigh));
    last = std::min(last, std::max(atLow, atHigh));
    return first < last;
}

std::optional<LineSegment> clipped(const LineSegment& line, const AIRealRect& to) {
    double first = 0.0;
    double last = 1.0;
    const Vector by = line.end - line.start;
    if (!clipBetween(line.start.x, by.x, to.left, to.right, first, last) ||
        !clipBetween(line.start.y, by.y, to.bottom, to.top, first, last))
        return std::nullopt;
    return LineSegment{lerp(line.start, line.end, first), lerp(line.start, line.end, last)};
}

std::vector<LineSegment> guidesAlong(const PageAxes& axes) {
    AIRealRect canvas{};
    ai::check(ai::suites.document->GetDocumentMaxArtboardBounds(&canvas));
    std::vector<LineSegment> guides;
    double angle = axes.angle;
    for (int i = 0; i < axes.axisCount; ++i, angle += sectorAngle(axes)) {
        const Vector along = kReach * direction(angle);
        const LineSegment axis{rounded(axes.origin - along), rounded(axes.origin + along)};
        if (const auto guide = clipped(axis, canvas)) guides.push_back(*guide);
    }
    return guides;
}

void addGuide(AIArtHandle group, const LineSegment& line) {
    AIArtHandle path = nullptr;
    ai::check(ai::suites.art->NewArt(kPathArt, kPlaceInsideOnTop, group, &path));
    std::array<AIPathSegment, kGuideSegments> segments{};
    const std::array<AIRealPoint, kGuideSegments> ends{narrow(line.start), narrow(line.end)};
    for (std::size_t i = 0; i < segments.size(); ++i)
        segments[i] = {.p = ends[i], .in = ends[i], .out = ends[i], .corner = 1};
    ai::check(ai::suites.path->SetPathSegmentCount(path, kGuideSegments));
    ai::check(ai::suites.path->SetPathSegments(path, 0, kGuideSegments, segments.data()));
    ai::check(ai::suites.path->SetPathGuide(path, 1));
    GuideTag::set(path);
}

bool isStillOurs(AIArtHandle art) {
    if (typeOf(art) != kPathArt || !isGuide(art)) return false;
    ai::int16 count = 0;
    ai::check(ai::suites.path->GetPathSegmentCount(art, &count));
    return count == kGuideSegments;
}

std::vector<AIArtHandle> guidesOn(AILayerHandle layer) {
    std::vector<AIArtHandle> guides;
    if (layer == nullptr) return guides;
    for (const AIArtHandle art : artOnLayer(layer))
        if (GuideTag::has(art)) guides.push_back(art);
    return guides;
}

} // namespace

void addAxisGuides(const SymmetryAxes& axes) {
    if (axes.axisCount == 0) return;
    const AIArtHandle group = groupArtOf(topLevelLayer(nullptr));
    if (group == nullptr) return;
    for (const LineSegment& guide : guidesAlong(pageAxes(axes)))
        addGuide(group, guide);
}

bool removeAxisGuides(AILayerHandle layer, bool untagOnly) {
    const std::vector<AIArtHandle> guides =
        guidesOn(layer != nullptr ? layer : topLevelLayer(nullptr));
    if (guides.empty()) return false;
    const AllChangesAllowed evenInLockedGroups;
    for (const AIArtHandle guide : guides) {
        if (untagOnly || !isStillOurs(guide)) {
            GuideTag::clear(guide);
            continue;
        }
        ai::check(ai::suites.art->SetArtUserAttr(guide, kArtLocked | kArtHidden, 0));
        ai::check(ai::suites.art->DisposeArt(guide));
    }
    return true;
}

bool layerHasAxisGuides() { return !guidesOn(topLevelLayer(nullptr)).empty(); }

} // namespace facetta
