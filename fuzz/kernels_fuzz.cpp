/// Any bytes as curves, lines and paths: what the kernels of the geometry answer about them is held
/// against sampling in more digits.

#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "symmetry/geometry/Crossings.h"
#include "symmetry/geometry/PerpendicularFeet.h"
#include "tests/symmetry/FootEquation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using namespace facetta;
using namespace facetta::fuzz;
using tests::FootEquation;

constexpr int kSamples = 128;

/// Between two samples no multiple of them, so that none meets what lies on round numbers.
double sampleAt(int i) { return (i + kSampleParameter) / kSamples; }

template <typename Of> long double deCasteljau(const Of (&c)[4], long double t) {
    const auto mix = [t](long double a, long double b) { return a + t * (b - a); };
    return mix(mix(mix(c[0], c[1]), mix(c[1], c[2])), mix(mix(c[1], c[2]), mix(c[2], c[3])));
}

double largestOf(const Cubic& curve) {
    double largest = 0;
    for (const Point point : {curve.p0, curve.p1, curve.p2, curve.p3})
        largest = std::max({largest, std::abs(point.x), std::abs(point.y)});
    return largest;
}

Point exactly(const Cubic& curve, long double t) {
    const double x[] = {curve.p0.x, curve.p1.x, curve.p2.x, curve.p3.x};
    const double y[] = {curve.p0.y, curve.p1.y, curve.p2.y, curve.p3.y};
    return {static_cast<double>(deCasteljau(x, t)), static_cast<double>(deCasteljau(y, t))};
}

void checkParts(const Cubic& curve, double one, double other) {
    const auto [from, to] = std::minmax(one, other);
    const double allowed = 32 * std::numeric_limits<double>::epsilon() * largestOf(curve);
    const auto isPart = [&](const Cubic& part, double begin, double end) {
        for (const double t : {0.0, 0.25, 0.7, 1.0})
            require(distance(exactly(part, t), exactly(curve, std::lerp(begin, end, t))) <= allowed,
                    "the part of a curve lies on it");
    };
    const SplitCubic parts = split(curve, from);
    require(parts.before.p0 == curve.p0 && parts.after.p3 == curve.p3 &&
                parts.before.p3 == parts.after.p0,
            "parts keep the ends and meet");
    isPart(parts.before, 0, from);
    isPart(parts.after, from, 1);
    isPart(between(curve, from, to), from, to);
}

/// Wherever the function is clearly not zero its sign follows from the changes before.
void checkSignChanges(const BernsteinCubic& function) {
    const Roots roots = signChanges(function);
    require(std::ranges::is_sorted(roots.all()), "changes of sign in order");
    double largest = 0;
    for (const double each : function)
        largest = std::max(largest, std::abs(each));
    const double noise = 64 * std::numeric_limits<double>::epsilon() * largest;
    const double coefficients[] = {function[0], function[1], function[2], function[3]};
    int sign = 0; // before all changes
    for (const double root : roots.all())
        require(root > 0 && root < 1 && std::abs(deCasteljau(coefficients, root)) <= noise,
                "a change of sign is a zero");
    for (int i = 0; i < kSamples; ++i) {
        const double t = sampleAt(i);
        const auto value = static_cast<double>(deCasteljau(coefficients, t));
        if (std::abs(value) <= noise) continue;
        const auto before = std::ranges::count_if(roots.all(), [t](double at) { return at < t; });
        const int here = (value > 0) == (before % 2 == 0) ? 1 : -1;
        require(sign == 0 || sign == here, "a sign changes where it is said and nowhere else");
        sign = here;
    }
}

void checkFeet(const Cubic& curve, Point point) {
    const FootEquation equation(curve, point);
    const Feet feet = perpendicularFeet(curve, point);
    require(std::ranges::is_sorted(feet.all()), "feet in order");
    for (const double t : feet.all())
        require(std::abs(equation(t)) <= std::abs(equation.slope(t)) * 1e-9L + equation.noise(),
                "a foot is a zero of its equation");
    for (int i = 1; i < kSamples; ++i) {
        const long double from = sampleAt(i - 1);
        const long double to = sampleAt(i);
        if ((equation(from) < 0) == (equation(to) < 0)) continue;
        const long double zero = equation.zeroBetween(from, to);
        const bool simple = equation.noise() < 1e-10L * std::abs(equation.slope(zero));
        const bool found = std::ranges::any_of(feet.all(), [=](double foot) {
            return std::abs(foot - zero) < (simple ? 1e-9L : 1e-4L);
        });
        require(found || std::abs(equation(from)) <= equation.noise() ||
                    std::abs(equation(to)) <= equation.noise(),
                "every foot that sampling sees is found");
    }
}

void checkContacts(const PageAxes& axes, const PathShape& path) {
    const Wedge wedge(axes);
    ContactScratch scratch;
    const Contacts contacts = findContacts(wedge, path, scratch);
    Side before = contacts.all.empty() ? Side::Nowhere : contacts.all.front().before;
    for (const Contact& contact : contacts.all) {
        require(contact.before == before, "a stretch has one side");
        before = contact.after;
        for (const Crossing& crossing : {contact.first, contact.last}) {
            const auto index = static_cast<std::size_t>(crossing.segment);
            const Point onPath = crossing.onAnchor
                                     ? path.segments[index].anchor
                                     : exactly(curveAt(path, index), crossing.parameter);
            // Far out the reals of the host are farther apart than what counts as one place.
            const double allowed =
                kOnAxisDistance + kStorageSpacing * (std::abs(onPath.x) + std::abs(onPath.y));
            require(rounded(crossing.point) == crossing.point, "a crossing can be stored");
            require(distance(onPath, crossing.point) < allowed, "a crossing lies on the path");
            require(crossing.ray != Ray::None && distance(wedge.onto(crossing.ray, crossing.point),
                                                          crossing.point) < allowed,
                    "a crossing lies on its ray");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input({data, size});
    const Tier tier = static_cast<Tier>(input.byte() % 2);
    const Point middle{input.coordinate(tier), input.coordinate(tier)};
    Cubic curve{};
    curve.p0 = input.point(tier, middle);
    curve.p1 = input.point(tier, curve.p0);
    curve.p2 = input.point(tier, curve.p1);
    curve.p3 = input.point(tier, curve.p2);
    const double from = input.part();
    checkParts(curve, from, input.part());
    checkFeet(curve, input.point(tier, curve.p3));
    checkSignChanges({input.coordinate(tier), -input.coordinate(tier), input.coordinate(tier),
                      -input.coordinate(tier)});
    const Vector along = direction(input.take<std::uint16_t>() * kPi / 180.0);
    const auto away = [&](Point point) { return cross(along, point - middle); };
    checkSignChanges({away(curve.p0), away(curve.p1), away(curve.p2), away(curve.p3)});
    const PageAxes axes = input.axes(tier);
    checkContacts(axes, input.path(tier, axes.origin));
    return 0;
}
