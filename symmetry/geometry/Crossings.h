#pragma once

/// Where a path meets the two rays that bound sector 0.
///
/// The path is described by its contacts with the rays, in path order, and by the side on which it
/// runs between them. A contact is usually one crossing; it is a stretch of the path where that
/// runs along a ray, or barely leaves it.

#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"
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
        double fromFirst;
        double fromLast;

        /// The signed distance from the edge of sector 0, positive inside; near the edge it is
        /// exact, outside it is at most the true distance.
        [[nodiscard]] double margin() const { return std::min(fromFirst, fromLast); }
    };

    [[nodiscard]] Distances distances(Point point) const {
        const Vector offset = point - origin_;
        return {cross(first_, offset), cross(offset, last_)};
    }
    [[nodiscard]] double margin(Point point) const { return distances(point).margin(); }

    /// The ray on which `point` lies to within the on-axis distance, the nearer one of two.
    [[nodiscard]] Ray rayAt(Point point) const;

    [[nodiscard]] bool atOrigin(Point point) const;

    /// How far along `ray` the point lies; negative behind the origin.
    [[nodiscard]] double along(Ray ray, Point point) const {
        return dot(towards(ray), point - origin_);
    }

    /// How far the point is from `ray`, which ends where rays are drawn to. Exact for a point that
    /// is not behind the origin.
    [[nodiscard]] double distanceFrom(Ray ray, Point point) const {
        const Distances both = distances(point);
        const double aside = ray == Ray::Last ? both.fromLast : both.fromFirst;
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

/// Finds the contacts of paths with the edge of one wedge, reusing its storage from path to path.
class ContactFinder {
public:
    explicit ContactFinder(const Wedge& wedge) : wedge_(wedge) {}

    /// Examines `path`, which must stay as it is while the results are used.
    void examine(const PathShape& path);

    /// In path order. Empty when `whole` tells the side of the whole path.
    [[nodiscard]] const std::vector<Contact>& contacts() const { return contacts_; }

    /// The side of a path without contacts; `Side::AlongRay` for one that never leaves the rays.
    [[nodiscard]] Side whole() const { return whole_; }

private:
    /// True when every curve is clear of both rays, so that any anchor tells the side of all.
    bool collectCrossings(const PathShape& path);
    [[nodiscard]] Crossing anchorCrossing(std::size_t index, Point anchor) const;
    void addCurveCrossings(std::size_t index, const Cubic& curve,
                           const std::array<Wedge::Distances, 4>& distances);
    void addRayCrossings(std::size_t index, const Cubic& curve, Ray ray, const Roots& roots);
    [[nodiscard]] double farthestMargin(std::size_t firstAnchor, std::size_t endAnchor) const;
    [[nodiscard]] double farthestMargin(const Cubic& curve, const Crossing& from,
                                        const Crossing& to) const;
    [[nodiscard]] bool hardlyLeaves(const Cubic& curve, const Crossing& from, const Crossing& to,
                                    double apart) const;
    [[nodiscard]] bool runsAlong(const Cubic& curve, const Crossing& from,
                                 const Crossing& to) const;
    [[nodiscard]] Side sideBetween(const PathShape& path, const Crossing& from,
                                   const Crossing& to) const;
    [[nodiscard]] bool isTipThroughEdge(const PathShape& path, const Crossing& from,
                                        const Crossing& to) const;
    [[nodiscard]] Side sideOnCurve(const Cubic& curve, const Crossing& from,
                                   const Crossing& to) const;
    void groupClosed(const PathShape& path);
    void groupOpen(const PathShape& path);
    void group(Side before, Side after);
    void addContact(std::size_t begin, std::size_t last, Side before, Side after);

    Wedge wedge_;
    std::vector<double> margins_; // of the anchors
    std::vector<Crossing> crossings_;
    std::vector<Side> sides_; // after each crossing
    std::vector<Contact> contacts_;
    Side whole_ = Side::Nowhere;
};

} // namespace facetta
