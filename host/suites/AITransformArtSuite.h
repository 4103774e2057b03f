#pragma once

#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAITransformArtSuite[] = "AI Transform Art Suite";
inline constexpr ai::int32 kAITransformArtSuiteVersion = 2;

struct AITransformArtSuite {
    AIErr (*TransformArt)(AIArtHandle, AIRealMatrix*, AIReal, ai::int32);
};
