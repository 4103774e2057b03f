#pragma once

#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIRealMathSuite[] = "AI Real Math Suite";
inline constexpr ai::int32 kAIRealMathSuiteVersion = 2;

/// Functions on reals, points, rectangles and matrices. Angles are radians, counter-clockwise with
/// y up. The unknown-value queries of later generations are absent: while reals are 32-bit there is
/// nothing to convert.
struct AIRealMathSuite {
    AIReal (*AIRealAdd)(AIReal, AIReal);
    AIReal (*AIRealMul)(AIReal, AIReal);
    AIReal (*AIRealDiv)(AIReal, AIReal);
    AIReal (*ShortRatio)(ai::int16, ai::int16);
    AIReal (*AIRealRatio)(AIReal, AIReal);
    AIReal (*AIRealMulAdd)(AIReal, AIReal, AIReal, AIReal);
    AIReal (*AIRealMultiple)(AIReal, AIReal, AIBoolean);
    AIReal (*AIRealSin)(AIReal);
    AIReal (*AIRealCos)(AIReal);
    AIReal (*AIRealATan)(AIReal, AIReal);
    AIReal (*DegreeToRadian)(AIReal);
    AIReal (*RadianToDegree)(AIReal);
    AIReal (*AIRealSqrt)(AIReal);
    AIReal (*AIRealLength)(AIReal, AIReal);
    AIReal (*AIRealInterpolate)(AIReal, AIReal, AIReal);
    void (*AIRealPointAdd)(const AIRealPoint*, const AIRealPoint*, AIRealPoint*);
    void (*AIRealPointSubtract)(const AIRealPoint*, const AIRealPoint*, AIRealPoint*);
    AIBoolean (*AIRealPointEqual)(const AIRealPoint*, const AIRealPoint*);
    AIBoolean (*AIRealPointClose)(const AIRealPoint*, const AIRealPoint*, AIReal);
    AIReal (*AIRealPointAngle)(const AIRealPoint*, const AIRealPoint*);
    AIReal (*AIRealPointLength)(const AIRealPoint*, const AIRealPoint*);
    void (*AIRealPointLengthAngle)(AIReal, AIReal, AIRealPoint*);
    void (*AIRealPointInterpolate)(const AIRealPoint*, const AIRealPoint*, AIReal, AIRealPoint*);
    void (*AIRealRectSet)(AIRealRect*, AIReal, AIReal, AIReal, AIReal);
    AIBoolean (*AIRealRectEqual)(const AIRealRect*, const AIRealRect*);
    AIBoolean (*AIRealRectEmpty)(const AIRealRect*);
    void (*AIRealRectInset)(AIRealRect*, AIReal, AIReal);
    void (*AIRealRectOffset)(AIRealRect*, AIReal, AIReal);
    void (*AIRealRectUnion)(const AIRealRect*, const AIRealRect*, AIRealRect*);
    void (*AIRealPointUnion)(const AIRealPoint*, const AIRealRect*, AIRealRect*);
    AIBoolean (*AIRealRectOverlap)(const AIRealRect*, const AIRealRect*);
    AIBoolean (*AIRealRectIntersect)(const AIRealRect*, const AIRealRect*, AIRealRect*);
    AIBoolean (*AIRealRectInAIRealRect)(const AIRealRect*, const AIRealRect*);
    AIBoolean (*AIRealPointInAIRealRect)(const AIRealPoint*, const AIRealRect*);
    void (*AIRealRectAlign)(const AIRealRect*, AIRealRect*);
    void (*AIRealMatrixSet)(AIRealMatrix*, AIReal, AIReal, AIReal, AIReal, AIReal, AIReal);
    void (*AIRealMatrixSetIdentity)(AIRealMatrix*);
    AIBoolean (*AIRealMatrixEqual)(const AIRealMatrix*, const AIRealMatrix*);
    AIBoolean (*AIRealMatrixIdentity)(const AIRealMatrix*);
    AIBoolean (*AIRealMatrixSingular)(const AIRealMatrix*);
    void (*AIRealMatrixSetTranslate)(AIRealMatrix*, AIReal, AIReal);
    void (*AIRealMatrixSetScale)(AIRealMatrix*, AIReal, AIReal);
    void (*AIRealMatrixSetRotate)(AIRealMatrix*, AIReal);
    void (*AIRealMatrixConcatTranslate)(AIRealMatrix*, AIReal, AIReal);
    void (*AIRealMatrixConcatScale)(AIRealMatrix*, AIReal, AIReal);
    void (*AIRealMatrixConcatRotate)(AIRealMatrix*, AIReal);
    void (*AIRealMatrixConcat)(const AIRealMatrix*, const AIRealMatrix*, AIRealMatrix*);
    ai::int16 (*AIRealMatrixInvert)(AIRealMatrix*);
    void (*AIRealMatrixXformPoint)(const AIRealMatrix*, const AIRealPoint*, AIRealPoint*);
    ReservedSlot AIRealToAIFixed, AIFixedToAIReal, AIRealPointToAIFixedPoint,
        AIFixedPointToAIRealPoint, AIRealRectToAIFixedRect, AIFixedRectToAIRealRect,
        AIRealMatrixToAIFixedMatrix, AIFixedMatrixToAIRealMatrix;
    AIBoolean (*AlmostEqual)(AIReal, AIReal, AIReal);
    AIBoolean (*EqualWithinTol)(AIReal, AIReal, AIReal);
    void (*AIRealMatrixGetTranslate)(const AIRealMatrix*, AIReal*, AIReal*);
    void (*AIRealMatrixGetScale)(const AIRealMatrix*, AIReal*, AIReal*);
    void (*AIRealMatrixGetRotate)(const AIRealMatrix*, AIReal*);
    void (*AIDoubleRectUnion)(const AIDoubleRect*, const AIDoubleRect*, AIDoubleRect*);
};

template <>
struct ai::SuiteId<AIRealMathSuite> : ai::SuiteIdentity<kAIRealMathSuite, kAIRealMathSuiteVersion> {
};
