#include "symmetry/geometry/PerpendicularFeet.h"

#include "tests/symmetry/FootEquation.h"
#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace facetta;
using facetta::tests::FootEquation;
using facetta::tests::Random;

namespace {

struct Shape {
    const char* name;
    void (*degenerate)(Cubic&);
};

const Shape kShapes[] = {
    {"any", [](Cubic&) {}},
    {"handle on the start", [](Cubic& c) { c.p1 = c.p0; }},
    {"handle on the end", [](Cubic& c) { c.p2 = c.p3; }},
    {"straight, handles on the anchors",
     [](Cubic& c) {
         c.p1 = c.p0;
         c.p2 = c.p3;
     }},
    {"straight, running back and forth",
     [](Cubic& c) {
         c.p1 = lerp(c.p0, c.p3, 1.75);
         c.p2 = lerp(c.p0, c.p3, -0.75);
     }},
    {"both handles on the start", [](Cubic& c) { c.p1 = c.p2 = c.p0; }},
    {"both handles in one place", [](Cubic& c) { c.p2 = c.p1; }},
    {"from a place back to it", [](Cubic& c) { c.p3 = c.p0; }},
    {"a loop",
     [](Cubic& c) {
         const Vector along = c.p3 - c.p0;
         c.p1 = c.p3 + along;
         c.p2 = c.p0 - along;
     }},
    {"small",
     [](Cubic& c) {
         c = {c.p0, lerp(c.p0, c.p1, 1e-3), lerp(c.p0, c.p2, 1e-3), c.p0};
     }},
};

bool isFoot(const Feet& feet, long double t, double tolerance) {
    return std::ranges::any_of(feet.all(), [&](double foot) {
        return std::abs(static_cast<double>(foot - t)) < tolerance;
    });
}

} // namespace

TEST_CASE("the feet of perpendiculars, by hand") {
    constexpr double k = 0.5522847498307936; // handles of a quarter of a circle
    // From the middle of the circle: such a quarter touches the true one three times.
    const double between = 0.5 - std::sqrt(1.0 / 12.0);
    const double besideTip = 0.5 - std::sqrt((std::sqrt(1.188e11) - 1.8e5) / 9.6e5);
    struct Row {
        std::string what;
        Cubic curve;
        Point point;
        std::vector<double> feet;
    };
    const Cubic straight{{0, 0}, {0, 0}, {100, 0}, {100, 0}};
    const Cubic even{{0, 0}, {10, 0}, {20, 0}, {30, 0}};
    const Cubic quarter{{1, 0}, {1, k}, {k, 1}, {0, 1}};
    const Cubic cusp{{0, 0}, {100, 100}, {0, 100}, {100, 0}};
    const Row rows[] = {
        {"a straight piece: its corners are no feet", straight, {50, 70}, {0.5}},
        {"beside its end", straight, {130, 70}, {}},
        {"square off its end", straight, {100, 70}, {1.0}},
        {"square off a slanting one's, but for rounding",
         {{0, 0}, {0.7, 0.9}, {1.4, 1.8}, {3 * 0.7, 3 * 0.9}},
         {-4.2, 7.6},
         {1.0}},
        {"from its own start", straight, {0, 0}, {0.0}},
        {"handles along it", even, {12, -5}, {0.4}},
        {"from a point on it", even, {12, 0}, {0.4}},
        {"a quarter of a circle from its middle",
         quarter,
         {0, 0},
         {0.0, between, 0.5, 1.0 - between, 1.0}},
        {"the tip of a cusp and its sides", cusp, {50, 0}, {besideTip, 0.5, 1.0 - besideTip}},
        {"three in one, from the middle of the circle that fits a vertex",
         {{-3, 3}, {-1, -1}, {1, -1}, {3, 3}},
         {0, 1.5},
         {0.5}},
        {"a point", {{7, 7}, {7, 7}, {7, 7}, {7, 7}}, {0, 0}, {}},
        {"not a number", {{0, 0}, {NAN, 1}, {2, 2}, {3, 0}}, {5, 5}, {}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const Feet feet = perpendicularFeet(row.curve, row.point);
        std::string found;
        for (const double t : feet.all())
            found += ' ' + std::to_string(t);
        INFO("found:", found);
        REQUIRE(feet.all().size() == row.feet.size());
        for (std::size_t i = 0; i < row.feet.size(); ++i)
            CHECK(std::abs(feet.values[i] - row.feet[i]) < 1e-9);
    }
}

TEST_CASE("every foot that dense sampling sees is found, and nothing else") {
    constexpr int kSamples = 1000;
    Random random;
    int simpleFeet = 0;
    for (const Shape& shape : kShapes) {
        INFO(shape.name);
        for (int i = 0; i < 300; ++i) {
            CAPTURE(i);
            const double size = random.size();
            Cubic curve{random.point({}, size), random.point({}, size), random.point({}, size),
                        random.point({}, size)};
            shape.degenerate(curve);
            const Point point = random.point({}, random.coin() ? size : 8000.0);
            const FootEquation equation(curve, point);
            const Feet feet = perpendicularFeet(curve, point);
            REQUIRE(std::ranges::is_sorted(feet.all()));

            long double before = equation(0.5L / kSamples);
            for (int sample = 1; sample < kSamples; ++sample) {
                const long double t = (sample + 0.5L) / kSamples;
                const long double value = equation(t);
                if ((value < 0.0L) != (before < 0.0L)) {
                    const long double zero = equation.zeroBetween(t - 1.0L / kSamples, t);
                    const bool simple = equation.noise() < 1e-10L * std::abs(equation.slope(zero));
                    REQUIRE(isFoot(feet, zero, simple ? 1e-9 : 1e-4));
                    simpleFeet += simple ? 1 : 0;
                }
                before = value;
            }
            for (const double t : feet.all()) {
                const long double allowed = std::abs(equation.slope(t)) * 1e-9L;
                REQUIRE(std::abs(equation(t)) <= allowed + equation.noise());
            }
        }
    }
    CHECK(simpleFeet > 2000);
}
