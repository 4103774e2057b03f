#include "tool/drawing/HintDrawing.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/UnicodeString.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"
#include "symmetry/ArtSpace.h"

#include <algorithm>

namespace facetta {
namespace {

constexpr AIReal kFontSize = 11.0F;
constexpr ai::int32 kRightOfCursor = 12;
constexpr ai::int32 kAboveCursor = 9;
constexpr ai::int32 kPaddingAcross = 5; ///< between the text and its box
constexpr ai::int32 kPaddingAlong = 3;
constexpr ai::int32 kDescent = 3; ///< what letters such as g reach below the point they stand on

/// More pixels than any hint's box is wide or high.
constexpr ai::int32 kWidest = 240;
constexpr ai::int32 kHighest = 40;

/// Milliseconds.
constexpr ai::uint64 kFading = 250;

AIRect boxAround(AIPoint bottomLeft, ai::int32 width, ai::int32 height) {
    const ai::int32 bottom = bottomLeft.v + kDescent;
    return {bottomLeft.h - kPaddingAcross, bottom - height - kPaddingAlong,
            bottomLeft.h + width + kPaddingAcross, bottom + kPaddingAlong};
}

} // namespace

AIPoint hintTextAt(AIPoint cursor, ai::int32 width, ai::int32 height, const PixelRect& view) {
    const AIPoint nearest = nearestPixel({view.left, view.top});
    const AIPoint farthest = nearestPixel({view.right, view.bottom});
    // In a view too small for it the hint's beginning stays in sight.
    const auto within = [](ai::int32 at, ai::int32 least, ai::int32 most) {
        return std::max(std::min(at, most), least);
    };
    return {within(cursor.h + kRightOfCursor, nearest.h + kPaddingAcross,
                   farthest.h - width - kPaddingAcross),
            within(cursor.v - kAboveCursor, nearest.v + height + kPaddingAlong - kDescent,
                   farthest.v - kPaddingAlong - kDescent)};
}

AIRect hintReach(AIPoint a, AIPoint b) {
    // Near an edge of the view the hint moves to the other side of the cursor.
    return {std::min(a.h, b.h) - kWidest, std::min(a.v, b.v) - kHighest,
            std::max(a.h, b.h) + kWidest, std::max(a.v, b.v) + kHighest};
}

double hintOpacity(const Hint& hint, ai::uint64 now) {
    if (!isVisible(hint, now)) return 0.0;
    const ai::uint64 left = kHintLifetime - (now - hint.stamp);
    return std::min(1.0, static_cast<double>(left) / static_cast<double>(kFading));
}

void drawHint(const Surface& surface, const ToolState& state, const std::u16string& words,
              ai::uint64 now) {
    const double opacity = hintOpacity(state.hint, now);
    const bool waitsForRelease =
        state.gesture && state.gesture->cancelled && state.zone == ToolZone::Canvas;
    if (opacity == 0.0 || waitsForRelease || words.empty()) return;
    const auto& drawer = *ai::suites.annotatorDrawer;
    const ai::UnicodeString text{words};
    drawer.SetFontSize(surface.drawer, kFontSize);
    AIRect size{};
    ai::check(drawer.GetTextBounds(surface.drawer, text, nullptr, 1, size));
    const ai::int32 width = size.right - size.left;
    const ai::int32 height = std::max(size.bottom, size.top) - std::min(size.bottom, size.top);
    const AIPoint cursor = nearestPixel(apply(surface.view.toPixels, widen(state.cursor)));
    const AIPoint at = hintTextAt(cursor, width, height, surface.view.visible);
    const AIRect box = boxAround(at, width, height);

    ai::check(drawer.SetOpacity(surface.drawer, narrow(opacity)));
    drawer.SetLineWidth(surface.drawer, 1.0F);
    drawer.SetColor(surface.drawer, surface.colours.hintFill);
    ai::check(drawer.DrawRect(surface.drawer, box, 1));
    drawer.SetColor(surface.drawer, surface.colours.hintText);
    ai::check(drawer.DrawRect(surface.drawer, box, 0));
    ai::check(drawer.DrawText(surface.drawer, text, at));
    ai::check(drawer.SetOpacity(surface.drawer, 1.0F));
}

} // namespace facetta
