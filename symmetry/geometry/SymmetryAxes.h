#pragma once

/// N mirror axes through one origin, and the geometry that follows from them.
///
/// The N axes cut the plane into 2N equal sectors. Rays are numbered CLOCKWISE from the first axis,
/// sectors COUNTER-CLOCKWISE from it, so sector 0 lies between ray 0 (at `angle`) and ray 2N - 1
/// (at `angle` + pi/N):
///
///                ray 2N-1
///               /
///              /   sector 0
///             /
///            O ------------- ray 0, the first axis
///             \               .
///              \   sector 2N-1
///               ray 1
///
/// Functions that take a point expect the origin in the same space as the point. They require at
/// least one axis.

#include "symmetry/geometry/Geometry.h"

#include <cstdint>
#include <vector>

namespace facetta {

constexpr std::int32_t kFewestAxes = 1;
constexpr std::int32_t kMostAxes = 72;

/// A plain value, copied freely.
struct SymmetryAxes {
    double originX = 0.0;       ///< document points
    double originY = 0.0;       ///< document points
    double angle = 0.0;         ///< direction of the first axis, radians counter-clockwise
    std::int32_t axisCount = 0; ///< N, 1 to 72; 0 means no axes
    bool provisional = false;   ///< shown for editing, not attached to anything yet
    bool onLayer = false;       ///< belongs to the current top-level layer
    bool autoMirror = false;    ///< the layer's art is kept mirrored automatically

    bool operator==(const SymmetryAxes&) const = default;
};

[[nodiscard]] constexpr Point originOf(const SymmetryAxes& axes) {
    return {axes.originX, axes.originY};
}

/// 2N: the number of sectors and the number of rays.
[[nodiscard]] constexpr int sectorCount(const SymmetryAxes& axes) { return 2 * axes.axisCount; }

/// The angle of one sector, pi / N.
[[nodiscard]] double halfStep(const SymmetryAxes& axes);

/// The direction of ray `k` (0 to 2N - 1), in [0, 2 pi).
[[nodiscard]] double rayAngle(const SymmetryAxes& axes, int k);

/// Ray `k` as it is drawn and hit: from the origin, 16,000 points long.
[[nodiscard]] LineSegment raySegment(const SymmetryAxes& axes, int k);

/// The sector that holds `point`, 0 to 2N - 1. A point on the first axis lies in sector 0; the
/// origin lies in the sector that contains direction 0.
[[nodiscard]] int sectorIndexOf(const SymmetryAxes& axes, Point point);

/// The map that carries sector `sector` onto sector 0 with the correct handedness: clockwise by
/// `sector` half steps, then, for an odd sector, across the bisector of sector 0. Exactly the
/// identity for sector 0.
[[nodiscard]] Matrix foldMatrix(const SymmetryAxes& axes, int sector);

/// `point` carried into sector 0; bit for bit the same when it lies there already.
[[nodiscard]] Point foldIntoSector0(const SymmetryAxes& axes, Point point);

/// The rotation by `steps` clockwise full steps, each of 2 pi / N, about the origin.
[[nodiscard]] Matrix stepRotation(const SymmetryAxes& axes, int steps);

/// The reflection across the line of ray `k`.
[[nodiscard]] Matrix rayReflection(const SymmetryAxes& axes, int k);

/// Which further copies of a shape complete the symmetric whole.
enum class Images : std::uint8_t {
    All,       ///< the reflection across ray 0, then rotations of both: 2N - 1 copies
    Rotations, ///< the shape is its own reflection: N - 1 rotated copies
    None,      ///< the shape is the whole already
};

/// The maps that make the copies `images` asks for, in the order in which they are made: first the
/// reflection across ray 0 (for `Images::All`), then for each clockwise step k = 1 .. N - 1 the
/// rotation of the shape and, for `Images::All`, of its reflection.
[[nodiscard]] std::vector<Matrix> imageTransforms(const SymmetryAxes& axes,
                                                  Images images = Images::All);

} // namespace facetta
