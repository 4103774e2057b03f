#include "symmetry/PathArt.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIPathStyleSuite.h"
#include "host/suites/AIPathSuite.h"
#include "symmetry/ArtSpace.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>
#include <span>

namespace facetta {
namespace {

PathSegment widened(const AIPathSegment& segment, ai::int16 selected) {
    return {.anchor = widen(segment.p),
            .in = widen(segment.in),
            .out = widen(segment.out),
            .corner = segment.corner != 0,
            .selection = selected};
}

/// A coordinate of a path, which was rounded to what the host can store when it was made.
AIReal stored(double coordinate) {
    const auto real = static_cast<AIReal>(coordinate);
    assert(static_cast<double>(real) == coordinate || std::isnan(coordinate));
    return real;
}

AIRealPoint stored(Point point) { return {stored(point.x), stored(point.y)}; }

AIPathSegment stored(const PathSegment& segment) {
    return {stored(segment.anchor), stored(segment.in), stored(segment.out), segment.corner};
}

ai::int16 segmentCount(AIArtHandle path) {
    ai::int16 count = 0;
    ai::check(ai::suites.path->GetPathSegmentCount(path, &count));
    return count;
}

bool isClosed(AIArtHandle path) {
    AIBoolean closed = false;
    ai::check(ai::suites.path->GetPathClosed(path, &closed));
    return closed != 0;
}

void readAnchorSelection(AIArtHandle path, PathShape& shape) {
    for (std::size_t i = 0; i < shape.segments.size(); ++i)
        ai::check(ai::suites.path->GetPathSegmentSelected(path, static_cast<ai::int16>(i),
                                                          &shape.segments[i].selection));
}

} // namespace

AIPathSegment* PathTransfer::roomFor(std::size_t count) {
    if (stored_.size() < count) stored_.resize(count);
    return stored_.data();
}

void PathTransfer::read(AIArtHandle path, ai::int32 selection, PathShape& shape) {
    const ai::int16 count = std::max<ai::int16>(segmentCount(path), 0);
    const std::span segments{roomFor(static_cast<std::size_t>(count)),
                             static_cast<std::size_t>(count)};
    if (count > 0) ai::check(ai::suites.path->GetPathSegments(path, 0, count, segments.data()));
    shape.closed = isClosed(path);
    shape.segments.resize(segments.size());
    const bool fully = (selection & kArtFullySelected) != 0;
    const std::int16_t each = fully ? selection::kAnchor : selection::kNone;
    std::ranges::transform(segments, shape.segments.begin(),
                           [each](const AIPathSegment& segment) { return widened(segment, each); });
    if (!fully && (selection & kArtSelected) != 0) readAnchorSelection(path, shape);
}

void PathTransfer::write(AIArtHandle path, const PathShape& shape) {
    // Counts are 16-bit; the host's own limit lies below and is learnt from its answer.
    if (shape.segments.size() > std::numeric_limits<ai::int16>::max())
        throw ai::Error{kTooManySegmentsErr};
    const auto count = static_cast<ai::int16>(shape.segments.size());
    AIPathSegment* const segments = roomFor(shape.segments.size());
    std::ranges::transform(shape.segments, segments,
                           [](const PathSegment& segment) { return stored(segment); });
    ai::check(ai::suites.path->SetPathSegmentCount(path, count));
    if (count > 0) ai::check(ai::suites.path->SetPathSegments(path, 0, count, segments));
    ai::check(ai::suites.path->SetPathClosed(path, shape.closed));
}

FillRule fillRuleOf(AIArtHandle path) {
    AIPathStyle style{};
    ai::check(ai::suites.pathStyle->GetPathStyle(path, &style));
    return style.evenodd != 0 ? FillRule::EvenOdd : FillRule::NonZero;
}

PathShape readPath(AIArtHandle path, ai::int32 selection) {
    PathShape shape;
    PathTransfer{}.read(path, selection, shape);
    return shape;
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
        ai::check(ai::suites.art->SetArtUserAttr(path, kArtSelected, kArtSelected));
        return;
    }
    // One anchor can change its neighbours, so all are written, in order.
    for (std::size_t i = 0; i < shape.segments.size(); ++i)
        ai::check(ai::suites.path->SetPathSegmentSelected(path, static_cast<ai::int16>(i),
                                                          shape.segments[i].selection));
}

} // namespace facetta
