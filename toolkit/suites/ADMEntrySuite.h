#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMEntrySuite[] = "ADM Entry Suite";
inline constexpr ai::int32 kADMEntrySuiteVersion = 6;

/// The entries of lists and menus.
struct ADMEntrySuite {
    ADMEntryRef (*Create)(ADMListRef);
    void (*Destroy)(ADMEntryRef);
    void (*DefaultDraw)(ADMEntryRef, ADMDrawerRef);
    ADMBoolean (*DefaultTrack)(ADMEntryRef, ADMTrackerRef);
    void (*DefaultNotify)(ADMEntryRef, ADMNotifierRef);
    void (*SendNotify)(ADMEntryRef, const char*);
    ADMInt32 (*GetIndex)(ADMEntryRef);
    ADMListRef (*GetList)(ADMEntryRef);
    void (*SetID)(ADMEntryRef, ADMInt32);
    ADMInt32 (*GetID)(ADMEntryRef);
    void (*SetUserData)(ADMEntryRef, ADMUserData);
    ADMUserData (*GetUserData)(ADMEntryRef);
    void (*Select)(ADMEntryRef, ADMBoolean);
    ADMBoolean (*IsSelected)(ADMEntryRef);
    void (*MakeInBounds)(ADMEntryRef);
    ADMBoolean (*IsInBounds)(ADMEntryRef);
    void (*Enable)(ADMEntryRef, ADMBoolean);
    ADMBoolean (*IsEnabled)(ADMEntryRef);
    void (*Activate)(ADMEntryRef, ADMBoolean);
    ADMBoolean (*IsActive)(ADMEntryRef);
    void (*Check)(ADMEntryRef, ADMBoolean);
    ADMBoolean (*IsChecked)(ADMEntryRef);
    void (*MakeSeparator)(ADMEntryRef, ADMBoolean);
    ADMBoolean (*IsSeparator)(ADMEntryRef);
    void (*GetLocalRect)(ADMEntryRef, ADMRect*);
    void (*GetBoundsRect)(ADMEntryRef, ADMRect*);
    void (*LocalToScreenPoint)(ADMEntryRef, ADMPoint*);
    void (*ScreenToLocalPoint)(ADMEntryRef, ADMPoint*);
    void (*LocalToScreenRect)(ADMEntryRef, ADMRect*);
    void (*ScreenToLocalRect)(ADMEntryRef, ADMRect*);
    void (*Invalidate)(ADMEntryRef);
    void (*InvalidateRect)(ADMEntryRef, const ADMRect*);
    void (*Update)(ADMEntryRef);
    void (*SetPictureID)(ADMEntryRef, ADMInt32, const char*);
    void (*GetPictureID)(ADMEntryRef, ADMInt32*, const char**);
    void (*SetSelectedPictureID)(ADMEntryRef, ADMInt32, const char*);
    void (*GetSelectedPictureID)(ADMEntryRef, ADMInt32*, const char**);
    void (*SetDisabledPictureID)(ADMEntryRef, ADMInt32, const char*);
    void (*GetDisabledPictureID)(ADMEntryRef, ADMInt32*, const char**);
    void (*SetPicture)(ADMEntryRef, ADMIconRef);
    ADMIconRef (*GetPicture)(ADMEntryRef);
    void (*SetSelectedPicture)(ADMEntryRef, ADMIconRef);
    ADMIconRef (*GetSelectedPicture)(ADMEntryRef);
    void (*SetDisabledPicture)(ADMEntryRef, ADMIconRef);
    ADMIconRef (*GetDisabledPicture)(ADMEntryRef);
    void (*SetText)(ADMEntryRef, const char*);
    void (*SetTextW)(ADMEntryRef, const ADMUnicode*);
    void (*GetText)(ADMEntryRef, char*, ADMInt32);
    void (*GetTextW)(ADMEntryRef, ADMUnicode*, ADMInt32);
    ADMInt32 (*GetTextLength)(ADMEntryRef);
    ADMInt32 (*GetTextLengthW)(ADMEntryRef);
    ADMTimerRef (*CreateTimer)(ADMEntryRef, ADMUInt32, ADMActionMask, ADMEntryTimerProc,
                               ADMEntryTimerAbortProc, ADMInt32);
    void (*AbortTimer)(ADMEntryRef, ADMTimerRef);
    ADMInt32 (*GetHelpID_DEPRECATED)(ADMEntryRef);
    void (*SetHelpID_DEPRECATED)(ADMEntryRef, ADMInt32);
    void (*Help_DEPRECATED)(ADMEntryRef);
    void (*SetCheckGlyph)(ADMEntryRef, ADMStandardCheckGlyphID);
    ADMStandardCheckGlyphID (*GetCheckGlyph)(ADMEntryRef);
    void (*SetScript)(ADMEntryRef, ADMInt16);
    ADMInt16 (*GetScript)(ADMEntryRef);
};

template <>
struct ai::SuiteId<ADMEntrySuite> : ai::SuiteIdentity<kADMEntrySuite, kADMEntrySuiteVersion> {};
