#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Types.h"

inline constexpr char kAIPathSuite[] = "AI Path Suite";
inline constexpr ai::int32 kAIPathSuiteVersion = 10;

struct AIPathSuite {
    AIErr (*GetPathSegmentCount)(AIArtHandle, ai::int16*);
    AIErr (*SetPathSegmentCount)(AIArtHandle, ai::int16);
    AIErr (*GetPathSegments)(AIArtHandle, ai::int16, ai::int16, AIPathSegment*);
    AIErr (*SetPathSegments)(AIArtHandle, ai::int16, ai::int16, const AIPathSegment*);
    AIErr (*InsertPathSegments)(AIArtHandle, ai::int16, ai::int16, const AIPathSegment*);
    AIErr (*DeletePathSegments)(AIArtHandle, ai::int16, ai::int16);
    AIErr (*GetPathClosed)(AIArtHandle, AIBoolean*);
    AIErr (*SetPathClosed)(AIArtHandle, AIBoolean);
    AIErr (*GetPathGuide)(AIArtHandle, AIBoolean*);
    AIErr (*SetPathGuide)(AIArtHandle, AIBoolean);
    AIErr (*GetPathSegmentSelected)(AIArtHandle, ai::int16, ai::int16*);
    AIErr (*SetPathSegmentSelected)(AIArtHandle, ai::int16, ai::int16);
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
    AIErr (*SetKeySegment)(AIArtHandle, ai::int16);
    AIErr (*MeasureSegments)(AIArtHandle, ai::int16, ai::int16, AIReal*, AIReal*);
    AIErr (*LengthFractionToBezierPos)(AIArtHandle, AIReal, ai::int16&, AIReal&, const AIReal*,
                                       const AIReal*);
    AIErr (*BezierPosToLengthFraction)(AIArtHandle, ai::int16, AIReal, AIReal&, const AIReal*,
                                       const AIReal*);
    AIErr (*BezierPosToAnchoredPos)(AIArtHandle, ai::int16, AIReal, AIReal*, AIReal*);
    AIErr (*PerpendicularsAtBezierT)(AIArtHandle, ai::int16, AIReal, AIReal, AIReal, AIRealPoint&,
                                     AIRealPoint*, AIRealPoint*);
};
