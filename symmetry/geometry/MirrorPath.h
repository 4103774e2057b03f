#pragma once

/// Mirroring one path across symmetry axes.
///
/// 1. The sector that holds the start of the path is the active one; the path is folded into
///    sector 0.
/// 2. A path that neither ends near one of the two rays that bound sector 0 nor crosses them is
///    carried as it was drawn. Of any other, ends near a ray are moved onto it, and free ends lose
///    their handles.
/// 3. The path is cut at these rays and the pieces inside sector 0 are kept.
/// 4. A piece that ends on a ray is joined with its images there, so that no seam is left.
///
/// What comes out replaces the source; `Images` says which copies complete it. Mirroring a result
/// again changes nothing, which is what keeps a live layer calm.

#include "symmetry/geometry/CutPath.h"
#include "symmetry/geometry/Islands.h"
#include "symmetry/geometry/JoinPieces.h"
#include "symmetry/geometry/MirrorFrame.h"
#include "symmetry/geometry/PathShape.h"
#include "symmetry/geometry/Spares.h"

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

/// Storage that mirroring works in, worth keeping from path to path; what it holds between calls
/// means nothing.
struct MirrorScratch {
    CutScratch cut;
    Spares<PathSegment> runs;
    Spares<Contour> contours;

    /// Takes back the storage of a result that is no longer needed.
    void giveBack(MirroredPath&& result) { giveBack(std::move(result.contours)); }
    void giveBack(std::vector<Contour>&& done);
};

/// The mirrored form of one path. The contours of an open source are separate paths, those of a
/// closed one are painted together. Coordinates of the result are storable as 32-bit reals. An
/// empty path gives no contours.
///
/// What is too small to be cut stays where it was drawn.
[[nodiscard]] MirroredPath mirror(const MirrorFrame& frame, const PathShape& source,
                                  MirrorScratch& scratch);

/// The same for the members of a compound path; the result is always a compound. Each island has an
/// active sector of its own, found by the first of its members that has a curve. One that is the
/// image of an earlier island in another sector adds nothing. `sector` is that of the first island.
[[nodiscard]] MirroredPath mirrorCompound(const MirrorFrame& frame,
                                          std::span<const PathShape> members, FillRule rule,
                                          MirrorScratch& scratch);

} // namespace facetta
