#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMNotifierSuite[] = "ADM Notifier Suite";
inline constexpr ai::int32 kADMNotifierSuiteVersion = 2;

/// What a notification says; a notifier is good for the length of the call.
struct ADMNotifierSuite {
    ADMItemRef (*GetItem)(ADMNotifierRef);
    ADMDialogRef (*GetDialog)(ADMNotifierRef);
    ADMBoolean (*IsNotifierType)(ADMNotifierRef, const char*);
    void (*GetNotifierType)(ADMNotifierRef, char*, ADMUInt32);
    void (*SkipNextClipboardOperation)(ADMNotifierRef, ADMBoolean);
};

template <>
struct ai::SuiteId<ADMNotifierSuite>
    : ai::SuiteIdentity<kADMNotifierSuite, kADMNotifierSuiteVersion> {};
