#include "symmetry/geometry/PerpendicularFeet.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace facetta {
namespace {

/// A polynomial of degree 5 or less on 0 to 1 by its Bernstein coefficients.
///
/// Its zeros inside the interval are never more than the changes of sign among the coefficients,
/// and fewer only by an even number (Descartes' rule). So none means no zero and one means exactly
/// one; halving the interval leads to these two cases.
struct Polynomial {
    std::array<double, 6> coefficients{};
    std::size_t degree = 5;

    [[nodiscard]] double first() const { return coefficients[0]; }
    [[nodiscard]] double last() const { return coefficients[degree]; }
};

struct Signs {
    int changes = 0;
    double first = 0.0; ///< the first coefficient that is not 0: the sign just inside the interval
};

Signs signsOf(const Polynomial& p) {
    Signs signs;
    double before = 0.0;
    for (std::size_t i = 0; i <= p.degree; ++i) {
        const double c = p.coefficients[i];
        if (c == 0.0) continue;
        if (before == 0.0)
            signs.first = c;
        else if ((c < 0.0) != (before < 0.0))
            ++signs.changes;
        before = c;
    }
    return signs;
}

struct Halves {
    Polynomial low;
    Polynomial high;
};

/// De Casteljau's scheme at 1/2.
Halves halved(const Polynomial& p) {
    Halves halves{.low = {.degree = p.degree}, .high = p};
    std::array<double, 6>& c = halves.high.coefficients;
    for (std::size_t done = 0; done < p.degree; ++done) {
        halves.low.coefficients[done] = c[0];
        for (std::size_t i = 0; i < p.degree - done; ++i)
            c[i] = 0.5 * (c[i] + c[i + 1]);
    }
    halves.low.coefficients[p.degree] = c[0];
    return halves;
}

struct ValueAndSlope {
    double value;
    double slope;
};

ValueAndSlope evaluate(const Polynomial& p, double t) {
    std::array<double, 6> c = p.coefficients;
    for (std::size_t left = p.degree; left > 1; --left)
        for (std::size_t i = 0; i < left; ++i)
            c[i] += t * (c[i + 1] - c[i]);
    const double rise = c[1] - c[0];
    return {c[0] + t * rise, static_cast<double>(p.degree) * rise};
}

/// The one zero of `p` inside its interval: Newton's method kept inside a bracket. `before` has the
/// sign of `p` on the near side of the zero.
double onlyZero(const Polynomial& p, double before) {
    constexpr int kMostSteps = 60;          // bisection alone would need 34
    constexpr double kSmallestStep = 1e-10; // after such a step the error is about its square
    double low = 0.0;
    double high = 1.0;
    double t = 0.5;
    for (int step = 0; step < kMostSteps; ++step) {
        const auto [value, slope] = evaluate(p, t);
        if (value == 0.0) break;
        ((value < 0.0) == (before < 0.0) ? low : high) = t;
        double next = t - value / slope;
        if (!(next > low && next < high)) next = 0.5 * (low + high);
        const double moved = std::abs(next - t);
        t = next;
        if (moved <= kSmallestStep) break;
    }
    return t;
}

/// Finds zeros from left to right.
class ZeroFinder {
public:
    /// Those of `p`, which stands for the interval from `from` of length `width`, without its ends.
    void search(const Polynomial& p, double from, double width) {
        const Signs signs = signsOf(p);
        if (signs.changes == 0) return;
        if (signs.changes == 1) return add(from + width * onlyZero(p, signs.first));
        if (width < kSmallestWidth) return addCluster(from + 0.5 * width);
        const double half = 0.5 * width;
        const Halves halves = halved(p);
        search(halves.low, from, half);
        if (halves.high.first() == 0.0) add(from + half);
        search(halves.high, from + half, half);
    }

    void add(double t) {
        if (static_cast<std::size_t>(feet_.count) < feet_.values.size())
            feet_.values[static_cast<std::size_t>(feet_.count++)] = t;
    }

    [[nodiscard]] const Feet& feet() const { return feet_; }

private:
    /// Below it a zero of higher order cannot be told from two: its values are all rounding.
    static constexpr double kSmallestWidth = 1e-7;

    /// What rounding makes of a zero of higher order may spread over neighbouring intervals.
    void addCluster(double t) {
        if (feet_.count > 0 && t - feet_.all().back() < 2.0 * kSmallestWidth) return;
        add(t);
    }

    Feet feet_;
};

/// (B(t) - point) . B'(t) / 3, the product of a cubic and a quadratic.
Polynomial productOf(const std::array<Vector, 4>& q, const std::array<Vector, 3>& d) {
    return {{dot(q[0], d[0]), (3.0 * dot(q[1], d[0]) + 2.0 * dot(q[0], d[1])) / 5.0,
             (3.0 * dot(q[2], d[0]) + 6.0 * dot(q[1], d[1]) + dot(q[0], d[2])) / 10.0,
             (dot(q[3], d[0]) + 6.0 * dot(q[2], d[1]) + 3.0 * dot(q[1], d[2])) / 10.0,
             (2.0 * dot(q[3], d[1]) + 3.0 * dot(q[2], d[2])) / 5.0, dot(q[3], d[2])},
            5};
}

/// `p` divided by t; its first coefficient is 0.
Polynomial withoutZeroAtStart(const Polynomial& p) {
    Polynomial quotient{.degree = p.degree - 1};
    for (std::size_t i = 0; i < p.degree; ++i)
        quotient.coefficients[i] =
            p.coefficients[i + 1] * static_cast<double>(p.degree) / static_cast<double>(i + 1);
    return quotient;
}

/// `p` divided by 1 - t; its last coefficient is 0.
Polynomial withoutZeroAtEnd(const Polynomial& p) {
    Polynomial quotient{.degree = p.degree - 1};
    for (std::size_t i = 0; i < p.degree; ++i)
        quotient.coefficients[i] =
            p.coefficients[i] * static_cast<double>(p.degree) / static_cast<double>(p.degree - i);
    return quotient;
}

/// The larger of the coordinates, without their signs.
double reachOf(std::span<const Vector> vectors) {
    double reach = 0.0;
    for (const Vector v : vectors)
        reach = std::max({reach, std::abs(v.x), std::abs(v.y)});
    return reach;
}

} // namespace

Feet perpendicularFeet(const Cubic& curve, Point point) {
    const std::array<Vector, 4> q{curve.p0 - point, curve.p1 - point, curve.p2 - point,
                                  curve.p3 - point};
    const std::array<Vector, 3> d{curve.p1 - curve.p0, curve.p2 - curve.p1, curve.p3 - curve.p2};
    const double reach = reachOf(d);
    if (reach == 0.0) return {};

    Polynomial p = productOf(q, d);
    for (std::size_t i = 0; d[i] == Vector{}; ++i)
        p = withoutZeroAtStart(p);
    for (std::size_t i = d.size(); d[i - 1] == Vector{}; --i)
        p = withoutZeroAtEnd(p);

    // A foot on an anchor belongs to both of its curves. Rounding must not drive it out of both.
    constexpr double kRounding = 32.0 * std::numeric_limits<double>::epsilon();
    const double zero = kRounding * reach * reachOf(q);
    for (double* end : {&p.coefficients[0], &p.coefficients[p.degree]})
        if (std::abs(*end) <= zero) *end = 0.0;

    ZeroFinder finder;
    if (p.first() == 0.0) finder.add(0.0);
    finder.search(p, 0.0, 1.0);
    if (p.last() == 0.0) finder.add(1.0);
    return finder.feet();
}

} // namespace facetta
