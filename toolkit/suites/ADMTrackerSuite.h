#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMTrackerSuite[] = "ADM Tracker Suite";
inline constexpr ai::int32 kADMTrackerSuiteVersion = 2;

/// What a track procedure is told; a tracker is good for the length of the call.
struct ADMTrackerSuite {
    void (*GetPoint)(ADMTrackerRef, ADMPoint*);
    ADMAction (*GetAction)(ADMTrackerRef);
    ADMModifiers (*GetModifiers)(ADMTrackerRef);
    ADMBoolean (*TestAction)(ADMTrackerRef, ADMAction);
    ADMBoolean (*TestModifier)(ADMTrackerRef, ADMModifiers);
    ADMTime (*GetTime)(ADMTrackerRef);
    void (*Abort)(ADMTrackerRef);
    ADMMouseState (*GetMouseState)(ADMTrackerRef);
    void (*ReleaseMouseCapture)(ADMTrackerRef);
    ADMChar (*GetVirtualKey)(ADMTrackerRef);
    ADMChar (*GetCharacter)(ADMTrackerRef);
    ADMBoolean (*GetKeysState)(ADMVirtualKeyArray*);
};

template <>
struct ai::SuiteId<ADMTrackerSuite> : ai::SuiteIdentity<kADMTrackerSuite, kADMTrackerSuiteVersion> {
};
