#include "symmetry/PathShape.h"

#include <algorithm>

namespace facetta {

bool sameShape(const PathShape& a, const PathShape& b) {
    return a.closed == b.closed &&
           std::ranges::equal(a.segments, b.segments, [](const auto& one, const auto& other) {
               return sameShape(one, other);
           });
}

std::size_t curveCount(const PathShape& shape) {
    const std::size_t anchors = shape.segments.size();
    return shape.closed || anchors == 0 ? anchors : anchors - 1;
}

Cubic curveAt(const PathShape& shape, std::size_t index) {
    const std::size_t next = index + 1 == shape.segments.size() ? 0 : index + 1;
    const PathSegment& from = shape.segments[index];
    const PathSegment& to = shape.segments[next];
    return {from.anchor, from.out, to.in, to.anchor};
}

PathSegment reversed(const PathSegment& segment) {
    PathSegment result = segment;
    std::swap(result.in, result.out);
    if (segment.selection == selection::kIn)
        result.selection = selection::kOut;
    else if (segment.selection == selection::kOut)
        result.selection = selection::kIn;
    return result;
}

PathSegment transformed(const PathSegment& segment, const Matrix& map) {
    PathSegment result = segment;
    result.anchor = rounded(apply(map, segment.anchor));
    result.in = rounded(apply(map, segment.in));
    result.out = rounded(apply(map, segment.out));
    return result;
}

} // namespace facetta
