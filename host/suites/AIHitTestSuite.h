#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIHitTestSuite[] = "AI Hit Test Suite";
inline constexpr ai::int32 kAIHitTestSuiteVersion = 5;

struct AIHitTestSuite {
    /// The closest match to `point` (soft); null root: all of the document. The hit may be null, or
    /// one whose `IsHit` is 0; else it is to be released.
    AIErr (*HitTest)(AIArtHandle root, const AIRealPoint* point, ai::int32 request, AIHitRef* hit);
    AIErr (*HitTestEx)(AIArtHandle, const AIRealPoint*, AIReal, ai::int32, AIHitRef*);
    ai::int32 (*AddRef)(AIHitRef);
    /// Null is accepted.
    ai::int32 (*Release)(AIHitRef hit);
    AIErr (*GetHitData)(AIHitRef, AIToolHitData*);
    /// The calls below mean something only if so.
    AIBoolean (*IsHit)(AIHitRef hit);
    ai::int32 (*GetType)(AIHitRef hit);
    AIArtHandle (*GetArt)(AIHitRef hit);
    AIArtHandle (*GetGroup)(AIHitRef);
    AIRealPoint (*GetPoint)(AIHitRef hit);
    /// Of a curve the anchor at its end.
    ai::int16 (*GetPathSegment)(AIHitRef hit);
    /// 0 to 1 along the curve, from its start.
    AIReal (*GetPathParameter)(AIHitRef hit);
    ReservedSlot CustomHitTest, GetCustomHitData, GetSignedHitDistance;
};

template <>
struct ai::SuiteId<AIHitTestSuite> : ai::SuiteIdentity<kAIHitTestSuite, kAIHitTestSuiteVersion> {};
