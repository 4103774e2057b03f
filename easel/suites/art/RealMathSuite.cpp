#include "host/suites/AIRealMathSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/TransformArt.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <numbers>

namespace easel {
namespace {

/// What a result that is too large for the host becomes.
constexpr double kInfinite = FLT_MAX / 10;
constexpr double kUnknown = FLT_MAX;

/// Rounded once, from double precision. Too large becomes plus or minus infinity of the host, what
/// is no number its unknown.
AIReal real(double value) {
    if (std::isnan(value)) return static_cast<AIReal>(kUnknown);
    return static_cast<AIReal>(std::clamp(value, -kInfinite, kInfinite));
}

AIBoolean flag(bool value) { return value ? 1 : 0; }

// Numbers.

AIReal add(AIReal a, AIReal b) { return real(double{a} + b); }
AIReal multiply(AIReal a, AIReal b) { return real(double{a} * b); }
AIReal divide(AIReal a, AIReal b) { return real(double{a} / b); }
AIReal shortRatio(ai::int16 a, ai::int16 b) { return real(double{1} * a / b); }
AIReal multiplyAdd(AIReal a, AIReal b, AIReal c, AIReal d) {
    return real(double{a} * b + double{c} * d);
}
AIReal multiple(AIReal value, AIReal step, AIBoolean ceiling) {
    const double count = double{value} / step;
    return real((ceiling != 0 ? std::ceil(count) : std::floor(count)) * step);
}
AIReal sine(AIReal angle) { return real(std::sin(double{angle})); }
AIReal cosine(AIReal angle) { return real(std::cos(double{angle})); }
/// The angle of which the tangent is a / b, in the quadrant of (b, a).
AIReal arcTangent(AIReal a, AIReal b) { return real(std::atan2(double{a}, double{b})); }
AIReal degreeToRadian(AIReal degrees) { return real(degrees * std::numbers::pi / 180); }
AIReal radianToDegree(AIReal radians) { return real(radians * 180 / std::numbers::pi); }
AIReal squareRoot(AIReal value) { return real(std::sqrt(double{value})); }
AIReal length(AIReal h, AIReal v) { return real(std::hypot(double{h}, double{v})); }
/// `b` at 0, `a` at 1.
AIReal interpolate(AIReal a, AIReal b, AIReal t) {
    return real(double{t} * a + (1 - double{t}) * b);
}
AIBoolean almostEqual(AIReal a, AIReal b, AIReal tolerance) {
    return flag(std::abs(double{a} - b) <= tolerance);
}

// Points.

void pointAdd(const AIRealPoint* a, const AIRealPoint* b, AIRealPoint* result) {
    required(result) = {add(a->h, b->h), add(a->v, b->v)};
}
void pointSubtract(const AIRealPoint* a, const AIRealPoint* b, AIRealPoint* result) {
    required(result) = {real(double{a->h} - b->h), real(double{a->v} - b->v)};
}
AIBoolean pointEqual(const AIRealPoint* a, const AIRealPoint* b) {
    return flag(a->h == b->h && a->v == b->v);
}
AIBoolean pointClose(const AIRealPoint* a, const AIRealPoint* b, AIReal tolerance) {
    return flag(almostEqual(a->h, b->h, tolerance) != 0 && almostEqual(a->v, b->v, tolerance) != 0);
}
AIReal pointAngle(const AIRealPoint* a, const AIRealPoint* b) {
    return real(std::atan2(double{b->v} - a->v, double{b->h} - a->h));
}
AIReal pointLength(const AIRealPoint* a, const AIRealPoint* b) {
    return real(std::hypot(double{b->h} - a->h, double{b->v} - a->v));
}
void pointLengthAngle(AIReal distance, AIReal angle, AIRealPoint* result) {
    required(result) = {real(distance * std::cos(double{angle})),
                        real(distance * std::sin(double{angle}))};
}
void pointInterpolate(const AIRealPoint* a, const AIRealPoint* b, AIReal t, AIRealPoint* result) {
    required(result) = {interpolate(a->h, b->h, t), interpolate(a->v, b->v, t)};
}

// Rectangles.

bool isEmpty(const AIRealRect& rect) { return rect.right <= rect.left || rect.top <= rect.bottom; }

void rectSet(AIRealRect* rect, AIReal left, AIReal top, AIReal right, AIReal bottom) {
    required(rect) = {left, top, right, bottom};
}
AIBoolean rectEqual(const AIRealRect* a, const AIRealRect* b) {
    return flag(a->left == b->left && a->top == b->top && a->right == b->right &&
                a->bottom == b->bottom);
}
AIBoolean rectEmpty(const AIRealRect* rect) { return flag(isEmpty(required(rect))); }
/// Positive amounts shrink.
void rectInset(AIRealRect* rect, AIReal h, AIReal v) {
    required(rect) = {rect->left + h, rect->top - v, rect->right - h, rect->bottom + v};
}
/// Positive amounts move right and up.
void rectOffset(AIRealRect* rect, AIReal h, AIReal v) {
    required(rect) = {rect->left + h, rect->top + v, rect->right + h, rect->bottom + v};
}
void rectUnion(const AIRealRect* a, const AIRealRect* b, AIRealRect* result) {
    required(result) = {std::min(a->left, b->left), std::max(a->top, b->top),
                        std::max(a->right, b->right), std::min(a->bottom, b->bottom)};
}
void pointUnion(const AIRealPoint* point, const AIRealRect* rect, AIRealRect* result) {
    const AIRealRect around{point->h, point->v, point->h, point->v};
    rectUnion(&around, rect, result);
}
AIRealRect intersection(const AIRealRect& a, const AIRealRect& b) {
    return {std::max(a.left, b.left), std::min(a.top, b.top), std::min(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}
AIBoolean rectOverlap(const AIRealRect* a, const AIRealRect* b) {
    return flag(!isEmpty(intersection(required(a), required(b))));
}
AIBoolean rectIntersect(const AIRealRect* a, const AIRealRect* b, AIRealRect* result) {
    const AIRealRect common = intersection(required(a), required(b));
    required(result) = isEmpty(common) ? AIRealRect{} : common;
    return flag(!isEmpty(common));
}
AIBoolean rectInRect(const AIRealRect* a, const AIRealRect* b) {
    return flag(a->left >= b->left && a->right <= b->right && a->top <= b->top &&
                a->bottom >= b->bottom);
}
AIBoolean pointInRect(const AIRealPoint* point, const AIRealRect* rect) {
    return flag(point->h >= rect->left && point->h <= rect->right && point->v <= rect->top &&
                point->v >= rect->bottom);
}
/// Outwards to whole points; the upper and right edge one further.
void rectAlign(const AIRealRect* rect, AIRealRect* result) {
    required(result) = {std::floor(rect->left), std::floor(rect->top) + 1,
                        std::floor(rect->right) + 1, std::floor(rect->bottom)};
}
void doubleRectUnion(const AIDoubleRect* a, const AIDoubleRect* b, AIDoubleRect* result) {
    required(result) = {std::min(a->left, b->left), std::max(a->top, b->top),
                        std::max(a->right, b->right), std::min(a->bottom, b->bottom)};
}

// Matrices: points are row vectors, so the operation on the right comes last.

AIRealMatrix translation(AIReal h, AIReal v) { return {1, 0, 0, 1, h, v}; }
AIRealMatrix scaling(AIReal h, AIReal v) { return {h, 0, 0, v, 0, 0}; }
/// Counter-clockwise for a positive angle, y up.
AIRealMatrix rotation(AIReal angle) {
    return {cosine(angle), sine(angle), -sine(angle), cosine(angle), 0, 0};
}
double determinant(const AIRealMatrix& m) { return double{m.a} * m.d - double{m.b} * m.c; }

bool isEqual(const AIRealMatrix& a, const AIRealMatrix& b) {
    return a.a == b.a && a.b == b.b && a.c == b.c && a.d == b.d && a.tx == b.tx && a.ty == b.ty;
}

void matrixSet(AIRealMatrix* m, AIReal a, AIReal b, AIReal c, AIReal d, AIReal tx, AIReal ty) {
    required(m) = {a, b, c, d, tx, ty};
}
void matrixSetIdentity(AIRealMatrix* m) { required(m) = kIdentityMatrix; }
AIBoolean matrixEqual(const AIRealMatrix* a, const AIRealMatrix* b) {
    return flag(isEqual(required(a), required(b)));
}
AIBoolean matrixIdentity(const AIRealMatrix* m) {
    return flag(isEqual(required(m), kIdentityMatrix));
}
AIBoolean matrixSingular(const AIRealMatrix* m) { return flag(determinant(required(m)) == 0); }
void matrixSetTranslate(AIRealMatrix* m, AIReal h, AIReal v) { required(m) = translation(h, v); }
void matrixSetScale(AIRealMatrix* m, AIReal h, AIReal v) { required(m) = scaling(h, v); }
void matrixSetRotate(AIRealMatrix* m, AIReal angle) { required(m) = rotation(angle); }
void matrixConcatTranslate(AIRealMatrix* m, AIReal h, AIReal v) {
    required(m) = concatenated(*m, translation(h, v));
}
void matrixConcatScale(AIRealMatrix* m, AIReal h, AIReal v) {
    required(m) = concatenated(*m, scaling(h, v));
}
void matrixConcatRotate(AIRealMatrix* m, AIReal angle) {
    required(m) = concatenated(*m, rotation(angle));
}
void matrixConcat(const AIRealMatrix* first, const AIRealMatrix* second, AIRealMatrix* result) {
    required(result) = concatenated(required(first), required(second));
}

/// The host's code for a matrix that has no inverse.
constexpr ai::int16 kSingular = -1;

ai::int16 matrixInvert(AIRealMatrix* m) {
    const double det = determinant(required(m));
    if (det == 0) return kSingular;
    const double a = m->d / det;
    const double b = -m->b / det;
    const double c = -m->c / det;
    const double d = m->a / det;
    *m = {real(a),
          real(b),
          real(c),
          real(d),
          real(-(m->tx * a + m->ty * c)),
          real(-(m->tx * b + m->ty * d))};
    return 0;
}
void matrixXformPoint(const AIRealMatrix* m, const AIRealPoint* point, AIRealPoint* result) {
    required(result) = transformed(required(m), required(point));
}
void matrixGetTranslate(const AIRealMatrix* m, AIReal* h, AIReal* v) {
    required(h) = m->tx;
    required(v) = m->ty;
}
void matrixGetScale(const AIRealMatrix* m, AIReal* h, AIReal* v) {
    required(h) = length(m->a, m->b);
    required(v) = length(m->c, m->d);
}
void matrixGetRotate(const AIRealMatrix* m, AIReal* angle) {
    required(angle) = arcTangent(m->b, m->a);
}

} // namespace

void installRealMathSuite(SuiteServer& server) {
    using S = AIRealMathSuite;
    auto table = server.table<S>(kAIRealMathSuite, kAIRealMathSuiteVersion);
    expose<&S::AIRealAdd, add>(table);
    expose<&S::AIRealMul, multiply>(table);
    expose<&S::AIRealDiv, divide>(table);
    expose<&S::ShortRatio, shortRatio>(table);
    expose<&S::AIRealRatio, divide>(table);
    expose<&S::AIRealMulAdd, multiplyAdd>(table);
    expose<&S::AIRealMultiple, multiple>(table);
    expose<&S::AIRealSin, sine>(table);
    expose<&S::AIRealCos, cosine>(table);
    expose<&S::AIRealATan, arcTangent>(table);
    expose<&S::DegreeToRadian, degreeToRadian>(table);
    expose<&S::RadianToDegree, radianToDegree>(table);
    expose<&S::AIRealSqrt, squareRoot>(table);
    expose<&S::AIRealLength, length>(table);
    expose<&S::AIRealInterpolate, interpolate>(table);
    expose<&S::AIRealPointAdd, pointAdd>(table);
    expose<&S::AIRealPointSubtract, pointSubtract>(table);
    expose<&S::AIRealPointEqual, pointEqual>(table);
    expose<&S::AIRealPointClose, pointClose>(table);
    expose<&S::AIRealPointAngle, pointAngle>(table);
    expose<&S::AIRealPointLength, pointLength>(table);
    expose<&S::AIRealPointLengthAngle, pointLengthAngle>(table);
    expose<&S::AIRealPointInterpolate, pointInterpolate>(table);
    expose<&S::AIRealRectSet, rectSet>(table);
    expose<&S::AIRealRectEqual, rectEqual>(table);
    expose<&S::AIRealRectEmpty, rectEmpty>(table);
    expose<&S::AIRealRectInset, rectInset>(table);
    expose<&S::AIRealRectOffset, rectOffset>(table);
    expose<&S::AIRealRectUnion, rectUnion>(table);
    expose<&S::AIRealPointUnion, pointUnion>(table);
    expose<&S::AIRealRectOverlap, rectOverlap>(table);
    expose<&S::AIRealRectIntersect, rectIntersect>(table);
    expose<&S::AIRealRectInAIRealRect, rectInRect>(table);
    expose<&S::AIRealPointInAIRealRect, pointInRect>(table);
    expose<&S::AIRealRectAlign, rectAlign>(table);
    expose<&S::AIRealMatrixSet, matrixSet>(table);
    expose<&S::AIRealMatrixSetIdentity, matrixSetIdentity>(table);
    expose<&S::AIRealMatrixEqual, matrixEqual>(table);
    expose<&S::AIRealMatrixIdentity, matrixIdentity>(table);
    expose<&S::AIRealMatrixSingular, matrixSingular>(table);
    expose<&S::AIRealMatrixSetTranslate, matrixSetTranslate>(table);
    expose<&S::AIRealMatrixSetScale, matrixSetScale>(table);
    expose<&S::AIRealMatrixSetRotate, matrixSetRotate>(table);
    expose<&S::AIRealMatrixConcatTranslate, matrixConcatTranslate>(table);
    expose<&S::AIRealMatrixConcatScale, matrixConcatScale>(table);
    expose<&S::AIRealMatrixConcatRotate, matrixConcatRotate>(table);
    expose<&S::AIRealMatrixConcat, matrixConcat>(table);
    expose<&S::AIRealMatrixInvert, matrixInvert>(table);
    expose<&S::AIRealMatrixXformPoint, matrixXformPoint>(table);
    expose<&S::AlmostEqual, almostEqual>(table);
    expose<&S::EqualWithinTol, almostEqual>(table);
    expose<&S::AIRealMatrixGetTranslate, matrixGetTranslate>(table);
    expose<&S::AIRealMatrixGetScale, matrixGetScale>(table);
    expose<&S::AIRealMatrixGetRotate, matrixGetRotate>(table);
    expose<&S::AIDoubleRectUnion, doubleRectUnion>(table);
}

} // namespace easel
