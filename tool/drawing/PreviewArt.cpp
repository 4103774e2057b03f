#include "tool/drawing/PreviewArt.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/ClipGroup.h"

#include <algorithm>

namespace facetta {
namespace {

/// What is drawn of an object: of a clip group its mask; nothing where its bounding box stands for
/// it.
std::vector<AIArtHandle> pathsShown(const Unit& unit) {
    switch (unit.kind) {
    case UnitKind::Path:
        return {unit.art};
    case UnitKind::CompoundPath:
        return pathsInside(unit.art);
    case UnitKind::ClipGroup:
        return pathsOf(maskOf(unit.art));
    default:
        return {};
    }
}

} // namespace

void PreviewArt::read(std::span<const Unit> units) {
    *this = {};
    PathTransfer transfer;
    PathShape shape;
    for (const Unit& unit : units.first(std::min(units.size(), kMostSources))) {
        PreviewSource source{.kind = unit.kind, .firstPath = paths_.size()};
        ai::check(ai::suites.art->GetArtBounds(unit.art, &source.bounds));
        const std::size_t before = segments_.size();
        if (before < kMostSegments) {
            for (const AIArtHandle path : pathsShown(unit))
                addPath(path, transfer, shape);
        }
        source.pathCount = paths_.size() - source.firstPath;
        source.segments = segments_.size() - before;
        sources_.push_back(source);
    }
}

void PreviewArt::addPath(AIArtHandle art, PathTransfer& transfer, PathShape& shape) {
    transfer.read(art, 0, shape);
    paths_.push_back({segments_.size(), shape.segments.size(), shape.closed});
    segments_.insert(segments_.end(), shape.segments.begin(), shape.segments.end());
}

void PreviewArt::copyPath(std::size_t index, PathShape& shape) const {
    const auto& [begin, count, closed] = paths_[index];
    const std::span segments = std::span(segments_).subspan(begin, count);
    shape.segments.assign(segments.begin(), segments.end());
    shape.closed = closed;
}

PathShape boxOf(const PreviewSource& source) {
    const auto& [left, top, right, bottom] = source.bounds;
    PathShape box{.segments = {}, .closed = true};
    for (const AIRealPoint corner : {AIRealPoint{left, top}, AIRealPoint{right, top},
                                     AIRealPoint{right, bottom}, AIRealPoint{left, bottom}}) {
        const Point at = widen(corner);
        box.segments.push_back({.anchor = at, .in = at, .out = at});
    }
    return box;
}

} // namespace facetta
