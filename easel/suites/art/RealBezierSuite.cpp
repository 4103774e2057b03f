#include "host/suites/AIRealBezierSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Bezier.h"
#include "easel/document/TransformArt.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

void set(AIRealBezier* bezier, AIRealPoint* p0, AIRealPoint* p1, AIRealPoint* p2, AIRealPoint* p3) {
    required(bezier) = {required(p0), required(p1), required(p2), required(p3)};
}

void transform(AIRealBezier* bezier, AIRealMatrix* matrix) {
    const AIRealMatrix& by = required(matrix);
    required(bezier) = {transformed(by, bezier->p0), transformed(by, bezier->p1),
                        transformed(by, bezier->p2), transformed(by, bezier->p3)};
}

void offset(AIRealBezier* bezier, AIReal h, AIReal v) {
    AIRealMatrix shift{1, 0, 0, 1, h, v};
    transform(bezier, &shift);
}

void evaluate(AIRealBezier* bezier, AIReal t, AIRealPoint* point) {
    required(point) = realPoint(pointAt(curveOf(required(bezier)), t));
}

/// The derivative, not normalised.
void tangent(AIRealBezier* bezier, AIReal t, AIRealPoint* direction) {
    required(direction) = realPoint(tangentAt(curveOf(required(bezier)), t));
}

/// The tangent turned counter-clockwise by a right angle.
void normal(AIRealBezier* bezier, AIReal t, AIRealPoint* direction) {
    const CurvePoint along = tangentAt(curveOf(required(bezier)), t);
    required(direction) = realPoint({-along.y, along.x});
}

void pointAndTangent(AIRealBezier* bezier, AIReal t, AIRealPoint* point, AIRealPoint* direction) {
    evaluate(bezier, t, point);
    tangent(bezier, t, direction);
}

void divide(AIRealBezier* bezier, AIReal t, AIRealBezier* first, AIRealBezier* second) {
    const auto parts = splitAt(curveOf(required(bezier)), t);
    if (first != nullptr) *first = bezierOf(parts[0]);
    if (second != nullptr) *second = bezierOf(parts[1]);
}

AIReal lengthOfBezier(AIRealBezier* bezier, AIReal /*flatness*/) {
    return static_cast<AIReal>(lengthOf(curveOf(required(bezier))));
}

AIErr tAtLength(AIRealBezier* bezier, AIReal length, AIReal /*total*/, AIReal /*flatness*/,
                AIReal* t) {
    required(t) = static_cast<AIReal>(parameterAtLength(curveOf(required(bezier)), length));
    return kNoErr;
}

} // namespace

void installRealBezierSuite(SuiteServer& server) {
    using S = AIRealBezierSuite;
    auto table = server.table<S>(kAIRealBezierSuite, kAIRealBezierSuiteVersion);
    expose<&S::Set, set>(table);
    expose<&S::Offset, offset>(table);
    expose<&S::Transform, transform>(table);
    expose<&S::Evaluate, evaluate>(table);
    expose<&S::Tangent, tangent>(table);
    expose<&S::Normal, normal>(table);
    expose<&S::Divide, divide>(table);
    expose<&S::Length, lengthOfBezier>(table);
    expose<&S::PointAndTangent, pointAndTangent>(table);
    expose<&S::TAtLength, tAtLength>(table);
}

} // namespace easel
