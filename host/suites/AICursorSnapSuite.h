#pragma once

#include "host/Art.h"
#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAICursorSnapSuite[] = "AI Cursor Snap Suite";
inline constexpr ai::int32 kAICursorSnapSuiteVersion = 4;

struct AICursorSnapSuite {
    /// Is the host's snapping on?
    AIBoolean (*UseSmartGuides)(AIDocumentViewHandle view);
    AIErr (*Reset)();
    AIErr (*ClearCustom)();
    AIErr (*SetCustom)(ai::int32, const AICursorConstraint*);
    /// Where the sources and searches that `control` lists put `point`, in artwork coordinates.
    /// Some hosts take `point` by value.
    AIErr (*Track)(AIDocumentViewHandle view, const AIRealPoint& point, const AIEvent* event,
                   const char* control, AIRealPoint* snapped);
    AIErr (*HitTrack)(AIDocumentViewHandle, const AIRealPoint&, const AIEvent*, const char*,
                      AIRealPoint*, AIBoolean);
    ReservedSlot TrackInRect;
};

template <>
struct ai::SuiteId<AICursorSnapSuite>
    : ai::SuiteIdentity<kAICursorSnapSuite, kAICursorSnapSuiteVersion> {};
