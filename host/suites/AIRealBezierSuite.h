#pragma once

#include "host/Types.h"

inline constexpr char kAIRealBezierSuite[] = "AI Real Bezier Suite";
inline constexpr ai::int32 kAIRealBezierSuiteVersion = 3;

struct AIRealBezierSuite {
    void (*Set)(AIRealBezier*, AIRealPoint*, AIRealPoint*, AIRealPoint*, AIRealPoint*);
    void (*Offset)(AIRealBezier*, AIReal, AIReal);
    void (*Transform)(AIRealBezier*, AIRealMatrix*);
    void (*Evaluate)(AIRealBezier*, AIReal, AIRealPoint*);
    void (*Tangent)(AIRealBezier*, AIReal, AIRealPoint*);
    void (*Normal)(AIRealBezier*, AIReal, AIRealPoint*);
    void (*Divide)(AIRealBezier*, AIReal, AIRealBezier*, AIRealBezier*);
    AIBoolean (*IntersectsRect)(AIRealBezier*, AIRealRect*, AIReal);
    AIReal (*Length)(AIRealBezier*, AIReal);
    void (*PointAndTangent)(AIRealBezier*, AIReal, AIRealPoint*, AIRealPoint*);
    ai::uint16 (*AdjustThroughPoint)(AIRealBezier*, AIRealPoint*, AIReal);
    AIErr (*TAtLength)(AIRealBezier*, AIReal, AIReal, AIReal, AIReal*);
};
