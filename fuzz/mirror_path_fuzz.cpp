/// Any bytes as axes and paths: mirroring ends, loses no path, writes only coordinates that the
/// host can store, and removing points never adds any.

#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "symmetry/geometry/MirrorPath.h"
#include "symmetry/geometry/RemovePoints.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using namespace facetta;
using namespace facetta::fuzz;

bool isFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

void checkResult(const MirroredPath& result, Tier tier) {
    for (const Contour& contour : result.contours) {
        require(!contour.shape.segments.empty(), "contours have anchors");
        for (const PathSegment& segment : contour.shape.segments)
            for (const Point point : {segment.anchor, segment.in, segment.out})
                require(tier == Tier::AnyBits || (isFinite(point) && rounded(point) == point),
                        "storable coordinates");
    }
    if (result.compound && !result.contours.empty())
        require(std::ranges::all_of(result.contours,
                                    [&](const Contour& contour) {
                                        return contour.images == result.contours[0].images;
                                    }),
                "members of a compound path agree in their images");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input({data, size});
    const Tier tier = static_cast<Tier>(input.byte() % 3);
    const PageAxes axes = input.axes(tier);
    const MirrorFrame frame(axes, input.byte());
    MirrorScratch scratch;

    std::vector<PathShape> members;
    while (!input.empty() && members.size() < 4)
        members.push_back(input.path(tier, axes.origin));
    for (const PathShape& path : members) {
        const MirroredPath result = mirror(frame, path, scratch);
        require(result.contours.empty() == path.segments.empty(), "no path is lost");
        checkResult(result, tier);
        require(removeRedundantAxisPoints(path, axes).segments.size() <= path.segments.size(),
                "removing points adds none");
    }
    const bool nothing = std::ranges::all_of(
        members, [](const PathShape& member) { return member.segments.empty(); });
    const MirroredPath compound = mirrorCompound(frame, members, FillRule::NonZero, scratch);
    require(compound.contours.empty() == nothing, "no compound path is lost");
    checkResult(compound, tier);
    return 0;
}
