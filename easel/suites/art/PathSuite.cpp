#include "host/suites/AIPathSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Attributes.h"
#include "easel/document/PathMeasure.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cmath>

namespace easel {
namespace {

Art& pathOf(AIArtHandle handle) {
    Art& art = artOf(handle);
    if (art.type() != kPathArt) throw ai::Error{kBadParameterErr};
    return art;
}

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

AIErr getPathSegmentCount(AIArtHandle path, ai::int16* count) {
    required(count) = static_cast<ai::int16>(countOf(pathOf(path)));
    return kNoErr;
}

AIErr setPathSegmentCount(AIArtHandle handle, ai::int16 count) {
    Art& path = editablePath(handle);
    if (count < 0) return kBadParameterErr;
    checkLength(static_cast<std::size_t>(count));
    ArtContent& content = path.write();
    content.segments.write().resize(static_cast<std::size_t>(count));
    settleSelection(content);
    return kNoErr;
}

AIErr getPathSegments(AIArtHandle path, ai::int16 first, ai::int16 count, AIPathSegment* segments) {
    const auto wanted = part(pathOf(path), first, count);
    if (!wanted.empty()) std::ranges::copy(wanted, &required(segments));
    return kNoErr;
}

AIErr setPathSegments(AIArtHandle handle, ai::int16 first, ai::int16 count,
                      const AIPathSegment* segments) {
    Art& path = editablePath(handle);
    const auto fresh = given(segments, count);
    if (first < 0 || static_cast<std::size_t>(first) > countOf(path)) return kBadParameterErr;
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
    return kNoErr;
}

AIErr insertPathSegments(AIArtHandle handle, ai::int16 after, ai::int16 count,
                         const AIPathSegment* segments) {
    Art& path = editablePath(handle);
    const auto fresh = given(segments, count);
    if (after < -1 || after >= static_cast<ai::int32>(std::max<std::size_t>(countOf(path), 1)))
        return kBadParameterErr;
    checkLength(countOf(path) + fresh.size());
    const auto place = countOf(path) == 0 ? 0 : after + 1;
    ArtContent& content = path.write();
    Segments& all = content.segments.write();
    all.insert(all.begin() + place, fresh.begin(), fresh.end());
    if (!content.segmentSelection->empty()) {
        SegmentSelections& each = content.segmentSelection.write();
        each.insert(each.begin() + place, fresh.size(), std::uint8_t{kSegmentNotSelected});
        settleSelection(content);
    }
    return kNoErr;
}

AIErr deletePathSegments(AIArtHandle handle, ai::int16 first, ai::int16 count) {
    Art& path = editablePath(handle);
    static_cast<void>(part(path, first, count));
    ArtContent& content = path.write();
    const auto erase = [&](auto& list) {
        list.erase(list.begin() + first, list.begin() + first + count);
    };
    erase(content.segments.write());
    if (!content.segmentSelection->empty()) erase(content.segmentSelection.write());
    settleSelection(content);
    return kNoErr;
}

AIErr reversePathSegments(AIArtHandle handle) {
    ArtContent& content = editablePath(handle).write();
    Segments& all = content.segments.write();
    std::ranges::reverse(all);
    for (AIPathSegment& segment : all)
        std::swap(segment.in, segment.out);
    if (!content.segmentSelection->empty()) std::ranges::reverse(content.segmentSelection.write());
    return kNoErr;
}

AIErr getPathBezier(AIArtHandle handle, ai::int16 index, AIRealBezier* bezier) {
    const Art& path = pathOf(handle);
    required(bezier) = bezierOf(curveFrom(path, anchorIndex(path, index)));
    return kNoErr;
}

// Flags.

AIErr getPathClosed(AIArtHandle path, AIBoolean* closed) {
    required(closed) = pathOf(path).content().closed ? 1 : 0;
    return kNoErr;
}

AIErr setPathClosed(AIArtHandle handle, AIBoolean closed) {
    Art& path = editablePath(handle);
    if (path.content().closed != (closed != 0)) path.write().closed = closed != 0;
    return kNoErr;
}

AIErr getPathGuide(AIArtHandle path, AIBoolean* guide) {
    required(guide) = pathOf(path).content().guide ? 1 : 0;
    return kNoErr;
}

AIErr setPathGuide(AIArtHandle handle, AIBoolean guide) {
    Art& path = editablePath(handle);
    if (path.content().guide != (guide != 0)) path.write().guide = guide != 0;
    return kNoErr;
}

AIErr getPathIsClip(AIArtHandle handle, AIBoolean* isClip) {
    const Art& art = artOf(handle);
    const bool canClip = art.type() == kCompoundPathArt || countOf(pathOf(handle)) >= 2;
    required(isClip) = canClip && art.has(kArtIsClipMask) ? 1 : 0;
    return kNoErr;
}

// Selection.

AIErr getPathSegmentSelected(AIArtHandle handle, ai::int16 index, ai::int16* selection) {
    const Art& path = pathOf(handle);
    required(selection) = segmentSelection(path, anchorIndex(path, index));
    return kNoErr;
}

AIErr setPathSegmentSelected(AIArtHandle handle, ai::int16 index, ai::int16 selection) {
    Art& path = pathOf(handle);
    const std::size_t anchor = anchorIndex(path, index);
    if (selection < kSegmentNotSelected || selection > kSegmentInAndOutSelected)
        return kBadParameterErr;
    if (selection == kSegmentNotSelected || maySelect(path))
        setSegmentSelection(path, anchor, selection);
    return kNoErr;
}

AIErr getPathAllSegmentsSelected(AIArtHandle path, AIBoolean* all) {
    required(all) = pathOf(path).has(kArtFullySelected) ? 1 : 0;
    return kNoErr;
}

AIErr getKeySegment(AIArtHandle* path, ai::int16* segment) {
    required(path) = nullptr;
    required(segment) = 0;
    return kNoErr;
}

AIErr cancelKeySegment() { return kNoErr; }

// Measures.

AIErr getPathArea(AIArtHandle path, AIReal* area) {
    // The host counts areas enclosed counter-clockwise as negative.
    required(area) = static_cast<AIReal>(-signedArea(pathOf(path)));
    return kNoErr;
}

AIErr getPathLength(AIArtHandle path, AIReal* length, AIReal /*flatness*/) {
    required(length) = static_cast<AIReal>(pathLength(pathOf(path)));
    return kNoErr;
}

AIErr pathHasLength(AIArtHandle path, AIBoolean* hasLength) {
    required(hasLength) = pathLength(pathOf(path)) > 0 ? 1 : 0;
    return kNoErr;
}

AIBoolean isPath9SliceSplitter(AIArtHandle path) {
    static_cast<void>(pathOf(path));
    return 0;
}

} // namespace

void installPathSuite(SuiteServer& server) {
    using S = AIPathSuite;
    auto table = server.table<S>(kAIPathSuite, kAIPathSuiteVersion);
    expose<&S::GetPathSegmentCount, getPathSegmentCount>(table);
    expose<&S::SetPathSegmentCount, setPathSegmentCount>(table);
    expose<&S::GetPathSegments, getPathSegments>(table);
    expose<&S::SetPathSegments, setPathSegments>(table);
    expose<&S::InsertPathSegments, insertPathSegments>(table);
    expose<&S::DeletePathSegments, deletePathSegments>(table);
    expose<&S::GetPathClosed, getPathClosed>(table);
    expose<&S::SetPathClosed, setPathClosed>(table);
    expose<&S::GetPathGuide, getPathGuide>(table);
    expose<&S::SetPathGuide, setPathGuide>(table);
    expose<&S::GetPathSegmentSelected, getPathSegmentSelected>(table);
    expose<&S::SetPathSegmentSelected, setPathSegmentSelected>(table);
    expose<&S::ReversePathSegments, reversePathSegments>(table);
    expose<&S::GetPathArea, getPathArea>(table);
    expose<&S::GetPathLength, getPathLength>(table);
    expose<&S::GetPathBezier, getPathBezier>(table);
    expose<&S::PathHasLength, pathHasLength>(table);
    expose<&S::GetPathIsClip, getPathIsClip>(table);
    expose<&S::GetPathAllSegmentsSelected, getPathAllSegmentsSelected>(table);
    expose<&S::GetKeySegment, getKeySegment>(table);
    expose<&S::CancelKeySegment, cancelKeySegment>(table);
    expose<&S::IsPath9SliceSplitter, isPath9SliceSplitter>(table);
}

} // namespace easel
