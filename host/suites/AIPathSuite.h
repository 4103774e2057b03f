#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIPathSuite[] = "AI Path Suite";
inline constexpr ai::int32 kAIPathSuiteVersion = 10;

struct AIPathSuite {
    AIErr (*GetPathSegmentCount)(AIArtHandle path, ai::int16* count);
    /// Cuts off, or adds segments of no meaning; at most 32,000.
    AIErr (*SetPathSegmentCount)(AIArtHandle path, ai::int16 count);
    /// Room for `count` is the caller's.
    AIErr (*GetPathSegments)(AIArtHandle path, ai::int16 first, ai::int16 count,
                             AIPathSegment* segments);
    /// Overwrites, and goes on beyond the end.
    AIErr (*SetPathSegments)(AIArtHandle path, ai::int16 first, ai::int16 count,
                             const AIPathSegment* segments);
    AIErr (*InsertPathSegments)(AIArtHandle, ai::int16, ai::int16, const AIPathSegment*);
    AIErr (*DeletePathSegments)(AIArtHandle, ai::int16, ai::int16);
    AIErr (*GetPathClosed)(AIArtHandle path, AIBoolean* closed);
    AIErr (*SetPathClosed)(AIArtHandle path, AIBoolean closed);
    AIErr (*GetPathGuide)(AIArtHandle path, AIBoolean* guide);
    AIErr (*SetPathGuide)(AIArtHandle path, AIBoolean guide);
    /// 0 none, 1 anchor, 2 in handle, 3 out handle, 4 both.
    AIErr (*GetPathSegmentSelected)(AIArtHandle path, ai::int16 segment, ai::int16* selected);
    /// May change what is selected of the neighbours.
    AIErr (*SetPathSegmentSelected)(AIArtHandle path, ai::int16 segment, ai::int16 selected);
    AIErr (*ReversePathSegments)(AIArtHandle);
    AIErr (*GetPathArea)(AIArtHandle, AIReal*);
    AIErr (*GetPathLength)(AIArtHandle, AIReal*, AIReal);
    AIErr (*GetPathBezier)(AIArtHandle, ai::int16, AIRealBezier*);
    AIErr (*PathHasLength)(AIArtHandle, AIBoolean*);
    AIErr (*GetPathIsClip)(AIArtHandle, AIBoolean*);
    AIErr (*GetPathAllSegmentsSelected)(AIArtHandle, AIBoolean*);
    AIErr (*GetKeySegment)(AIArtHandle*, ai::int16*);
    AIErr (*CancelKeySegment)();
    AIBoolean (*IsPath9SliceSplitter)(AIArtHandle);
    ReservedSlot SetKeySegment, MeasureSegments, LengthFractionToBezierPos,
        BezierPosToLengthFraction, BezierPosToAnchoredPos, PerpendicularsAtBezierT;
};

template <>
struct ai::SuiteId<AIPathSuite> : ai::SuiteIdentity<kAIPathSuite, kAIPathSuiteVersion> {};
