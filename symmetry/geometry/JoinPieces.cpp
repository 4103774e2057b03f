#include "symmetry/geometry/JoinPieces.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <utility>

namespace facetta {

namespace {

std::vector<Matrix> chainOfImages(const PageAxes& axes, int ray, int clockwise) {
    std::vector<Matrix> chain;
    const Matrix reflection = rayReflection(axes, ray);
    for (int step = 0; step < axes.axisCount; ++step) {
        const Matrix rotation = stepRotation(axes, clockwise * step);
        chain.push_back(rotation);
        chain.push_back(compose(reflection, rotation));
    }
    return chain;
}

/// The origin lies on both rays and counts as the one on which the other end lies.
Ray resolve(Ray ray, Ray other) {
    if (ray != Ray::Origin) return ray;
    return other == Ray::Last ? Ray::Last : Ray::First;
}

/// Whether a path passes through `anchor` without a bend.
bool isSmooth(Point in, Point anchor, Point out) {
    const Vector before = anchor - in;
    const Vector after = out - anchor;
    const double lengths = length(before) * length(after);
    return lengths > 0.0 && dot(before, after) > 0.0 &&
           std::abs(cross(before, after)) <= kSmoothSine * lengths;
}

/// The image of `handle` across the ray on which `anchor` lies; on the anchor when it was there.
Point mirroredHandle(Point handle, Point anchor, const Matrix& reflection) {
    return anchor + apply(reflection, handle - anchor);
}

void closeJoint(PathSegment& joint) {
    joint.corner = !isSmooth(rounded(joint.in), joint.anchor, rounded(joint.out));
}

} // namespace

ImageChains::ImageChains(const PageAxes& axes)
    : acrossFirst(chainOfImages(axes, 0, 1)),
      acrossLast(chainOfImages(axes, sectorCount(axes) - 1, -1)) {}

std::size_t joinedImages(const ImageChains& chains, Ray start, Ray end) {
    if (start == Ray::None && end == Ray::None) return 1;
    const Ray first = resolve(start, end);
    const bool ring = first != Ray::None && end != Ray::None && first != resolve(end, first);
    return ring ? chains.acrossFirst.size() : 2;
}

Contour join(const ImageChains& chains, Piece piece) {
    std::vector<PathSegment>& path = piece.segments; // grows from the piece into the whole
    Ray start = resolve(piece.start, piece.end);
    Ray end = resolve(piece.end, start);
    if (start == Ray::None && end == Ray::None)
        return {.shape = {std::move(path), false}, .images = Images::All};
    if (end == Ray::None) { // the free end comes first
        reverseRun(path);
        std::swap(start, end);
    }
    const bool closed = start != Ray::None;
    const bool ring = closed && start != end;
    const std::vector<Matrix>& chain = chains.from(end);

    path.back().out = mirroredHandle(path.back().in, path.back().anchor, chain[1]);
    closeJoint(path.back());
    if (closed) {
        const Matrix& reflection = chains.from(start)[1];
        path.front().in = mirroredHandle(path.front().out, path.front().anchor, reflection);
        closeJoint(path.front());
    }

    const std::size_t anchors = path.size();
    const std::size_t images = ring ? chain.size() : 2;
    // The images are made of the handles before they are rounded.
    const PathSegment first = path.front();
    const PathSegment last = path.back();
    path.front().in = rounded(first.in);
    path.back().out = rounded(last.out);
    // Each image begins with the last anchor of the one before it.
    if (anchors > 1) path.resize(images * (anchors - 1) + 1);
    PathSegment* next = path.data() + anchors;
    for (std::size_t image = 1; image < images && anchors > 1; ++image) {
        const Matrix& map = chain[image];
        if (image % 2 == 0) {
            for (std::size_t i = 1; i + 1 < anchors; ++i)
                *next++ = transformed(path[i], map);
            *next++ = transformed(last, map);
        } else {
            for (std::size_t i = anchors - 1; i-- > 1;)
                *next++ = transformed(reversed(path[i]), map);
            *next++ = transformed(reversed(first), map);
        }
    }
    if (closed && anchors > 1) path.pop_back(); // the path's first anchor again
    return {.shape = {std::move(path), closed},
            .images = ring ? Images::None : Images::Rotations,
            .firstJoint = 0,
            .jointSpacing = anchors - 1};
}

void reverseRun(std::span<PathSegment> run) {
    std::ranges::reverse(run);
    for (PathSegment& segment : run)
        segment = reversed(segment);
}

} // namespace facetta
