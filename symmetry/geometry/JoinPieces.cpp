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

PieceJoiner::PieceJoiner(const PageAxes& axes)
    : chainAcrossFirst_(chainOfImages(axes, 0, 1)),
      chainAcrossLast_(chainOfImages(axes, sectorCount(axes) - 1, -1)) {}

void PieceJoiner::join(Piece& piece, Contour& contour) const {
    std::vector<PathSegment>& run = piece.segments;
    std::vector<PathSegment>& path = contour.shape.segments;
    Ray start = resolve(piece.start, piece.end);
    Ray end = resolve(piece.end, start);
    if (start == Ray::None && end == Ray::None) {
        path.assign(run.begin(), run.end());
        contour = {std::move(contour.shape), Images::All};
        contour.shape.closed = false;
        return;
    }
    if (end == Ray::None) { // the free end comes first
        reverseRun(run);
        std::swap(start, end);
    }
    const bool closed = start != Ray::None;
    const bool ring = closed && start != end;
    const std::vector<Matrix>& chain = chainFrom(end);

    PathSegment& last = run.back();
    last.out = mirroredHandle(last.in, last.anchor, chain[1]);
    closeJoint(last);
    if (closed) {
        PathSegment& first = run.front();
        first.in = mirroredHandle(first.out, first.anchor, chainFrom(start)[1]);
        closeJoint(first);
    }

    const std::size_t images = ring ? chain.size() : 2;
    path.clear();
    path.reserve(images * (run.size() - 1) + 1);
    path.assign(run.begin(), run.end());
    path.front().in = rounded(path.front().in);
    path.back().out = rounded(path.back().out);
    for (std::size_t image = 1; image < images; ++image) {
        const Matrix& map = chain[image];
        const bool closing = closed && image + 1 == images; // its last anchor is the path's first
        if (image % 2 == 0)
            for (std::size_t i = 1; i < run.size(); ++i)
                path.push_back(transformed(run[i], map));
        else
            for (std::size_t i = run.size() - 1; i-- > (closing ? 1U : 0U);)
                path.push_back(transformed(reversed(run[i]), map));
    }
    contour.shape.closed = closed;
    contour.images = ring ? Images::None : Images::Rotations;
    contour.firstJoint = 0;
    contour.jointSpacing = run.size() - 1;
}

void reverseRun(std::span<PathSegment> run) {
    std::ranges::reverse(run);
    for (PathSegment& segment : run)
        segment = reversed(segment);
}

} // namespace facetta
