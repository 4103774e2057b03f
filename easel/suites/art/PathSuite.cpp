#include "host/suites/AIPathSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Attributes.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

Art& pathOf(AIArtHandle handle) { return session().artOf(handle, kPathArt); }

Art& editablePath(AIArtHandle handle) {
    Art& path = pathOf(handle);
    checkEditable(path);
    return path;
}

std::size_t countOf(const Art& path) { return path.segments().size(); }

/// `index` as a place among the anchors; throws 'PARM' outside.
std::size_t anchorIndex(const Art& path, ai::int16 index) {
    if (index < 0 || static_cast<std::size_t>(index) >= countOf(path))
        throw ai::Error{kBadParameterErr};
    return static_cast<std::size_t>(index);
}

/// The part of a path that (first, count) mean: both in range, or 'PARM'.
std::span<const AIPathSegment> part(const Art& path, ai::int16 first, ai::int16 count) {
    if (first < 0 || count < 0 || static_cast<std::size_t>(first + count) > countOf(path))
        throw ai::Error{kBadParameterErr};
    return path.segments().subspan(static_cast<std::size_t>(first),
                                   static_cast<std::size_t>(count));
}

bool isFinite(const AIPathSegment& segment) {
    return std::ranges::all_of(
        std::initializer_list<AIRealPoint>{segment.p, segment.in, segment.out},
        [](AIRealPoint point) { return std::isfinite(point.h) && std::isfinite(point.v); });
}

/// Segments given by the plug-in. Coordinates that are no numbers are refused: they would spread
/// to everything that is computed from them.
std::span<const AIPathSegment> given(const AIPathSegment* segments, ai::int16 count) {
    if (count < 0 || (segments == nullptr && count > 0)) throw ai::Error{kBadParameterErr};
    const std::span<const AIPathSegment> all(segments, static_cast<std::size_t>(count));
    if (!std::ranges::all_of(all, isFinite)) throw ai::Error{kBadParameterErr};
    return all;
}

void checkLength(std::size_t count) {
    if (count > static_cast<std::size_t>(kMaxPathSegments)) throw ai::Error{kTooManySegmentsErr};
}

// Segments.

ai::int16 getPathSegmentCount(AIArtHandle path) {
    return static_cast<ai::int16>(countOf(pathOf(path)));
}

void setPathSegmentCount(AIArtHandle handle, ai::int16 count) {
    Art& path = editablePath(handle);
    if (count < 0) throw ai::Error{kBadParameterErr};
    checkLength(static_cast<std::size_t>(count));
    ArtContent& content = path.write();
    content.segments.write().resize(static_cast<std::size_t>(count));
    settleSelection(content);
}

void getPathSegments(AIArtHandle path, ai::int16 first, ai::int16 count, AIPathSegment* segments) {
    const auto wanted = part(pathOf(path), first, count);
    if (!wanted.empty()) std::ranges::copy(wanted, &required(segments));
}

void setPathSegments(AIArtHandle handle, ai::int16 first, ai::int16 count,
                     const AIPathSegment* segments) {
    Art& path = editablePath(handle);
    const auto fresh = given(segments, count);
    if (first < 0 || static_cast<std::size_t>(first) > countOf(path))
        throw ai::Error{kBadParameterErr};
    const auto start = static_cast<std::size_t>(first);
    const std::size_t end = start + fresh.size();
    checkLength(end);
    ArtContent& content = path.write();
    if (start == 0 && end >= content.segments->size()) { // shared ones need not be copied first
        content.segments = Cow<Segments>(Segments(fresh.begin(), fresh.end()));
    } else {
        Segments& all = content.segments.write();
        all.resize(std::max(all.size(), end));
        std::ranges::copy(fresh, all.begin() + first);
    }
    settleSelection(content);
}

// Flags.

template <bool ArtContent::*Flag> bool getFlag(AIArtHandle path) {
    return pathOf(path).content().*Flag;
}

template <bool ArtContent::*Flag> void setFlag(AIArtHandle handle, AIBoolean value) {
    Art& path = editablePath(handle);
    if (path.content().*Flag != (value != 0)) path.write().*Flag = value != 0;
}

// Selection.

ai::int16 getPathSegmentSelected(AIArtHandle handle, ai::int16 index) {
    const Art& path = pathOf(handle);
    return segmentSelection(path, anchorIndex(path, index));
}

void setPathSegmentSelected(AIArtHandle handle, ai::int16 index, ai::int16 selection) {
    Art& path = pathOf(handle);
    const std::size_t anchor = anchorIndex(path, index);
    if (selection < kSegmentNotSelected || selection > kSegmentInAndOutSelected)
        throw ai::Error{kBadParameterErr};
    if (selection == kSegmentNotSelected || maySelect(path))
        setSegmentSelection(path, anchor, selection);
}

} // namespace

void installPathSuite(SuiteServer& server) {
    using S = AIPathSuite;
    expose<&S::GetPathSegmentCount, getPathSegmentCount>(server);
    expose<&S::SetPathSegmentCount, setPathSegmentCount>(server);
    expose<&S::GetPathSegments, getPathSegments>(server);
    expose<&S::SetPathSegments, setPathSegments>(server);
    expose<&S::GetPathClosed, getFlag<&ArtContent::closed>>(server);
    expose<&S::SetPathClosed, setFlag<&ArtContent::closed>>(server);
    expose<&S::GetPathGuide, getFlag<&ArtContent::guide>>(server);
    expose<&S::SetPathGuide, setFlag<&ArtContent::guide>>(server);
    expose<&S::GetPathSegmentSelected, getPathSegmentSelected>(server);
    expose<&S::SetPathSegmentSelected, setPathSegmentSelected>(server);
}

} // namespace easel
