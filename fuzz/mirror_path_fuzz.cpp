/// Any bytes as axes and paths: mirroring ends, loses no path, writes only coordinates that the
/// host can store, and removing points never adds any.

#include "symmetry/geometry/MirrorPath.h"
#include "symmetry/geometry/RemovePoints.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

namespace {

using namespace facetta;

void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

/// How wild coordinates are.
enum class Tier { Artboard, FarOut, AnyBits };

/// Takes values off the front of the input; zeros follow its end.
class Input {
public:
    explicit Input(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    [[nodiscard]] bool empty() const { return bytes_.empty(); }

    template <typename T> T take() {
        T value{};
        const std::size_t size = std::min(sizeof value, bytes_.size());
        std::memcpy(&value, bytes_.data(), size);
        bytes_ = bytes_.subspan(size);
        return value;
    }

    double coordinate(Tier tier) {
        if (tier == Tier::AnyBits) return std::bit_cast<float>(take<std::uint32_t>());
        const double part = take<std::uint16_t>() / 65535.0;
        return narrow(tier == Tier::Artboard ? part * 16383.0 : (part - 0.5) * 2e6);
    }

    /// Small numbers make anchors meet, so one byte may stand for a point near the one before.
    Point point(Tier tier, Point near) {
        const auto choice = take<std::uint8_t>();
        if (choice < 64) return near;
        if (choice < 128) return rounded({near.x + choice - 96.0, near.y});
        if (choice < 192) return rounded({near.x, near.y + choice - 160.0});
        return {coordinate(tier), coordinate(tier)};
    }

    PathShape path(Tier tier, Point near) {
        PathShape shape;
        const auto header = take<std::uint8_t>();
        shape.closed = (header & 1) != 0;
        for (int anchors = header >> 3; anchors > 0; --anchors) {
            const Point anchor = point(tier, near);
            shape.segments.push_back({anchor, point(tier, anchor), point(tier, anchor),
                                      (header & 2) != 0,
                                      static_cast<std::int16_t>(take<std::uint8_t>() % 5)});
            near = anchor;
        }
        return shape;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

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
    const Tier tier = static_cast<Tier>(input.take<std::uint8_t>() % 3);
    PageAxes axes;
    axes.axisCount = 1 + input.take<std::uint8_t>() % kMostAxes;
    axes.angle =
        normaliseAngle(tier == Tier::AnyBits ? std::bit_cast<double>(input.take<std::uint64_t>())
                                             : input.take<std::uint16_t>() * kPi / 180.0);
    axes.origin.x = input.coordinate(tier);
    axes.origin.y = input.coordinate(tier);
    const MirrorFrame frame(axes, input.take<std::uint8_t>());
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
