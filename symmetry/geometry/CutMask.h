#pragma once

/// Cutting a clipping mask to the sectors in which it was drawn.
///
/// What a mask clips is carried whole into every sector, so the mask must end at the axes: then
/// each sector shows its own part and the images meet without overlapping. A path that leaves its
/// sector and comes back runs along the rays in between, round the origin if need be. All of the
/// plane beyond a sector can be drawn together onto its rays without passing a place inside, so the
/// new path winds around every place of the sector as often as the old one did: holes stay holes
/// and overlaps overlaps, by either fill rule.

#include "symmetry/geometry/CutPath.h"
#include "symmetry/geometry/Islands.h"
#include "symmetry/geometry/MirrorFrame.h"
#include "symmetry/geometry/PathShape.h"

#include <span>
#include <vector>

namespace facetta {

/// What a mask shows in one sector.
struct SectorMask {
    int sector = 0;
    std::vector<PathShape> members; ///< at least one
};

/// The mask that `members` make by `rule`, an open one closed by a straight line: one part for each
/// sector in which an island was drawn, the first member's first, in place. Its members stay as
/// they are, bit for bit, unless they are cut, as do those too small for that. Mirroring a part
/// again changes nothing. No part when no member has a curve.
[[nodiscard]] std::vector<SectorMask> cutMask(const MirrorFrame& frame,
                                              std::span<const PathShape> members, FillRule rule,
                                              CutScratch& scratch);

} // namespace facetta
