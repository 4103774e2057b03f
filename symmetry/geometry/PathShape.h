#pragma once

/// A path as a value, in the host's terms but with 64-bit coordinates.

#include "symmetry/geometry/Bezier.h"
#include "symmetry/geometry/Geometry.h"
#include "symmetry/geometry/Pair.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace facetta {

/// Which part of a segment is selected, as the host numbers it.
namespace selection {
constexpr std::int16_t kNone = 0;
constexpr std::int16_t kAnchor = 1;
constexpr std::int16_t kIn = 2;
constexpr std::int16_t kOut = 3;
constexpr std::int16_t kBoth = 4;
} // namespace selection

/// One anchor with its handles. The curve between two anchors is the cubic
/// (anchor, out, next in, next anchor). Coordinates are values that the host stored as 32-bit reals
/// and are written back without loss.
struct PathSegment {
    Point anchor;
    Point in;  ///< handle before the anchor; on the anchor where the path is straight
    Point out; ///< handle after the anchor
    bool corner = true;
    std::int16_t selection = selection::kNone;
};

/// Whether two segments draw the same: anchor, handles and corner flag bit for bit. What the user
/// has selected is not part of the shape.
[[nodiscard]] constexpr bool sameShape(const PathSegment& a, const PathSegment& b) {
    return a.anchor == b.anchor && a.in == b.in && a.out == b.out && a.corner == b.corner;
}

/// A path. A closed one has one more curve, from the last anchor back to the first, and does not
/// repeat the first anchor at its end.
struct PathShape {
    std::vector<PathSegment> segments;
    bool closed = false;
};

[[nodiscard]] bool sameShape(const PathShape& a, const PathShape& b);

/// The number of curves: one less than anchors for an open path.
[[nodiscard]] std::size_t curveCount(const PathShape& shape);

/// The curve that starts at anchor `index`, which is less than `curveCount`.
[[nodiscard]] Cubic curveAt(const PathShape& shape, std::size_t index);

/// The segment as seen when the path is run backwards: in and out exchanged, selection with them.
[[nodiscard]] constexpr PathSegment reversed(const PathSegment& segment) {
    std::int16_t selected = segment.selection;
    if (selected == selection::kIn)
        selected = selection::kOut;
    else if (selected == selection::kOut)
        selected = selection::kIn;
    return {segment.anchor, segment.out, segment.in, segment.corner, selected};
}

/// The point under `map`, rounded to what the host can store; for coordinates of any size.
[[nodiscard]] Pair imageFarOut(Point point, const Matrix& map);

/// The segment under `map`, its coordinates rounded once to what the host can store. Nearly all
/// that is made comes from here, so that it is done in pairs.
[[nodiscard]] inline PathSegment transformed(const PathSegment& segment, const Matrix& map) {
    const auto image = [&map](Point point) {
        return inSinglePrecision(point.x * Pair{map.a, map.b} + point.y * Pair{map.c, map.d} +
                                 Pair{map.tx, map.ty});
    };
    Pair anchor = image(segment.anchor);
    Pair in = image(segment.in);
    Pair out = image(segment.out);
    const Pair sums = anchor + in + out;
    const bool inRange = std::isfinite(sums[0] + sums[1]);
    if (!inRange) {
        anchor = imageFarOut(segment.anchor, map);
        in = imageFarOut(segment.in, map);
        out = imageFarOut(segment.out, map);
    }
    return {{anchor[0], anchor[1]},
            {in[0], in[1]},
            {out[0], out[1]},
            segment.corner,
            segment.selection};
}

} // namespace facetta
