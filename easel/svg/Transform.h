#pragma once

#include "easel/document/Bezier.h"

#include <optional>
#include <string>
#include <string_view>

/// Points and affine matrices of SVG: x to the right, y downwards, in user units.
namespace easel::svg {

using Point = CurvePoint;

/// x' = a x + c y + e, y' = b x + d y + f, as in SVG's matrix(a b c d e f).
struct Matrix {
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double e = 0.0;
    double f = 0.0;
    bool operator==(const Matrix&) const = default;
};

[[nodiscard]] constexpr Matrix translation(Point way) { return {1, 0, 0, 1, way.x, way.y}; }

[[nodiscard]] Point operator*(const Matrix& matrix, Point point);

/// First `inner`, then `outer`: the order in which nested SVG groups are read from the left.
[[nodiscard]] Matrix operator*(const Matrix& outer, const Matrix& inner);

/// Nothing when the matrix flattens the plane, or nearly so.
[[nodiscard]] std::optional<Matrix> inverse(const Matrix& matrix);

/// Does it keep circles, nearly?
[[nodiscard]] bool isConformal(const Matrix& matrix);

/// The factor by which a length grows on the average over all directions; what a stroke that is
/// flattened together with its path is multiplied by.
[[nodiscard]] double meanScale(const Matrix& matrix);

/// The matrix of a `transform` attribute: matrix, translate, scale, rotate, skewX, skewY, any
/// number of them. Nothing when the text is no such list.
[[nodiscard]] std::optional<Matrix> parseTransform(std::string_view text);

/// "matrix(a b c d e f)", or "translate(e f)" where that says it all.
[[nodiscard]] std::string formatTransform(const Matrix& matrix);

} // namespace easel::svg
