#pragma once

/// What mirroring takes from a set of axes, computed once for many paths.

#include "symmetry/geometry/Crossings.h"
#include "symmetry/geometry/JoinPieces.h"
#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"
#include "symmetry/geometry/Tolerances.h"

#include <cstddef>
#include <span>
#include <vector>

namespace facetta {

struct MirrorFrame {
    /// Open ends closer to a bounding ray than `snapDistance` (points, not negative) are moved onto
    /// it.
    MirrorFrame(const PageAxes& axes, double snapDistance);

    /// The map that carries a sector onto sector 0.
    [[nodiscard]] const Matrix& fold(int sector) const {
        return folds[static_cast<std::size_t>(sector)];
    }

    PageAxes axes;
    Wedge wedge;
    double snapDistance;
    ImageChains chains;
    std::vector<Matrix> folds; ///< by sector
};

/// The sector in which a path was drawn and the place of it that tells.
struct ActiveSector {
    int sector = 0;
    double position = kSampleParameter; ///< segment index plus parameter
};

/// The sample that tells the sector must be clear of the axes to mean anything: a shape drawn
/// against an axis may well start with an edge on it. So samples are taken along the path until one
/// is clear of them by the distance `clear`, or else just clear of them.
[[nodiscard]] ActiveSector activeSectorOf(const MirrorFrame& frame, const PathShape& path,
                                          double clear = kOnAxisDistance);

/// Whether a path is a mere dot, or so close to the origin that the axes can hardly be told from
/// each other there.
[[nodiscard]] bool isTooSmallToCut(const MirrorFrame& frame, const PathShape& path);

/// Members of one outline, which are mirrored from one sector.
struct DrawnIsland {
    const PathShape* leader = nullptr; ///< tells the sector: the first member with a curve, if any
    ActiveSector start;
    /// None of it is large enough to be cut. Open members are painted like closed ones here, and
    /// may be dots as well.
    bool asDrawn = true;
};

/// The islands of `members`, which `islandOf` numbers.
[[nodiscard]] std::vector<DrawnIsland> drawnIslands(const MirrorFrame& frame,
                                                    std::span<const PathShape> members,
                                                    std::span<const std::size_t> islandOf);

/// Carries `path` from `sector` into sector 0.
void foldInto0(const MirrorFrame& frame, int sector, PathShape& path);

/// Which copies a path inside sector 0 and beyond needs when it is its own image already: by
/// reflection across one bounding ray or both, on which it has anchors. `Images::All` when it is
/// not.
[[nodiscard]] Images ownImages(const MirrorFrame& frame, const PathShape& path);

} // namespace facetta
