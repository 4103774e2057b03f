#include "symmetry/geometry/Bezier.h"

#include "tests/symmetry/RandomPaths.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace facetta;
using facetta::tests::Random;

TEST_CASE("the parts of a curve lie on it and keep its ends bit for bit") {
    Random random;
    for (int i = 0; i < 2000; ++i) {
        CAPTURE(i);
        const Cubic curve{random.point({}, 1000.0), random.point({}, 1000.0),
                          random.point({}, 1000.0), random.point({}, 1000.0)};
        const double from = random.real(0.0, 0.5);
        const double to = random.real(0.5, 1.0);
        const Cubic part = between(curve, from, to);
        for (const double t : {0.0, 0.3, 0.9, 1.0})
            REQUIRE(distance(evaluate(part, t), evaluate(curve, std::lerp(from, to, t))) < 1e-9);
        REQUIRE(between(curve, 0.0, to).p0 == curve.p0);
        REQUIRE(between(curve, from, 1.0).p3 == curve.p3);
        REQUIRE(evaluate(curve, 0.0) == curve.p0);
    }
}

TEST_CASE("a function changes its sign where it crosses zero and nowhere else") {
    struct Row {
        std::string what;
        BernsteinCubic function;
        std::vector<double> expected;
    };
    const Row rows[] = {
        {"positive throughout", {1, 2, 3, 1}, {}},
        {"a straight line", {-1, -1.0 / 3, 1.0 / 3, 1}, {0.5}},
        {"a dip that does not reach zero", {1, 0, 0, 1}, {}},
        {"a dip that just touches it", {1, -1.0 / 3, -1.0 / 3, 1}, {}},
        {"a dip below it", {1, -1, -1, 1}, {0.5 - std::sqrt(1.0 / 12), 0.5 + std::sqrt(1.0 / 12)}},
        {"a shallow one",
         {1e-3, -1e-3, -1e-3, 1e-3},
         {0.5 - std::sqrt(1.0 / 12), 0.5 + std::sqrt(1.0 / 12)}},
        {"three times", {-1, 5, -5, 1}, {0.5 - std::sqrt(3.0) / 4, 0.5, 0.5 + std::sqrt(3.0) / 4}},
        {"an inflection on it", {-1, 1, -1, 1}, {0.5}},
        {"zero at the start", {0, 1, 1, 1}, {}},
        {"zero at the start and crossing later", {0, 1, 1, -1}, {(std::sqrt(21.0) - 3) / 2}},
        {"zero everywhere", {0, 0, 0, 0}, {}},
        {"so close to the end that it rounds to it", {1, 1, 1, -1e-17}, {1}},
        {"not a number", {NAN, 1, -1, 1}, {}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const Roots roots = signChanges(row.function);
        for (const double root : roots.all()) {
            CHECK(std::abs(evaluate(row.function, root)) < 1e-14);
            CHECK((root > 0 && root < 1));
        }
        REQUIRE(roots.all().size() == row.expected.size());
        for (std::size_t i = 0; i < row.expected.size(); ++i)
            CHECK(roots.values[i] == doctest::Approx(row.expected[i]).epsilon(1e-12));
    }
}
