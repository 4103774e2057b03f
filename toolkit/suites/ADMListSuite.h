#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMListSuite[] = "ADM List Suite";
inline constexpr ai::int32 kADMListSuiteVersion = 4;

/// The lists of popups, menus and list boxes. Positions count from 0, separators included.
struct ADMListSuite {
    void (*SetMenuID)(ADMListRef, SPPluginRef, ADMInt32, const char*);
    ADMInt32 (*GetMenuID)(ADMListRef);
    ADMItemRef (*GetItem)(ADMListRef);
    void (*SetUserData)(ADMListRef, ADMUserData);
    ADMUserData (*GetUserData)(ADMListRef);
    void (*SetInitProc)(ADMListRef, ADMEntryInitProc);
    ADMEntryInitProc (*GetInitProc)(ADMListRef);
    void (*SetDrawProc)(ADMListRef, ADMEntryDrawProc);
    ADMEntryDrawProc (*GetDrawProc)(ADMListRef);
    void (*SetTrackProc)(ADMListRef, ADMEntryTrackProc);
    ADMEntryTrackProc (*GetTrackProc)(ADMListRef);
    void (*SetNotifyProc)(ADMListRef, ADMEntryNotifyProc);
    ADMEntryNotifyProc (*GetNotifyProc)(ADMListRef);
    void (*SetDestroyProc)(ADMListRef, ADMEntryDestroyProc);
    ADMEntryDestroyProc (*GetDestroyProc)(ADMListRef);
    void (*SetEntryWidth)(ADMListRef, ADMInt32);
    ADMInt32 (*GetEntryWidth)(ADMListRef);
    void (*SetEntryHeight)(ADMListRef, ADMInt32);
    ADMInt32 (*GetEntryHeight)(ADMListRef);
    void (*SetEntryTextRect)(ADMListRef, const ADMRect*);
    void (*GetEntryTextRect)(ADMListRef, ADMRect*);
    ADMEntryRef (*InsertEntry)(ADMListRef, ADMInt32);
    void (*RemoveEntry)(ADMListRef, ADMInt32);
    ADMEntryRef (*GetEntry)(ADMListRef, ADMInt32);
    ADMEntryRef (*IndexEntry)(ADMListRef, ADMInt32);
    ADMEntryRef (*FindEntry)(ADMListRef, const char*);
    ADMEntryRef (*PickEntry)(ADMListRef, const ADMPoint*);
    ADMEntryRef (*GetActiveEntry)(ADMListRef);
    ADMEntryRef (*IndexSelectedEntry)(ADMListRef, ADMInt32);
    ADMInt32 (*NumberOfEntries)(ADMListRef);
    ADMInt32 (*NumberOfSelectedEntries)(ADMListRef);
    void (*SetMask)(ADMListRef, ADMActionMask);
    ADMActionMask (*GetMask)(ADMListRef);
    void (*SetNotifierData)(ADMListRef, ADMUserData);
    ADMUserData (*GetNotifierData)(ADMListRef);
    void (*SetBackgroundColor)(ADMListRef, ADMColor);
    void (*SelectByText)(ADMListRef, const char*);
    void (*SelectByTextW)(ADMListRef, const ADMUnicode*);
    ADMEntryRef (*FindEntryW)(ADMListRef, const ADMUnicode*);
};

template <>
struct ai::SuiteId<ADMListSuite> : ai::SuiteIdentity<kADMListSuite, kADMListSuiteVersion> {};
