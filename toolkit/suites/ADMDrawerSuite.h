#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

// Include it behind the system's headers, whose macro of that name would rename a slot.
#undef DrawText

inline constexpr char kADMDrawerSuite[] = "ADM Drawer Suite";
inline constexpr ai::int32 kADMDrawerSuiteVersion = 6;

/// Drawing, for the length of a draw procedure. Coordinates count from the top left of what is
/// drawn, y downwards; lines are one unit wide.
struct ADMDrawerSuite {
    ADMPortRef (*GetPortRef)(ADMDrawerRef);
    void (*Clear)(ADMDrawerRef);
    void (*GetBoundsRect)(ADMDrawerRef, ADMRect*);
    void (*GetClipRect)(ADMDrawerRef, ADMRect*);
    void (*SetClipRect)(ADMDrawerRef, const ADMRect*);
    void (*IntersectClipRect)(ADMDrawerRef, const ADMRect*);
    void (*UnionClipRect)(ADMDrawerRef, const ADMRect*);
    void (*SubtractClipRect)(ADMDrawerRef, const ADMRect*);
    void (*SetClipPolygon)(ADMDrawerRef, const ADMPoint*, ADMInt32);
    void (*IntersectClipPolygon)(ADMDrawerRef, const ADMPoint*, ADMInt32);
    void (*UnionClipPolygon)(ADMDrawerRef, const ADMPoint*, ADMInt32);
    void (*SubtractClipPolygon)(ADMDrawerRef, const ADMPoint*, ADMInt32);
    void (*GetOrigin)(ADMDrawerRef, ADMPoint*);
    void (*SetOrigin)(ADMDrawerRef, const ADMPoint*);
    void (*GetRGBColor)(ADMDrawerRef, ADMRGBColor*);
    void (*SetRGBColor)(ADMDrawerRef, const ADMRGBColor*);
    ADMColor (*GetADMColor)(ADMDrawerRef);
    void (*SetADMColor)(ADMDrawerRef, ADMColor);
    ADMDrawMode (*GetDrawMode)(ADMDrawerRef);
    void (*SetDrawMode)(ADMDrawerRef, ADMDrawMode);
    ADMFont (*GetFont)(ADMDrawerRef);
    void (*SetFont)(ADMDrawerRef, ADMFont);
    ADMBoolean (*GetUsePaletteBGColor)(ADMDrawerRef);
    void (*SetUsePaletteBGColor)(ADMDrawerRef, ADMBoolean);
    void (*DrawLine)(ADMDrawerRef, const ADMPoint*, const ADMPoint*);
    void (*DrawPolygon)(ADMDrawerRef, const ADMPoint*, ADMInt32);
    void (*FillPolygon)(ADMDrawerRef, const ADMPoint*, ADMInt32);
    void (*DrawRect)(ADMDrawerRef, const ADMRect*);
    void (*FillRect)(ADMDrawerRef, const ADMRect*);
    void (*ClearRect)(ADMDrawerRef, const ADMRect*);
    void (*DrawSunkenRect)(ADMDrawerRef, const ADMRect*);
    void (*DrawRaisedRect)(ADMDrawerRef, const ADMRect*);
    void (*InvertRect)(ADMDrawerRef, const ADMRect*);
    void (*DrawOval)(ADMDrawerRef, const ADMRect*);
    void (*FillOval)(ADMDrawerRef, const ADMRect*);
    ADMAGMPortPtr (*GetAGMPort)(ADMDrawerRef);
    void (*DrawAGMImage)(ADMDrawerRef, const struct _t_ADMAGMImageRecord*, const ADMFixedMatrix*,
                         ADMInt32);
    void (*DrawResPicture)(ADMDrawerRef, SPPluginRef, ADMInt32, const ADMPoint*);
    void (*DrawResPictureCentered)(ADMDrawerRef, SPPluginRef, ADMInt32, const ADMRect*);
    void (*DrawRecoloredResPicture)(ADMDrawerRef, SPPluginRef, ADMInt32, const ADMPoint*,
                                    ADMRecolorStyle);
    void (*DrawRecoloredResPictureCentered)(ADMDrawerRef, SPPluginRef, ADMInt32, const ADMRect*,
                                            ADMRecolorStyle);
    void (*DrawIcon)(ADMDrawerRef, ADMIconRef, const ADMPoint*);
    void (*DrawIconCentered)(ADMDrawerRef, ADMIconRef, const ADMRect*);
    void (*DrawRecoloredIcon)(ADMDrawerRef, ADMIconRef, const ADMPoint*, ADMRecolorStyle);
    void (*DrawRecoloredIconCentered)(ADMDrawerRef, ADMIconRef, const ADMRect*, ADMRecolorStyle);
    void (*GetResPictureBounds)(ADMDrawerRef, SPPluginRef, ADMInt32, ADMRect*);
    ADMInt32 (*GetTextWidth)(ADMDrawerRef, const char*);
    ADMInt32 (*GetTextWidthW)(ADMDrawerRef, const ADMUnicode*);
    void (*GetFontInfo)(ADMDrawerRef, ADMFontInfo*);
    void (*DrawText)(ADMDrawerRef, const char*, const ADMPoint*);
    void (*DrawTextW)(ADMDrawerRef, const ADMUnicode*, const ADMPoint*);
    void (*DrawTextLeft)(ADMDrawerRef, const char*, const ADMRect*);
    void (*DrawTextLeftW)(ADMDrawerRef, const ADMUnicode*, const ADMRect*);
    void (*DrawTextCentered)(ADMDrawerRef, const char*, const ADMRect*);
    void (*DrawTextCenteredW)(ADMDrawerRef, const ADMUnicode*, const ADMRect*);
    void (*DrawTextRight)(ADMDrawerRef, const char*, const ADMRect*);
    void (*DrawTextRightW)(ADMDrawerRef, const ADMUnicode*, const ADMRect*);
    void (*DrawUpArrow)(ADMDrawerRef, const ADMRect*);
    void (*DrawDownArrow)(ADMDrawerRef, const ADMRect*);
    void (*DrawLeftArrow)(ADMDrawerRef, const ADMRect*);
    void (*DrawRightArrow)(ADMDrawerRef, const ADMRect*);
    ADMDrawerRef (*Create)(ADMPortRef, const ADMRect*, ADMFont);
    void (*Destroy)(ADMDrawerRef);
    void (*DrawADMImage)(ADMDrawerRef, ADMImageRef, const ADMPoint*);
    void (*DrawADMImageCentered)(ADMDrawerRef, ADMImageRef, const ADMRect*);
    ADMPortRef (*GetADMWindowPort)(ADMWindowRef);
    void (*ReleaseADMWindowPort)(ADMWindowRef, ADMPortRef);
    void (*GetThisFontInfo)(ADMFont, ADMFontInfo*);
    void (*DrawTextInABox)(ADMDrawerRef, const ADMRect*, const char*);
    void (*DrawTextInABoxW)(ADMDrawerRef, const ADMRect*, const ADMUnicode*);
    void (*GetUpdateRect)(ADMDrawerRef, ADMRect*);
    ADMInt16 (*GetTextRectHeight)(ADMDrawerRef, ADMInt16, const char*);
    ADMInt16 (*GetTextRectHeightW)(ADMDrawerRef, ADMInt16, const ADMUnicode*);
};

template <>
struct ai::SuiteId<ADMDrawerSuite> : ai::SuiteIdentity<kADMDrawerSuite, kADMDrawerSuiteVersion> {};
