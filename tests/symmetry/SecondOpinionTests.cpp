// Crossings compared with those of an independent library.

#include "symmetry/geometry/Bezier.h"

#include "tests/symmetry/RandomPaths.h"

#include <2geom/bezier-curve.h>
#include <2geom/sbasis.h>
#include <doctest/doctest.h>

#include <vector>

using namespace facetta;
using facetta::tests::Random;

TEST_CASE("curves cross lines where lib2geom says") {
    Random random;
    int crossings = 0;
    for (int i = 0; i < 20000; ++i) {
        CAPTURE(i);
        const Cubic curve{random.point({}, 1000.0), random.point({}, 1000.0),
                          random.point({}, 1000.0), random.point({}, 1000.0)};
        const Point origin = random.point({}, 500.0);
        const Vector along = direction(random.real(0.0, kTwoPi));
        const auto away = [&](Point point) { return cross(along, point - origin); };

        const auto theirPoint = [](Point point) { return Geom::Point(point.x, point.y); };
        const Geom::CubicBezier theirCurve(theirPoint(curve.p0), theirPoint(curve.p1),
                                           theirPoint(curve.p2), theirPoint(curve.p3));
        const Geom::D2<Geom::SBasis> function = theirCurve.toSBasis();
        const std::vector<double> theirs =
            Geom::roots((function[1] - origin.y) * along.x - (function[0] - origin.x) * along.y);

        const Roots ours =
            signChanges({away(curve.p0), away(curve.p1), away(curve.p2), away(curve.p3)});
        crossings += ours.count;
        REQUIRE(ours.all().size() == theirs.size());
        for (std::size_t k = 0; k < theirs.size(); ++k)
            REQUIRE(std::abs(ours.values[k] - theirs[k]) < 1e-7);
    }
    CHECK(crossings > 10000);
}
