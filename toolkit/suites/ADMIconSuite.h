#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMIconSuite[] = "ADM Icon Suite";
inline constexpr ai::int32 kADMIconSuiteVersion = 2;

/// Pictures from resources as objects.
struct ADMIconSuite {
    ADMIconRef (*GetFromResource)(SPPluginRef, const char*, ADMInt32, ADMInt32);
    ADMIconRef (*Create)(ADMIconType, ADMInt32, ADMInt32, void*);
    void (*Destroy)(ADMIconRef);
    ADMIconType (*GetType)(ADMIconRef);
    ADMInt32 (*GetWidth)(ADMIconRef);
    ADMInt32 (*GetHeight)(ADMIconRef);
    void* (*GetData)(ADMIconRef);
    ADMBoolean (*IsFromResource)(ADMIconRef);
    ADMIconRef (*CreateFromImage)(ADMImageRef);
};

template <>
struct ai::SuiteId<ADMIconSuite> : ai::SuiteIdentity<kADMIconSuite, kADMIconSuiteVersion> {};
