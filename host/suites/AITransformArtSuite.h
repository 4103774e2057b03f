#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAITransformArtSuite[] = "AI Transform Art Suite";
inline constexpr ai::int32 kAITransformArtSuiteVersion = 2;

struct AITransformArtSuite {
    /// `matrix` is in soft coordinates; members move along only with the flag for children. Strokes
    /// become `lineScale` times as wide with the flag for them.
    AIErr (*TransformArt)(AIArtHandle art, AIRealMatrix* matrix, AIReal lineScale, ai::int32 flags);
};

template <>
struct ai::SuiteId<AITransformArtSuite>
    : ai::SuiteIdentity<kAITransformArtSuite, kAITransformArtSuiteVersion> {};
