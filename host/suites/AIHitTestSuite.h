#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIHitTestSuite[] = "AI Hit Test Suite";
inline constexpr ai::int32 kAIHitTestSuiteVersion = 5;

struct AIHitTestSuite {
    AIErr (*HitTest)(AIArtHandle, const AIRealPoint*, ai::int32, AIHitRef*);
    AIErr (*HitTestEx)(AIArtHandle, const AIRealPoint*, AIReal, ai::int32, AIHitRef*);
    ai::int32 (*AddRef)(AIHitRef);
    ai::int32 (*Release)(AIHitRef);
    AIErr (*GetHitData)(AIHitRef, AIToolHitData*);
    AIBoolean (*IsHit)(AIHitRef);
    ai::int32 (*GetType)(AIHitRef);
    AIArtHandle (*GetArt)(AIHitRef);
    AIArtHandle (*GetGroup)(AIHitRef);
    AIRealPoint (*GetPoint)(AIHitRef);
    ai::int16 (*GetPathSegment)(AIHitRef);
    AIReal (*GetPathParameter)(AIHitRef);
    AIErr (*CustomHitTest)(AIArtHandle, const AIRealPoint*, AIReal, ai::int32, AIPluginGroupHandle,
                           void*, AIHitRef*);
    AIErr (*GetCustomHitData)(AIHitRef, void**, AIArtHandle*);
    AIReal (*GetSignedHitDistance)(AIHitRef);
};
