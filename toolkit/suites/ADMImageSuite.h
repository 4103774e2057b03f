#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMImageSuite[] = "ADM Image Suite";
inline constexpr ai::int32 kADMImageSuiteVersion = 2;

/// Pictures in memory, to be drawn on.
struct ADMImageSuite {
    ADMImageRef (*Create)(ADMInt32, ADMInt32, ADMInt32);
    void (*Destroy)(ADMImageRef);
    ADMInt32 (*GetWidth)(ADMImageRef);
    ADMInt32 (*GetHeight)(ADMImageRef);
    ADMInt32 (*GetByteWidth)(ADMImageRef);
    ADMInt32 (*GetBitsPerPixel)(ADMImageRef);
    ADMBytePtr (*BeginBaseAddressAccess)(ADMImageRef);
    void (*EndBaseAddressAccess)(ADMImageRef);
    ADMDrawerRef (*BeginADMDrawer)(ADMImageRef);
    void (*EndADMDrawer)(ADMImageRef);
    void (*BeginAGMImageAccess)(ADMImageRef, struct _t_ADMAGMImageRecord*);
    void (*EndAGMImageAccess)(ADMImageRef);
    ADMErr (*GetPixel)(ADMImageRef, const ADMPoint*, ADMRGBColor*);
    ADMErr (*SetPixel)(ADMImageRef, const ADMPoint*, const ADMRGBColor*);
    ADMImageRef (*CreateBitmap)(ADMInt32, ADMInt32, ADMInt32);
    ADMImageRef (*CreateOffscreen)(ADMInt32, ADMInt32, ADMInt32);
};

template <>
struct ai::SuiteId<ADMImageSuite> : ai::SuiteIdentity<kADMImageSuite, kADMImageSuiteVersion> {};
