#include "symmetry/TransformedArt.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIPathSuite.h"
#include "host/suites/AITransformArtSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/Unlocked.h"

#include <cstddef>
#include <span>
#include <vector>

namespace facetta {
namespace {

constexpr ai::int32 kPaint = kTransformFillGradients | kTransformFillPatterns |
                             kTransformStrokePatterns | kTransformLinkedMasks | kTransformChildren |
                             kTransformStrokeGradients;

constexpr AIReal kSameStrokeWeight = 1.0F; // reflections and rotations do not scale

ai::int32 optionsOf(Transform parts) {
    switch (parts) {
    case Transform::Whole:
        return kPaint | kTransformObjects;
    case Transform::PaintOnly:
        return kPaint;
    case Transform::AndTellPlugins:
        return kPaint | kTransformObjects | kTellParentPluginGroups;
    }
    return kPaint;
}

Point mapped(const AIRealMatrix& m, Point point) {
    return apply(Matrix{m.a, m.b, m.c, m.d, m.tx, m.ty}, point);
}

Point firstAnchorOf(AIArtHandle path) {
    AIPathSegment segment;
    ai::check(ai::suites.path->GetPathSegments(path, 0, 1, &segment));
    return widen(segment.p);
}

/// The first anchor of a path inside a container, before that is transformed.
struct Anchor {
    AIArtHandle path = nullptr;
    Point place;

    [[nodiscard]] bool hasMoved() const { return firstAnchorOf(path) != place; }
};

std::size_t depthOf(AIArtHandle art) {
    std::size_t depth = 0;
    for (AIArtHandle parent = parentOf(art); parent != nullptr; parent = parentOf(parent))
        ++depth;
    return depth;
}

/// The anchor that lies deepest, of those that `matrix` moves by more than rounding.
std::optional<Anchor> deepAnchor(std::span<const AIArtHandle> inside, const AIRealMatrix& matrix) {
    constexpr double kMoves = 0.1; // points
    std::optional<Anchor> deepest;
    std::size_t depth = 0;
    for (const AIArtHandle art : inside) {
        ai::int16 anchors = 0;
        if (typeOf(art) != kPathArt) continue;
        ai::check(ai::suites.path->GetPathSegmentCount(art, &anchors));
        if (anchors == 0) continue;
        const Anchor anchor{art, firstAnchorOf(art)};
        if (distance(mapped(matrix, anchor.place), anchor.place) < kMoves) continue;
        const std::size_t depthHere = depthOf(art);
        if (depthHere <= depth) continue;
        deepest = anchor;
        depth = depthHere;
    }
    return deepest;
}

} // namespace

void transformArt(AIArtHandle art, AIRealMatrix& matrix, Transform parts) {
    ai::check(
        ai::suites.transformArt->TransformArt(art, &matrix, kSameStrokeWeight, optionsOf(parts)));
}

void ContainerTransform::apply(AIArtHandle art, AIRealMatrix& matrix, Transform parts) {
    if (hostReachesMembers_ == true) return transformArt(art, matrix, parts);
    const std::vector<AIArtHandle> inside = artInside(art);
    std::optional<Anchor> anchor;
    if (!hostReachesMembers_ && parts != Transform::PaintOnly) anchor = deepAnchor(inside, matrix);
    transformArt(art, matrix, parts);
    if (anchor) hostReachesMembers_ = anchor->hasMoved();
    if (hostReachesMembers_ != false) return;
    whileUnlocked(inside, [&] {
        for (const AIArtHandle member : inside)
            transformArt(member, matrix, parts);
    });
}

} // namespace facetta
