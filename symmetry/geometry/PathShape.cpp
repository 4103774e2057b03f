#include "symmetry/geometry/PathShape.h"

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

Pair imageFarOut(Point point, const Matrix& map) {
    const Point image = rounded(apply(map, point));
    return Pair{image.x, image.y};
}

} // namespace facetta
