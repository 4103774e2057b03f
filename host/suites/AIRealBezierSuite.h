#pragma once

#include "host/SuiteId.h"
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
    ReservedSlot IntersectsRect;
    AIReal (*Length)(AIRealBezier*, AIReal);
    void (*PointAndTangent)(AIRealBezier*, AIReal, AIRealPoint*, AIRealPoint*);
    ReservedSlot AdjustThroughPoint;
    AIErr (*TAtLength)(AIRealBezier*, AIReal, AIReal, AIReal, AIReal*);
};

template <>
struct ai::SuiteId<AIRealBezierSuite>
    : ai::SuiteIdentity<kAIRealBezierSuite, kAIRealBezierSuiteVersion> {};
