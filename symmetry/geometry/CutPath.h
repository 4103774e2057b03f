#pragma once

/// Cutting a path at the rays that bound sector 0 and keeping what lies inside.

#include "symmetry/geometry/Crossings.h"

#include <span>
#include <vector>

namespace facetta {

/// A part of a path that is kept, from one place to another in path order; on a closed path it may
/// run past the first anchor. The ends of an open path are places on no ray.
struct Stretch {
    Crossing from;
    Crossing to;
    bool alongRay = false; ///< it lies on a ray and is its own reflection
};

/// Cuts paths at the edge of one wedge, reusing its storage from path to path.
class PathCutter {
public:
    explicit PathCutter(const Wedge& wedge) : finder_(wedge) {}

    /// Finds the stretches of `path` to keep. Those of a closed path begin with the one that holds
    /// the path position `start`, or follows it.
    ///
    /// A closed path drops what lies along a ray, as the outside: a half shape drawn against the
    /// axis becomes a whole one without a seam there. An open path keeps it; so does a closed one
    /// of which nothing else would be left.
    void cut(const PathShape& path, double start);

    /// The path is kept as it is; `kept` is empty.
    [[nodiscard]] bool keepsWhole() const { return keepsWhole_; }

    /// Every part of the path is on a ray.
    [[nodiscard]] bool wholeAlongRay() const { return finder_.whole() == Side::AlongRay; }

    [[nodiscard]] std::span<const Stretch> kept() const { return kept_; }

private:
    void keepOpen(const PathShape& path);
    void keepClosed(double start);

    ContactFinder finder_;
    std::vector<Contact> cuts_;
    std::vector<Stretch> kept_;
    bool keepsWhole_ = false;
};

/// Replaces `piece` by the segments of `stretch`, with new anchors at cuts. Coordinates are
/// storable; the outer handles of the piece are those of `path`, or on new anchors.
void extract(const PathShape& path, const Stretch& stretch, std::vector<PathSegment>& piece);

} // namespace facetta
