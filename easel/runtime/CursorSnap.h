#pragma once

#include "easel/runtime/Views.h"
#include "host/Art.h"

#include <string>
#include <string_view>
#include <vector>

namespace easel {

struct SnapCall {
    AIRealPoint point;
    std::string control;
};

/// The host's cursor snapping. Every call is kept, so that a test can tell what was asked for.
struct CursorSnap {
    bool enabled = true; ///< Off: every point is answered as it was given.
    std::vector<SnapCall> calls;
};

/// How far the cursor may lie from what it snaps to, in pixels of the view.
inline constexpr AIReal kSnapPixels = 4;

/// `point` (soft) brought to what `control` asks for, or unchanged when nothing is near enough.
///
/// A capital letter opens a source: A the art, P the edges of artboard and canvas; others are known
/// to real hosts only and open nothing. A small letter searches the open sources: v anchors and
/// corners, o places on lines; i and f find nothing. A space ends the search if it has found.
[[nodiscard]] AIRealPoint snapTo(const DocumentView& view, AIRealPoint point,
                                 std::string_view control);

} // namespace easel
