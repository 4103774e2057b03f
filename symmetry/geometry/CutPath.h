#pragma once

/// Cutting a path at the rays that bound sector 0 and keeping what lies inside.

#include "symmetry/geometry/Crossings.h"

#include <cstddef>
#include <vector>

namespace facetta {

/// A part of a path that is kept, from one place to another in path order; on a closed path it may
/// run past the first anchor. The ends of an open path are places on no ray.
struct Stretch {
    Crossing from;
    Crossing to;
    bool alongRay = false; ///< it lies on a ray and is its own reflection
};

/// What is kept of a path.
struct Cut {
    bool whole = false;         ///< the path as it is; `kept` is empty then
    bool wholeAlongRay = false; ///< the same, and every part of it is on a ray
    std::vector<Stretch> kept;
};

/// Storage that `cutAtEdge` works in.
struct CutScratch {
    ContactScratch contacts;
    Spares<Stretch> kept;
};

/// Cuts `path`. The stretches of a closed path begin with the one that holds the path position
/// `start`, or follows it.
///
/// A closed path drops what lies along a ray, as the outside: a half shape drawn against the axis
/// becomes a whole one without a seam there. An open path keeps it; so does a closed one of which
/// nothing else would be left.
[[nodiscard]] Cut cutAtEdge(const Wedge& wedge, const PathShape& path, double start,
                            CutScratch& scratch);

/// The segments of `stretch`, with new anchors at cuts, in `storage` with room for `room` times as
/// many. Coordinates are storable; the outer handles are those of `path`, or on new anchors.
[[nodiscard]] std::vector<PathSegment> extract(const PathShape& path, const Stretch& stretch,
                                               std::size_t room = 1,
                                               std::vector<PathSegment> storage = {});

} // namespace facetta
