#pragma once

#include "host/SuiteId.h"
#include "toolkit/suites/ADMTypes.h"

inline constexpr char kADMDialogSuite[] = "ADM Dialog Suite";
inline constexpr ai::int32 kADMDialogSuiteVersion = 10;

/// Dialogs and panels. Rectangles of a dialog are pixels of the screen, those of items units of the
/// dialog.
struct ADMDialogSuite {
    ADMDialogRef (*Create)(SPPluginRef, const char*, ADMInt32, ADMDialogStyle, ADMDialogInitProc,
                           ADMUserData, ADMInt32);
    ADMInt32 (*Modal)(SPPluginRef, const char*, ADMInt32, ADMDialogStyle, ADMDialogInitProc,
                      ADMUserData, ADMInt32);
    ADMInt32 (*PopupModal)(SPPluginRef, const char*, ADMInt32, ADMDialogInitProc, ADMUserData,
                           ADMInt32);
    ADMInt32 (*DisplayAsModal)(ADMDialogRef);
    void (*Destroy)(ADMDialogRef);
    void (*SetDrawProc)(ADMDialogRef, ADMDialogDrawProc);
    ADMDialogDrawProc (*GetDrawProc)(ADMDialogRef);
    void (*DefaultDraw)(ADMDialogRef, ADMDrawerRef);
    void (*SetTrackProc)(ADMDialogRef, ADMDialogTrackProc);
    ADMDialogTrackProc (*GetTrackProc)(ADMDialogRef);
    ADMBoolean (*DefaultTrack)(ADMDialogRef, ADMTrackerRef);
    void (*SetMask)(ADMDialogRef, ADMActionMask);
    ADMActionMask (*GetMask)(ADMDialogRef);
    void (*SetNotifyProc)(ADMDialogRef, ADMDialogNotifyProc);
    ADMDialogNotifyProc (*GetNotifyProc)(ADMDialogRef);
    void (*DefaultNotify)(ADMDialogRef, ADMNotifierRef);
    void (*SendNotify)(ADMDialogRef, const char*);
    void (*SetNotifierData)(ADMDialogRef, ADMUserData);
    ADMUserData (*GetNotifierData)(ADMDialogRef);
    void (*SetDestroyProc)(ADMDialogRef, ADMDialogDestroyProc);
    ADMDialogDestroyProc (*GetDestroyProc)(ADMDialogRef);
    ADMTimerRef (*CreateTimer)(ADMDialogRef, ADMUInt32, ADMActionMask, ADMDialogTimerProc,
                               ADMDialogTimerAbortProc, ADMInt32);
    void (*AbortTimer)(ADMDialogRef, ADMTimerRef);
    void (*SetUserData)(ADMDialogRef, ADMUserData);
    ADMUserData (*GetUserData)(ADMDialogRef);
    const char* (*GetDialogName)(ADMDialogRef);
    ADMInt32 (*GetID)(ADMDialogRef);
    SPPluginRef (*GetPluginRef)(ADMDialogRef);
    ADMWindowRef (*GetWindowRef)(ADMDialogRef);
    void (*SetDialogStyle)(ADMDialogRef, ADMDialogStyle);
    ADMDialogStyle (*GetDialogStyle)(ADMDialogRef);
    void (*Show)(ADMDialogRef, ADMBoolean);
    ADMBoolean (*IsVisible)(ADMDialogRef);
    ADMBoolean (*IsDialogTabHidden)(ADMDialogRef);
    void (*Enable)(ADMDialogRef, ADMBoolean);
    ADMBoolean (*IsEnabled)(ADMDialogRef);
    void (*Activate)(ADMDialogRef, ADMBoolean);
    ADMBoolean (*IsActive)(ADMDialogRef);
    void (*SetLocalRect)(ADMDialogRef, const ADMRect*);
    void (*GetLocalRect)(ADMDialogRef, ADMRect*);
    void (*SetBoundsRect)(ADMDialogRef, const ADMRect*);
    void (*GetBoundsRect)(ADMDialogRef, ADMRect*);
    void (*GetMainViewRect)(ADMDialogRef, ADMRect*);
    void (*Move)(ADMDialogRef, ADMInt32, ADMInt32);
    void (*Size)(ADMDialogRef, ADMInt32, ADMInt32);
    void (*SetPreferredSizes)(ADMDialogRef, const ADMPoint*, const ADMPoint*);
    void (*GetPreferredSizes)(ADMDialogRef, ADMPoint*, ADMPoint*);
    ADMErr (*SetToolbarSizeForMode)(ADMDialogRef, ADMToolbarMode, const ADMPoint&);
    ADMErr (*GetToolbarSizeForMode)(ADMDialogRef, ADMToolbarMode, ADMPoint&);
    void (*LocalToScreenPoint)(ADMDialogRef, ADMPoint*);
    void (*ScreenToLocalPoint)(ADMDialogRef, ADMPoint*);
    void (*LocalToScreenRect)(ADMDialogRef, ADMRect*);
    void (*ScreenToLocalRect)(ADMDialogRef, ADMRect*);
    void (*Invalidate)(ADMDialogRef);
    void (*InvalidateRect)(ADMDialogRef, const ADMRect*);
    void (*Update)(ADMDialogRef);
    ADMBoolean (*SetCursorID)(ADMDialogRef, SPPluginRef, ADMInt32);
    void (*GetCursorID)(ADMDialogRef, SPPluginRef*, ADMInt32*);
    void (*SetFont)(ADMDialogRef, ADMFont);
    ADMFont (*GetFont)(ADMDialogRef);
    void (*SetText)(ADMDialogRef, const char*);
    void (*SetTextW)(ADMDialogRef, const ADMUnicode*);
    void (*GetText)(ADMDialogRef, char*, ADMInt32);
    void (*GetTextW)(ADMDialogRef, ADMUnicode*, ADMInt32);
    ADMInt32 (*GetTextLength)(ADMDialogRef);
    ADMInt32 (*GetTextLengthW)(ADMDialogRef);
    void (*SetMinWidth)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetMinWidth)(ADMDialogRef);
    void (*SetMinHeight)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetMinHeight)(ADMDialogRef);
    void (*SetMaxWidth)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetMaxWidth)(ADMDialogRef);
    void (*SetMaxHeight)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetMaxHeight)(ADMDialogRef);
    void (*SetHorizontalIncrement)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetHorizontalIncrement)(ADMDialogRef);
    void (*SetVerticalIncrement)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetVerticalIncrement)(ADMDialogRef);
    ADMItemRef (*GetItem)(ADMDialogRef, ADMInt32);
    ADMItemRef (*CreateItem)(ADMDialogRef, ADMInt32, ADMItemType, const ADMRect*, ADMItemInitProc,
                             ADMUserData, ADMInt32);
    void (*DestroyItem)(ADMDialogRef, ADMItemRef);
    ADMItemRef (*GetNextItem)(ADMDialogRef, ADMItemRef);
    ADMItemRef (*GetPreviousItem)(ADMDialogRef, ADMItemRef);
    void (*SetDefaultItemID)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetDefaultItemID)(ADMDialogRef);
    void (*SetCancelItemID)(ADMDialogRef, ADMInt32);
    ADMInt32 (*GetCancelItemID)(ADMDialogRef);
    ADMBoolean (*EndModal)(ADMDialogRef, ADMInt32, ADMBoolean);
    ADMErr (*RegisterItemType)(SPPluginRef, ADMItemType);
    ADMErr (*UnregisterItemType)(SPPluginRef, ADMItemType);
    void (*LoadToolTips)(ADMDialogRef, ADMInt32);
    ADMBoolean (*IsCollapsed)(ADMDialogRef);
    ADMItemRef (*CreateGroupInDialog)(ADMDialogRef, SPPluginRef, const char*, ADMInt32,
                                      ADMItemInitProc, ADMUserData, ADMInt32);
    void (*SetWindowRef)(ADMDialogRef, ADMWindowRef);
    void (*SetDialogName)(ADMDialogRef, const char*);
    ADMBoolean (*IsDialogContextHidden)(ADMDialogRef);
    void (*SetUpdateEnabled)(ADMDialogRef, ADMBoolean);
    ADMBoolean (*IsUpdateEnabled)(ADMDialogRef);
    void (*SetForcedOnScreen)(ADMDialogRef, ADMBoolean);
    ADMBoolean (*IsForcedOnScreen)(ADMDialogRef);
    ADMInt32 (*DisplayAsPopupModal)(ADMDialogRef);
    ADMItemRef (*CreateNestedItem)(ADMDialogRef, ADMItemRef, ADMInt32, ADMItemType, const ADMRect*,
                                   ADMItemInitProc, ADMUserData, ADMInt32);
    ADMErr (*DoneAdjustingFocusOrder)(ADMDialogRef);
    ADMErr (*BeginAdjustingFocusOrder)(ADMDialogRef);
    ADMErr (*FirstItem)(ADMDialogRef, ADMItemRef*);
    ADMErr (*LastItem)(ADMDialogRef, ADMItemRef*);
    ADMErr (*SetIcon)(ADMDialogRef, ADMBoolean, ADMIconRef);
    ADMErr (*SetToolbarIcon)(ADMDialogRef, ADMToolbarIconType, ADMIconRef);
    ADMErr (*SetToolbarMode)(ADMDialogRef, ADMToolbarMode);
    ADMErr (*GetToolbarMode)(ADMDialogRef, ADMToolbarMode&);
};

template <>
struct ai::SuiteId<ADMDialogSuite> : ai::SuiteIdentity<kADMDialogSuite, kADMDialogSuiteVersion> {};
