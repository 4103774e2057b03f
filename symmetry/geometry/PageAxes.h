#pragma once

/// N mirror axes through one origin, in page coordinates, and the geometry that follows from them.
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
/// All functions require at least one axis.

#include "symmetry/geometry/Geometry.h"

#include <cstdint>
#include <vector>

namespace facetta {

constexpr std::int32_t kFewestAxes = 1;
constexpr std::int32_t kMostAxes = 72;

/// Axes as art, cursor and drawing are compared with them. In the product `pageAxes` alone makes
/// them, from the record that is shown and stored.
struct PageAxes {
    Point origin{};             ///< where art lies: y upwards
    double angle = 0.0;         ///< direction of the first axis, radians, in [0, 2 pi)
    std::int32_t axisCount = 0; ///< N, 1 to 72; 0 means no axes

    bool operator==(const PageAxes&) const = default;
};

/// 2N: the number of sectors and the number of rays.
[[nodiscard]] constexpr int sectorCount(const PageAxes& axes) { return 2 * axes.axisCount; }

/// The angle of one sector of `axisCount` axes, pi / N.
[[nodiscard]] constexpr double sectorAngle(int axisCount) { return kPi / axisCount; }
[[nodiscard]] constexpr double sectorAngle(const PageAxes& axes) {
    return sectorAngle(axes.axisCount);
}

/// The direction of ray `k` (0 to 2N - 1), in [0, 2 pi).
[[nodiscard]] double rayAngle(const PageAxes& axes, int k);

/// Ray `k` as it is drawn and hit: from the origin, 16,000 points long.
[[nodiscard]] LineSegment raySegment(const PageAxes& axes, int k);

/// The sector that holds `point`, 0 to 2N - 1. A point on the first axis lies in sector 0; the
/// origin lies in the sector that contains direction 0.
[[nodiscard]] int sectorIndexOf(const PageAxes& axes, Point point);

/// The map that carries sector `sector` onto sector 0 with the correct handedness: clockwise by
/// `sector` sectors, then, for an odd one, across the bisector of sector 0. Exactly the identity
/// for sector 0.
[[nodiscard]] Matrix foldMatrix(const PageAxes& axes, int sector);

/// `point` carried into sector 0; bit for bit the same when it lies there already.
[[nodiscard]] Point foldIntoSector0(const PageAxes& axes, Point point);

/// The rotation about the origin by `steps` clockwise steps of two sectors each.
[[nodiscard]] Matrix stepRotation(const PageAxes& axes, int steps);

/// The reflection across the line of ray `k`.
[[nodiscard]] Matrix rayReflection(const PageAxes& axes, int k);

/// Which further copies of a shape complete the symmetric whole.
enum class Images : std::uint8_t {
    All,       ///< the reflection across ray 0, then rotations of both: 2N - 1 copies
    Rotations, ///< the shape is its own reflection: N - 1 rotated copies
    None,      ///< the shape is the whole already
};

/// The maps that make the copies `images` asks for, in the order in which they are made: first the
/// reflection across ray 0 (for `Images::All`), then for each clockwise step k = 1 .. N - 1 the
/// rotation of the shape and, for `Images::All`, of its reflection.
[[nodiscard]] std::vector<Matrix> imageTransforms(const PageAxes& axes,
                                                  Images images = Images::All);

} // namespace facetta
