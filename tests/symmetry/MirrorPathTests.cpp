#include "symmetry/MirrorPath.h"

#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

using namespace facetta;
using facetta::tests::Random;

TEST_CASE("mirroring a result again changes nothing, bit for bit") {
    Random random;
    for (int i = 0; i < 3000; ++i) {
        CAPTURE(i);
        const SymmetryAxes axes = random.axes();
        const double size = random.size();
        const PathShape source = random.path(axes, random.coin(), size);
        PathMirror first(axes, random.real(0.0, size / 5.0));
        const MirroredPath result = first.mirror(source);
        REQUIRE_FALSE(result.contours.empty());
        if (result.compound) {
            std::vector<PathShape> members;
            for (const Contour& contour : result.contours)
                members.push_back(contour.shape);
            REQUIRE(first.mirrorCompound(members).unchanged);
            continue;
        }
        for (const Contour& contour : result.contours)
            REQUIRE(first.mirror(contour.shape).unchanged);
    }
}
