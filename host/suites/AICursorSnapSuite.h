#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Messages.h"
#include "host/Types.h"

inline constexpr char kAICursorSnapSuite[] = "AI Cursor Snap Suite";
inline constexpr ai::int32 kAICursorSnapSuiteVersion = 4;

struct AICursorSnapSuite {
    AIBoolean (*UseSmartGuides)(AIDocumentViewHandle);
    AIErr (*Reset)();
    AIErr (*ClearCustom)();
    AIErr (*SetCustom)(ai::int32, const AICursorConstraint*);
    AIErr (*Track)(AIDocumentViewHandle, const AIRealPoint&, const AIEvent*, const char*,
                   AIRealPoint*);
    AIErr (*HitTrack)(AIDocumentViewHandle, const AIRealPoint&, const AIEvent*, const char*,
                      AIRealPoint*, AIBoolean);
    AIErr (*TrackInRect)(AIDocumentViewHandle, const AIRealPoint&, const AIEvent*, const char*,
                         AIRealPoint*, const AIRealRect*, AIRealRect*);
};
