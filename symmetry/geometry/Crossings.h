#pragma once

/// Where a path meets the two rays that bound sector 0.
///
/// The path is described by its contacts with the rays, in path order, and by the side on which it
/// runs between them. A contact is usually one crossing; it is a stretch of the path where that
/// runs along a ray, or barely leaves it.

#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/Pair.h"
#include "symmetry/geometry/PathShape.h"
#include "symmetry/geometry/Spares.h"
#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace facetta {

/// Which of the two bounding rays a place lies on.
enum class Ray : std::uint8_t {
    None,
    First, ///< ray 0
    Last,  ///< ray 2N - 1
    Origin ///< where they meet
};

/// Sector 0 as two half-planes. For N = 1 both are the same one, to the bit, and the two rays are
/// the halves of its edge.
class Wedge {
public:
    explicit Wedge(const PageAxes& axes);

    /// Signed distances from the lines of the two rays, positive on the side of sector 0.
    struct Distances {
        Pair both; ///< From the first and from the last.

        [[nodiscard]] double fromFirst() const { return both[0]; }
        [[nodiscard]] double fromLast() const { return both[1]; }

        /// The signed distance from the edge of sector 0, positive inside; near the edge it is
        /// exact, outside it is at most the true distance.
        [[nodiscard]] double margin() const { return std::min(both[0], both[1]); }
    };

    [[nodiscard]] Distances distances(Point point) const {
        const Pair offset = Pair{point.x, point.y} - Pair{origin_.x, origin_.y};
        return {offset[1] * x_ - offset[0] * y_};
    }
    [[nodiscard]] double margin(Point point) const { return distances(point).margin(); }

    /// The ray on which `point` lies to within the on-axis distance, the nearer one of two.
    [[nodiscard]] Ray rayAt(Point point) const { return rayAt(point, distances(point)); }
    /// The same, where the distances of the point are known already.
    [[nodiscard]] Ray rayAt(Point point, const Distances& both) const;

    [[nodiscard]] bool atOrigin(Point point) const;

    /// How far along `ray` the point lies; negative behind the origin.
    [[nodiscard]] double along(Ray ray, Point point) const {
        return dot(towards(ray), point - origin_);
    }

    /// How far the point is from `ray`, which ends where rays are drawn to. Exact for a point that
    /// is not behind the origin.
    [[nodiscard]] double distanceFrom(Ray ray, Point point) const {
        const Distances both = distances(point);
        const double aside = ray == Ray::Last ? both.fromLast() : both.fromFirst();
        const double beyond = along(ray, point) - kRayLength;
        return beyond > 0.0 ? std::hypot(aside, beyond) : std::abs(aside);
    }

    /// The point of `ray` nearest to `point`.
    [[nodiscard]] Point onto(Ray ray, Point point) const {
        return projectOntoRay(point, origin_, towards(ray));
    }

private:
    [[nodiscard]] Vector towards(Ray ray) const { return ray == Ray::Last ? last_ : first_; }

    Point origin_;
    Vector first_;
    Vector last_;
    /// The directions of the first ray and against the last: distances grow to the left of both.
    Pair x_;
    Pair y_;
};

/// A place where a path meets a bounding ray.
struct Crossing {
    std::int32_t segment = 0; ///< the curve that starts at this anchor
    double parameter = 0.0;   ///< on that curve, from 0 and below 1
    Point point;              ///< an existing anchor, or a storable point on the ray
    Ray ray = Ray::None;
    bool onAnchor = false; ///< the path has an anchor here; `parameter` is 0

    /// Rises along the path.
    [[nodiscard]] double position() const { return segment + parameter; }
};

/// On which side of the edge of sector 0 a stretch of a path runs.
enum class Side : std::uint8_t {
    Nowhere, ///< there is no such stretch: the path begins or ends here
    Outside,
    Inside,
    Touching, ///< it never leaves the edge by more than the on-axis distance
    AlongRay  ///< the same, and it is a straight run on one of the rays
};

/// A stretch of a path at the edge of sector 0, often a single crossing.
struct Contact {
    Crossing first;
    Crossing last;
    Side before = Side::Nowhere;
    Side after = Side::Nowhere;
    bool alongRay = false; ///< the path runs along a ray from `first` to `last`

    /// A path that stays on one side only touches the edge.
    [[nodiscard]] bool cuts() const { return alongRay || before != after; }
};

/// Where a path meets the edge of sector 0.
struct Contacts {
    std::vector<Contact>
        all; ///< in path order; empty when `whole` tells the side of the whole path
    /// The side of a path without contacts; `Side::AlongRay` for one that never leaves the rays.
    Side whole = Side::Nowhere;
};

/// Storage that `findContacts` works in; what it holds between calls means nothing.
struct ContactScratch {
    std::vector<double> margins; ///< of the anchors
    std::vector<Crossing> crossings;
    std::vector<Side> sides; ///< after each crossing
    Spares<Contact> contacts;
};

[[nodiscard]] Contacts findContacts(const Wedge& wedge, const PathShape& path,
                                    ContactScratch& scratch);

} // namespace facetta
