#include "symmetry/geometry/Crossings.h"

#include "symmetry/geometry/Tolerances.h"
#include "tests/symmetry/PathText.h"
#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace facetta;
using facetta::tests::Random;
using facetta::tests::shapeOf;

namespace {

std::vector<Contact> cutsOf(int axisCount, const PathShape& path) {
    ContactScratch scratch;
    std::vector<Contact> cuts = findContacts(Wedge({.axisCount = axisCount}), path, scratch).all;
    std::erase_if(cuts, [](const Contact& contact) { return !contact.cuts(); });
    return cuts;
}

} // namespace

TEST_CASE("a path is cut where it crosses a ray, and only there") {
    struct Row {
        std::string what;
        int axisCount;
        std::string path;
        std::vector<double> positions; // of the cuts: segment index plus parameter
    };
    const Row rows[] = {
        {"a straight crossing", 1, "M 0 50 L 0 -50", {0.5}},
        {"behind the origin there is no ray", 2, "M -50 50 L -50 -50", {}},
        {"both rays", 2, "M -50 50 L 50 -50", {}}, // through the origin, never inside
        {"both rays, one after the other",
         2,
         "M -10 30 L 30 -10",
         {0.5 - 0.173648, 0.5 + 0.173648}},
        {"three times by one curve",
         1,
         "M -90 -10 C -30 50 30 -50 90 10",
         {0.066987, 0.5, 0.933013}},
        {"touching from inside", 1, "M -40 40 C -10 -13.3333 10 -13.3333 40 40", {}},
        {"touching from outside", 1, "M -40 -40 C -10 13.3333 10 13.3333 40 -40", {}},
        {"through an anchor", 1, "M 0 50 L 10 0 L 20 -50", {1.0}},
        {"through an anchor off the axis by rounding", 1, "M 0 50 L 10 0.004 L 20 -50", {1.0}},
        {"through an anchor farther off", 1, "M 0 50 L 10 0.1 L 10 -50", {1.026}},
        {"touching with a tip", 1, "M -1 50 L 0 -0.03 L 1 50", {}},
        {"a tip that is drawn across", 1, "M -50 50 L 0 -50 L 50 50", {0.5, 1.5}},
        {"a line drawn there and back", 1, "M 0 50 L 0 -50 Z", {1.5, 0.5}},
        {"a needle drawn across", 1, "M -0.002 50 L 0 -50 L 0.002 50", {0.5, 1.5}},
        {"a doubled anchor on the ray", 1, "M 0 50 L 10 0 L 10 0 L 20 -50", {1.0}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const std::vector<Contact> cuts = cutsOf(row.axisCount, shapeOf(row.path));
        REQUIRE(cuts.size() == row.positions.size());
        for (std::size_t i = 0; i < row.positions.size(); ++i)
            CHECK(cuts[i].first.position() == doctest::Approx(row.positions[i]).epsilon(1e-3));
    }
}

TEST_CASE("a place on both rays is the origin; beside it the nearer ray has it") {
    const Wedge narrow({.axisCount = 72});
    CHECK(narrow.rayAt({0.001, -0.001}) == Ray::Origin);
    CHECK(narrow.rayAt({0.1, 0.0}) == Ray::First);
    CHECK(narrow.rayAt(Point{} + 0.1 * direction(kPi / 72.0)) == Ray::Last);
    CHECK(narrow.rayAt({-0.1, 0.0}) == Ray::None);
    const Wedge halfPlane({.axisCount = 1});
    CHECK(halfPlane.rayAt({-5.0, 0.0}) == Ray::Last);
    CHECK(halfPlane.rayAt({5.0, 0.0}) == Ray::First);
}

TEST_CASE(
    "the distance from a ray is that from its segment, for all that is not behind the origin") {
    Random random;
    int compared = 0;
    for (int i = 0; i < 2000; ++i) {
        const PageAxes axes = random.axes();
        const Wedge wedge(axes);
        const Point point = random.point(axes.origin, random.coin() ? 500.0 : 2.0 * kRayLength);
        for (const Ray ray : {Ray::First, Ray::Last}) {
            if (wedge.along(ray, point) < 0.0) continue;
            const int k = ray == Ray::First ? 0 : sectorCount(axes) - 1;
            const double wanted = distance(point, nearestPoint(raySegment(axes, k), point));
            REQUIRE(wedge.distanceFrom(ray, point) == doctest::Approx(wanted).epsilon(1e-9));
            ++compared;
        }
    }
    CHECK(compared > 1000);
}

TEST_CASE("crossings are sorted, storable, on their ray and on the path") {
    Random random;
    int cutsSeen = 0;
    for (int i = 0; i < 4000; ++i) {
        CAPTURE(i);
        const PageAxes axes = random.axes();
        const Wedge wedge(axes);
        const PathShape path = random.path(axes, random.coin(), random.size());
        ContactScratch scratch;
        const std::vector<Contact> contacts = findContacts(wedge, path, scratch).all;
        Side before = contacts.empty() ? Side::Nowhere : contacts.front().before;
        for (const Contact& contact : contacts) {
            REQUIRE(contact.before == before);
            before = contact.after;
            for (const Crossing& crossing : {contact.first, contact.last}) {
                ++cutsSeen;
                REQUIRE(crossing.ray != Ray::None);
                REQUIRE(distance(wedge.onto(crossing.ray, crossing.point), crossing.point) <
                        kOnAxisDistance);
                REQUIRE(rounded(crossing.point) == crossing.point);
                const auto index = static_cast<std::size_t>(crossing.segment);
                const Point onPath = crossing.onAnchor
                                         ? path.segments[index].anchor
                                         : evaluate(curveAt(path, index), crossing.parameter);
                REQUIRE(distance(onPath, crossing.point) < kOnAxisDistance);
            }
            REQUIRE((contact.first.position() <= contact.last.position() || path.closed));
        }
    }
    CHECK(cutsSeen > 4000);
}
