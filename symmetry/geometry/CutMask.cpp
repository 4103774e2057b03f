#include "symmetry/geometry/CutMask.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace facetta {
namespace {

/// Axes of which sector 0 is `sector` of `axes`.
PageAxes turnedTo(const PageAxes& axes, int sector) {
    PageAxes turned = axes;
    turned.angle = normaliseAngle(axes.angle + sector * sectorAngle(axes));
    return turned;
}

/// `path` with the line by which a host closes it where it fills it.
PathShape closedByLine(const PathShape& path) {
    PathShape closed = path;
    if (closed.closed) return closed;
    closed.closed = true;
    closed.segments.front().in = closed.segments.front().anchor;
    closed.segments.back().out = closed.segments.back().anchor;
    return closed;
}

/// Ends a straight run at `segment` and begins another.
void straighten(PathSegment& last, PathSegment& next) {
    last.out = last.anchor;
    next.in = next.anchor;
    last.corner = next.corner = true;
}

class MemberCutter {
public:
    MemberCutter(const PageAxes& axes, CutScratch& scratch)
        : origin_(rounded(axes.origin)), isHalfPlane_(axes.axisCount == 1), wedge_(axes),
          scratch_(scratch) {}

    /// The part of `member` inside sector 0; nothing when none is.
    [[nodiscard]] std::optional<PathShape> cut(const PathShape& member) const {
        const PathShape path = closedByLine(member);
        auto [cuts, side] = findContacts(wedge_, path, scratch_.contacts);
        if (!cuts.empty()) side = cuts.front().after;
        // Where it touches an axis or runs along it, and stays on one side, it is not cut.
        std::erase_if(cuts, [](const Contact& contact) { return contact.before == contact.after; });
        if (!cuts.empty()) return joined(path, cuts);
        return side != Side::Outside ? std::optional(member) : std::nullopt;
    }

private:
    /// The stretches inside, one after the other, and runs along the rays from each to the next.
    [[nodiscard]] PathShape joined(const PathShape& path, std::vector<Contact>& cuts) const {
        // They lead out and in by turns: out first.
        if (cuts.front().after == Side::Inside)
            std::rotate(cuts.begin(), cuts.begin() + 1, cuts.end());
        PathShape part{{}, true};
        for (std::size_t i = 0; i < cuts.size(); i += 2) {
            const Crossing& in = cuts[i + 1].last;
            const Crossing& out = cuts[i + 2 < cuts.size() ? i + 2 : 0].first;
            append(part.segments, extract(path, {in, out}));
            const Crossing& next = cuts[i + 3 < cuts.size() ? i + 3 : 1].last;
            if (runsRoundOrigin(out.ray, next.ray))
                append(part.segments,
                       {{origin_, origin_, origin_, true, part.segments.back().selection}});
        }
        straighten(part.segments.back(), part.segments.front());
        return part;
    }

    /// Across a half-plane any two places of its edge lie on one line.
    [[nodiscard]] bool runsRoundOrigin(Ray from, Ray to) const {
        const bool joinsRays = from != to && from != Ray::Origin && to != Ray::Origin;
        return joinsRays && !isHalfPlane_;
    }

    static void append(std::vector<PathSegment>& path, std::vector<PathSegment> run) {
        if (!path.empty()) straighten(path.back(), run.front());
        path.insert(path.end(), run.begin(), run.end());
    }

    Point origin_;
    bool isHalfPlane_;
    Wedge wedge_;
    CutScratch& scratch_;
};

int sectorOf(const MirrorFrame& frame, const DrawnIsland& island) {
    return island.asDrawn ? activeSectorOf(frame, *island.leader).sector : island.start.sector;
}

SectorMask& partIn(int sector, std::vector<SectorMask>& parts) {
    const auto found = std::ranges::find(parts, sector, &SectorMask::sector);
    return found != parts.end() ? *found : parts.emplace_back(SectorMask{sector, {}});
}

} // namespace

std::vector<SectorMask> cutMask(const MirrorFrame& frame, std::span<const PathShape> members,
                                FillRule rule, CutScratch& scratch) {
    const std::vector<std::size_t> islandOf = islandsOf(members, rule);
    const std::vector<DrawnIsland> islands = drawnIslands(frame, members, islandOf);
    std::vector<SectorMask> parts;
    std::vector<bool> shown(islands.size(), false);
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (curveCount(members[i]) == 0) continue; // shows nothing
        const DrawnIsland& island = islands[islandOf[i]];
        const int sector = sectorOf(frame, island);
        const MemberCutter cutter{turnedTo(frame.axes, sector), scratch};
        const std::optional<PathShape> part =
            island.asDrawn ? std::optional(members[i]) : cutter.cut(members[i]);
        if (!part) continue;
        partIn(sector, parts).members.push_back(*part);
        shown[islandOf[i]] = true;
    }
    // An island of slivers along an axis, of which nothing would be left, stays as it is.
    for (std::size_t i = 0; i < members.size(); ++i)
        if (curveCount(members[i]) > 0 && !shown[islandOf[i]])
            partIn(sectorOf(frame, islands[islandOf[i]]), parts).members.push_back(members[i]);
    return parts;
}

} // namespace facetta
