#pragma once

/// Mirroring one path across symmetry axes.
///
/// 1. The sector that holds the start of the path is the active one; the path is folded into
///    sector 0.
/// 2. Open ends near one of the two rays that bound sector 0 are moved onto it.
/// 3. The path is cut at these rays and the pieces inside sector 0 are kept.
/// 4. A piece that ends on a ray is joined with its images there, so that no seam is left.
///
/// What comes out replaces the source; `Images` says which copies complete it. Mirroring a result
/// again changes nothing, which is what keeps a live layer calm.

#include "symmetry/geometry/CutPath.h"
#include "symmetry/geometry/JoinPieces.h"
#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace facetta {

/// What replaces a mirrored path.
struct MirroredPath {
    int sector = 0;                ///< the active sector in which the source was drawn
    std::vector<Contour> contours; ///< the one that holds the start of the source comes first
    bool compound = false;         ///< the contours are one compound path; they agree in `images`
    bool unchanged = false;        ///< the contours are the source, bit for bit
    bool carried = false;          ///< they are the source carried into sector 0, and no more
};

/// Mirrors paths across one set of axes. Keeps its working storage from path to path, so that one
/// object should serve a whole run.
class PathMirror {
public:
    /// `axes` has its origin in the space of the paths and at least one axis. Open ends closer to a
    /// bounding ray than `snapDistance` (points, not negative) are moved onto it.
    PathMirror(const PageAxes& axes, double snapDistance);

    /// The mirrored form of one path. The contours of an open source are separate paths, those of a
    /// closed one are painted together. Coordinates of the result are storable as 32-bit reals. An
    /// empty path gives no contours.
    ///
    /// The result is the caller's until the next call, which takes back its storage. `source` is
    /// left as a path of no meaning, with storage that serves for the next one.
    [[nodiscard]] MirroredPath& mirror(PathShape&& source);
    [[nodiscard]] MirroredPath& mirror(const PathShape& source) {
        return mirror(PathShape{source});
    }

    /// The same for the members of a compound path: they share the active sector, found by the
    /// first one, and the result is always a compound.
    [[nodiscard]] MirroredPath& mirrorCompound(std::span<const PathShape> members);

    /// The map that carries a sector onto sector 0.
    [[nodiscard]] const Matrix& fold(int sector) const {
        return folds_[static_cast<std::size_t>(sector)];
    }

private:
    /// The sector in which a path starts and the place that tells it.
    struct Start {
        int sector = 0;
        double position = 0.0; ///< segment index plus parameter
    };

    [[nodiscard]] Start findStart(const PathShape& path, double clear) const;
    void foldSource(int sector);
    void snapEnds();
    void snapEnd(PathSegment& end);
    void moveOnto(Ray ray, PathSegment& segment) const;

    void begin();
    Contour& nextContour();
    void addMirrored(double clear);
    void addContours(double start);
    void keepWhole(Images images);
    void keepAsDrawn();
    void startWithSource(const Stretch& stretch, Contour& contour) const;
    void addAlongRay(const Stretch& stretch);
    void agreeInImages();

    PageAxes axes_;
    Wedge wedge_;
    double snapDistance_;
    PathCutter cutter_;
    PieceJoiner joiner_;
    std::vector<Matrix> folds_; ///< By sector.
    PathShape folded_;          ///< The source, in place.
    bool endsMoved_ = false;
    bool cut_ = false; ///< Some of it: then the contours are not the whole of it.
    Piece piece_;
    MirroredPath result_;
    std::size_t contourCount_ = 0; // of the contours in result_, which keep their storage
};

} // namespace facetta
