#pragma once

/// Joining a piece of a path inside sector 0 with its images across the bounding rays.

#include "symmetry/geometry/Crossings.h"
#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace facetta {

/// One path of a mirrored result and the copies it still needs.
struct Contour {
    PathShape shape;
    Images images = Images::All;
    /// Images are joined at this anchor and at every so many from it. A spacing of 0: nowhere.
    std::size_t firstJoint = 0;
    std::size_t jointSpacing = 0;
};

/// A run of anchors inside sector 0 and the rays on which it starts and ends.
struct Piece {
    std::vector<PathSegment> segments;
    Ray start = Ray::None;
    Ray end = Ray::None;
};

/// The maps of the 2N images in the order in which they follow each other along a path that leaves
/// sector 0 across the one ray or the other. Each is one map of the piece, so that errors do not
/// add up. Odd ones are reflections: their image runs backwards.
struct ImageChains {
    explicit ImageChains(const PageAxes& axes);

    [[nodiscard]] const std::vector<Matrix>& from(Ray ray) const {
        return ray == Ray::Last ? acrossLast : acrossFirst;
    }

    std::vector<Matrix> acrossFirst;
    std::vector<Matrix> acrossLast;
};

/// How many images of a piece with these ends `join` joins, itself among them.
[[nodiscard]] std::size_t joinedImages(const ImageChains& chains, Ray start, Ray end);

/// Turns `piece` into one path, as long as its ends lie on rays:
///
/// | ends on rays         | the path                                      | still needed |
/// |----------------------|-----------------------------------------------|--------------|
/// | none                 | the piece, open                               | All          |
/// | one                  | the piece from its free end and its reflection | Rotations    |
/// | both, the same ray   | the piece and its reflection, closed          | Rotations    |
/// | both, different rays | all 2N images, closed                         | None         |
///
/// The anchors of `piece` come first and unaltered but for the outer handles at joins, which mirror
/// the inner ones. Free ends count as joints.
[[nodiscard]] Contour join(const ImageChains& chains, Piece piece);

/// Replaces the run by the same run backwards.
void reverseRun(std::span<PathSegment> run);

} // namespace facetta
