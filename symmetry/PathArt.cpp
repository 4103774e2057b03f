#include "symmetry/PathArt.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIPathSuite.h"
#include "symmetry/ArtSpace.h"

#include <algorithm>
#include <limits>

namespace facetta {
namespace {

PathSegment widened(const AIPathSegment& segment) {
    return {.anchor = widen(segment.p),
            .in = widen(segment.in),
            .out = widen(segment.out),
            .corner = segment.corner != 0};
}

AIPathSegment narrowed(const PathSegment& segment) {
    return {narrow(segment.anchor), narrow(segment.in), narrow(segment.out), segment.corner};
}

ai::int16 segmentCount(AIArtHandle path) {
    ai::int16 count = 0;
    ai::check(suites.path->GetPathSegmentCount(path, &count));
    return count;
}

bool isClosed(AIArtHandle path) {
    AIBoolean closed = false;
    ai::check(suites.path->GetPathClosed(path, &closed));
    return closed != 0;
}

void readAnchorSelection(AIArtHandle path, ai::int32 selected, PathShape& shape) {
    if ((selected & (kArtSelected | kArtFullySelected)) == 0) return;
    const bool fully = (selected & kArtFullySelected) != 0;
    for (std::size_t i = 0; i < shape.segments.size(); ++i) {
        ai::int16 state = selection::kAnchor;
        if (!fully)
            ai::check(suites.path->GetPathSegmentSelected(path, static_cast<ai::int16>(i), &state));
        shape.segments[i].selection = state;
    }
}

} // namespace

PathShape readPath(AIArtHandle path, ai::int32 selection) {
    const ai::int16 count = segmentCount(path);
    std::vector<AIPathSegment> stored(static_cast<std::size_t>(std::max<ai::int16>(count, 0)));
    if (count > 0) ai::check(suites.path->GetPathSegments(path, 0, count, stored.data()));
    PathShape shape{.segments = {}, .closed = isClosed(path)};
    shape.segments.reserve(stored.size());
    for (const AIPathSegment& segment : stored)
        shape.segments.push_back(widened(segment));
    readAnchorSelection(path, selection, shape);
    return shape;
}

void writePath(AIArtHandle path, const PathShape& shape) {
    // Counts are 16-bit; the host's own limit lies below and is learnt from its answer.
    if (shape.segments.size() > std::numeric_limits<ai::int16>::max())
        throw ai::Error{kTooManySegmentsErr};
    std::vector<AIPathSegment> stored;
    stored.reserve(shape.segments.size());
    for (const PathSegment& segment : shape.segments)
        stored.push_back(narrowed(segment));
    const auto count = static_cast<ai::int16>(stored.size());
    ai::check(suites.path->SetPathSegmentCount(path, count));
    if (count > 0) ai::check(suites.path->SetPathSegments(path, 0, count, stored.data()));
    ai::check(suites.path->SetPathClosed(path, shape.closed));
}

void selectAnchors(AIArtHandle path, const PathShape& shape) {
    const auto isSelected = [](const PathSegment& segment) {
        return segment.selection != selection::kNone;
    };
    const auto isAnchorSelected = [](const PathSegment& segment) {
        return segment.selection == selection::kAnchor;
    };
    if (std::ranges::none_of(shape.segments, isSelected)) return;
    if (std::ranges::all_of(shape.segments, isAnchorSelected)) {
        ai::check(suites.art->SetArtUserAttr(path, kArtSelected, kArtSelected));
        return;
    }
    // One anchor can change its neighbours, so all are written, in order.
    for (std::size_t i = 0; i < shape.segments.size(); ++i)
        ai::check(suites.path->SetPathSegmentSelected(path, static_cast<ai::int16>(i),
                                                      shape.segments[i].selection));
}

} // namespace facetta
