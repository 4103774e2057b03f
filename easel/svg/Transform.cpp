#include "easel/svg/Transform.h"

#include "easel/svg/Numbers.h"

#include <array>
#include <cmath>
#include <numbers>
#include <span>

namespace easel::svg {
namespace {

/// Below this part of the squared size of its entries a determinant is rounding error.
constexpr double kSingular = 1e-14;

constexpr double kRadiansPerDegree = std::numbers::pi / 180.0;

using Arguments = std::span<const double>;

Matrix rotated(double degrees) {
    const double angle = degrees * kRadiansPerDegree;
    return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
}

struct Form {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    Matrix (*matrix)(Arguments);
};

constexpr Form kForms[] = {
    {"matrix", 6, 6, [](Arguments n) { return Matrix{n[0], n[1], n[2], n[3], n[4], n[5]}; }},
    {"translate", 1, 2,
     [](Arguments n) {
         return translation({n[0], n.size() > 1 ? n[1] : 0.0});
     }},
    {"scale", 1, 2,
     [](Arguments n) { return Matrix{n[0], 0, 0, n.size() > 1 ? n[1] : n[0], 0, 0}; }},
    {"rotate", 1, 3,
     [](Arguments n) {
         if (n.size() < 3) return rotated(n[0]);
         return translation({n[1], n[2]}) * rotated(n[0]) * translation({-n[1], -n[2]});
     }},
    {"skewX", 1, 1,
     [](Arguments n) { return Matrix{1, 0, std::tan(n[0] * kRadiansPerDegree), 1, 0, 0}; }},
    {"skewY", 1, 1,
     [](Arguments n) { return Matrix{1, std::tan(n[0] * kRadiansPerDegree), 0, 1, 0, 0}; }},
};

/// One "name(numbers)" at the start of `cursor`.
std::optional<Matrix> readForm(Cursor& cursor) {
    for (const Form& form : kForms) {
        if (!cursor.skipWord(form.name)) continue;
        cursor.skipBlanks();
        if (!cursor.skip('(')) return std::nullopt;
        std::array<double, 6> numbers{};
        std::size_t count = 0;
        while (count < form.most) {
            const std::optional<double> number = cursor.number();
            if (!number) break;
            numbers[count++] = *number;
        }
        cursor.skipBlanks();
        const bool allowed = count >= form.fewest && !(form.name == "rotate" && count == 2);
        if (!allowed || !cursor.skip(')')) return std::nullopt;
        return form.matrix({numbers.data(), count});
    }
    return std::nullopt;
}

} // namespace

Point operator*(const Matrix& m, Point p) {
    return {m.a * p.x + m.c * p.y + m.e, m.b * p.x + m.d * p.y + m.f};
}

Matrix operator*(const Matrix& outer, const Matrix& inner) {
    const Point origin = outer * Point{inner.e, inner.f};
    return {outer.a * inner.a + outer.c * inner.b,
            outer.b * inner.a + outer.d * inner.b,
            outer.a * inner.c + outer.c * inner.d,
            outer.b * inner.c + outer.d * inner.d,
            origin.x,
            origin.y};
}

std::optional<Matrix> inverse(const Matrix& m) {
    const double determinant = m.a * m.d - m.b * m.c;
    const double size = m.a * m.a + m.b * m.b + m.c * m.c + m.d * m.d;
    if (!(std::abs(determinant) > kSingular * size)) return std::nullopt;
    Matrix result{
        m.d / determinant, -m.b / determinant, -m.c / determinant, m.a / determinant, 0, 0};
    const Point origin = result * Point{m.e, m.f};
    result.e = -origin.x;
    result.f = -origin.y;
    return result;
}

bool isConformal(const Matrix& m) {
    const double size = m.a * m.a + m.b * m.b + m.c * m.c + m.d * m.d;
    const double skew = std::abs(m.a * m.c + m.b * m.d);
    const double stretch = std::abs(m.a * m.a + m.b * m.b - m.c * m.c - m.d * m.d);
    return skew <= 1e-6 * size && stretch <= 1e-6 * size;
}

double meanScale(const Matrix& m) { return std::sqrt(std::abs(m.a * m.d - m.b * m.c)); }

std::optional<Matrix> parseTransform(std::string_view text) {
    Cursor cursor{text};
    Matrix result;
    cursor.skipBlanks();
    if (cursor.atEnd() || cursor.skipWord("none")) return result;
    while (!cursor.atEnd()) {
        const std::optional<Matrix> form = readForm(cursor);
        if (!form) return std::nullopt;
        result = result * *form;
        cursor.skipSeparators();
    }
    return result;
}

std::string formatTransform(const Matrix& m) {
    std::string text;
    if (m.a == 1 && m.b == 0 && m.c == 0 && m.d == 1) {
        text = "translate(";
    } else {
        text = "matrix(";
        for (const double entry : {m.a, m.b, m.c, m.d}) {
            appendNumber(text, entry);
            text += ' ';
        }
    }
    appendNumber(text, m.e);
    text += ' ';
    appendNumber(text, m.f);
    return text += ')';
}

} // namespace easel::svg
