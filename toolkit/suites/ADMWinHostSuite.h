#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMWinHostSuite[] = "ADM Win Host Suite";
inline constexpr ai::int32 kADMWinHostSuiteVersion = 4;

/// The windows of the host.
struct ADMWinHostSuite {
    ADMBoolean (*HandleADMMessage)(ADMWindowRef, ADMUInt16, ADMUInt16, ADMInt32);
    ADMWindowRef (*GetCurrentOwnerWindow)();
    ADMBoolean (*IsADMMessage)(const struct tagMSG*);
    ADMWindowRef (*GetPlatformAppWindow)();
    void (*SetPlatformAppWindow)(ADMWindowRef);
    ADMModalMessageProc (*GetModalMessageProc)();
    void (*SetModalMessageProc)(ADMModalMessageProc);
    ADMTextFocusChangedProc (*GetTextFocusChangedProc)();
    void (*SetTextFocusChangedProc)(ADMTextFocusChangedProc);
    void (*SetHWNDOptimizationMode)(ADMHWNDOptimizationMode);
    void (*AllowHWNDOptimizationForDialog)(ADMDialogRef, ADMBoolean);
};

template <>
struct ai::SuiteId<ADMWinHostSuite> : ai::SuiteIdentity<kADMWinHostSuite, kADMWinHostSuiteVersion> {
};
