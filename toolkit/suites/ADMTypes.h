#pragma once

/// Types, records, constants and callbacks of ADM, the interface of dialogs that the toolkit
/// offers.
///
/// Integers have fixed widths, enumerations are 32 bits wide and so are plain integers here. A null
/// reference means none. A suite is a table of functions without anything between its slots, and is
/// acquired by name and version like those of the host.

#include "host/Handles.h"
#include "host/Types.h"

#include <array>
#include <limits>

using ADMInt8 = ai::int8;
using ADMInt16 = ai::int16;
using ADMInt32 = ai::int32;
using ADMUInt8 = ai::uint8;
using ADMUInt16 = ai::uint16;
using ADMUInt32 = ai::uint32;
using ADMErr = ADMInt32;
using ADMBoolean = int; ///< test for non-zero
using ADMReal = float;
using ADMFixed = ADMInt32; ///< 16.16 fixed point
using ADMFract = ADMInt32;
using ADMUnicode = ai::uint16; ///< a unit of UTF-16
using ADMChar = ADMUInt16;
using ADMTime = ADMUInt32;
using ADMBytePtr = ADMUInt8*;

using ADMUserData = void*;
using ADMWindowRef = void*; ///< an HWND
using ADMPortRef = void*;   ///< an HDC

namespace NRDM {
class CoADMDialog;
class CoADMItem;
class INRDMList;
class INRDMEntry;
class CoADMNotifier;
class CoADMTracker;
class CoADMDrawer;
class CoADMIcon;
class CoADMImage;
class CoADMTimer;
} // namespace NRDM

using ADMDialogRef = NRDM::CoADMDialog*;
using ADMItemRef = NRDM::CoADMItem*;
using ADMListRef = NRDM::INRDMList*;
using ADMEntryRef = NRDM::INRDMEntry*;
using ADMNotifierRef = NRDM::CoADMNotifier*;
using ADMTrackerRef = NRDM::CoADMTracker*;
using ADMDrawerRef = NRDM::CoADMDrawer*;
using ADMIconRef = NRDM::CoADMIcon*;
using ADMImageRef = NRDM::CoADMImage*;
using ADMTimerRef = NRDM::CoADMTimer*;
struct ADMHierarchyList;
using ADMHierarchyListRef = ADMHierarchyList*;
struct ADMAGMPort;
using ADMAGMPortPtr = ADMAGMPort*;

// Records of functions that the toolkit does not offer.
struct ADMPlatformFileTypesSpecification3;
struct SPPlatformFileSpecification;
struct _t_ADMAGMImageRecord; // NOLINT(bugprone-reserved-identifier): the host spells it so
struct tagMSG;

struct ADMPoint {
    ADMInt32 h;
    ADMInt32 v;
};

/// Right and bottom are exclusive, y runs downwards.
struct ADMRect {
    ADMInt32 left;
    ADMInt32 top;
    ADMInt32 right;
    ADMInt32 bottom;
};

/// 0..65535 in each channel.
struct ADMRGBColor {
    ADMUInt16 red;
    ADMUInt16 green;
    ADMUInt16 blue;
};

struct ADMFontInfo {
    ADMInt32 height;
    ADMInt32 ascent;
    ADMInt32 descent;
    ADMInt32 leading;
    ADMInt32 maxWidth;
};

struct ADMFixedMatrix {
    ADMFract a;
    ADMFract b;
    ADMFract c;
    ADMFract d;
    ADMFixed tx;
    ADMFixed ty;
};

struct ADMVirtualKeyArray {
    std::array<ADMBoolean, 256> keys;
};

static_assert(sizeof(ADMBoolean) == 4 && sizeof(ADMPoint) == 8 && sizeof(ADMRect) == 16);
static_assert(sizeof(ADMRGBColor) == 6 && sizeof(ADMFontInfo) == 20);
static_assert(sizeof(ADMFixedMatrix) == 24 && sizeof(ADMVirtualKeyArray) == 1024);

constexpr ADMInt32 kADMMaxTextLength = 256;

// Types of items. They are compared as texts.
using ADMItemType = const char*;
inline constexpr char kADMTextPushButtonType[] = "ADM Text Push Button Type";
inline constexpr char kADMPicturePushButtonType[] = "ADM Picture Push Button Type";
inline constexpr char kADMTextCheckBoxType[] = "ADM Text Check Box Type";
inline constexpr char kADMPictureCheckBoxType[] = "ADM Picture Check Box Button Type";
inline constexpr char kADMTextRadioButtonType[] = "ADM Text Radio Button Type";
inline constexpr char kADMPictureRadioButtonType[] = "ADM Picture Radio Button Type";
inline constexpr char kADMTextStaticType[] = "ADM Text Static Type";
inline constexpr char kADMTextStaticMultiLineType[] = "ADM Text Static Multi Line Type";
inline constexpr char kADMPictureStaticType[] = "ADM Picture Static Type";
inline constexpr char kADMTextEditType[] = "ADM Text Edit Type";
inline constexpr char kADMTextEditPopupType[] = "ADM Text Edit Popup Type";
inline constexpr char kADMTextEditScrollingPopupType[] = "ADM Text Edit Scrolling Popup Type";
inline constexpr char kADMSpinEditType[] = "ADM Spin Edit Type";
inline constexpr char kADMSpinEditPopupType[] = "ADM Spin Edit Popup Type";
inline constexpr char kADMSpinEditScrollingPopupType[] = "ADM Spin Edit Scrolling Popup Type";
inline constexpr char kADMPopupSpinEditControlType[] = "ADM Popup Spin Edit Control Type";
inline constexpr char kADMPopupControlType[] = "ADM Popup Control Type";
inline constexpr char kADMFrameType[] = "ADM Frame Type";
inline constexpr char kADMSliderType[] = "ADM Slider Type";
inline constexpr char kADMListBoxType[] = "ADM List Box Type";
inline constexpr char kADMPopupListType[] = "ADM Popup List Type";
inline constexpr char kADMScrollingPopupListType[] = "ADM Scrolling Popup List Type";
inline constexpr char kADMPopupMenuType[] = "ADM Popup Menu Type";
inline constexpr char kADMItemGroupType[] = "ADM Item Group Type";
inline constexpr char kADMUserType[] = "ADM User Type";

// Notifications that the toolkit sends.
inline constexpr char kADMUserChangedNotifier[] = "ADM User Changed Notifier";
inline constexpr char kADMIntermediateChangedNotifier[] = "ADM Intermediate Changed Notifier";
inline constexpr char kADMBoundsChangedNotifier[] = "ADM Bounds Changed Notifier";
inline constexpr char kADMCycleNotifier[] = "ADM Cycle Notifier";

using ADMDialogStyle = ADMInt32;
constexpr ADMDialogStyle kADMModalDialogStyle = 0;
constexpr ADMDialogStyle kADMAlertDialogStyle = 1;
constexpr ADMDialogStyle kADMTabbedFloatingDialogStyle = 3;
constexpr ADMDialogStyle kADMSystemAlertDialogStyle = 8;
constexpr ADMDialogStyle kADMResizingModalDialogStyle = 10;
constexpr ADMDialogStyle kADMModalNoActivateDialogStyle = 20;

// Ids of items with a role.
constexpr ADMInt32 kADMUniqueItemID = 0;
constexpr ADMInt32 kADMFirstItemID = -1;
constexpr ADMInt32 kADMLastItemID = -2;
constexpr ADMInt32 kADMDefaultItemID = -3;
constexpr ADMInt32 kADMCancelItemID = -4;
constexpr ADMInt32 kADMMenuItemID = -5;

using ADMItemStyle = ADMInt32;
constexpr ADMItemStyle kADMRadioAllMayBeOffStyle = 2;
constexpr ADMItemStyle kADMNoNeighbourStyle = 2; ///< of static texts and pictures
constexpr ADMItemStyle kADMNumericEditStyle = 2;
constexpr ADMItemStyle kADMListedValuesOnlyStyle = 5; ///< of edits with a popup

using ADMUnits = ADMInt32;
constexpr ADMUnits kADMNoUnits = 0;
constexpr ADMUnits kADMPointUnits = 1;
constexpr ADMUnits kADMInchUnits = 2;
constexpr ADMUnits kADMMillimeterUnits = 3;
constexpr ADMUnits kADMCentimeterUnits = 4;
constexpr ADMUnits kADMPicaUnits = 5;
constexpr ADMUnits kADMPercentUnits = 6;
constexpr ADMUnits kADMDegreeUnits = 7;
constexpr ADMUnits kADMQUnits = 8;
constexpr ADMUnits kADMBase16Units = 9;
constexpr ADMUnits kADMPixelUnits = 10;
constexpr ADMUnits kADMTimeUnits = 11;
constexpr ADMUnits kADMHaUnits = 12;

/// A precision: whole numbers alone are accepted.
constexpr ADMInt32 kADMIntegerNumeric = -1;

using ADMFont = ADMInt32;
constexpr ADMFont kADMDefaultFont = 0;
constexpr ADMFont kADMDialogFont = 1;
constexpr ADMFont kADMPaletteFont = 2;

using ADMJustify = ADMInt32; ///< 0 left, 1 centre, 2 right

using ADMColor = ADMInt32; ///< 0..16, mapped to the host's interface
constexpr ADMColor kADMTextColor = 15;
constexpr ADMColor kADMColorNotGiven = 254;

/// Positive when something goes down, negative for the same going up.
using ADMAction = ADMInt32;
constexpr ADMAction kADMMouseMovedDownAction = 1;
constexpr ADMAction kADMButtonDownAction = 2;
constexpr ADMAction kADMButtonUpAction = -2;
constexpr ADMAction kADMLeaveAction = -11;
constexpr ADMAction kADMKeyStrokeAction = -15;
/// Given to a timer's abort procedure when no event was the cause.
constexpr ADMAction kADMNoEventAction = std::numeric_limits<ADMAction>::max();

using ADMActionMask = ADMUInt32;
constexpr ADMActionMask kADMAllEventsMask = 0xFFFFFFFF;
constexpr ADMActionMask kADMLeaveMask = 0x08000000;

/// The bit of `action` in a mask.
[[nodiscard]] constexpr ADMActionMask maskOf(ADMAction action) {
    return ADMActionMask{1} << (action > 0 ? action : 16 - action);
}

using ADMModifiers = ADMUInt32;
using ADMMouseState = ADMInt32; ///< 0 normal, 1 captured

using ADMIconType = ADMInt32;
constexpr ADMIconType kADMImageIconType = 5;
constexpr ADMIconType kADMUnknownIconType = 7;

using ADMAnswer = ADMInt32;
using ADMDrawMode = ADMInt32;
using ADMRecolorStyle = ADMInt32;
using ADMStandardCheckGlyphID = ADMInt32;
using ADMToolbarMode = ADMInt32;
using ADMToolbarIconType = ADMInt32;
using ADMWindowUIMode = ADMInt32;
using ADMUIBrightness = ADMInt32;
using ADMHWNDOptimizationMode = ADMInt32;

/// Called once, when the dialog and the items of its layout exist and before it is shown; anything
/// but 0 cancels the dialog.
using ADMDialogInitProc = ADMErr (*)(ADMDialogRef);
using ADMDialogDestroyProc = void (*)(ADMDialogRef);
using ADMDialogNotifyProc = void (*)(ADMDialogRef, ADMNotifierRef);
using ADMDialogDrawProc = void (*)(ADMDialogRef, ADMDrawerRef);
using ADMDialogTrackProc = ADMBoolean (*)(ADMDialogRef, ADMTrackerRef);
/// True asks for another round.
using ADMDialogTimerProc = ADMBoolean (*)(ADMDialogRef, ADMTimerRef);
using ADMDialogTimerAbortProc = void (*)(ADMDialogRef, ADMTimerRef, ADMAction);

using ADMItemInitProc = ADMErr (*)(ADMItemRef);
using ADMItemDestroyProc = void (*)(ADMItemRef);
using ADMItemNotifyProc = void (*)(ADMItemRef, ADMNotifierRef);
using ADMItemDrawProc = void (*)(ADMItemRef, ADMDrawerRef);
/// True when the button goes up asks for a notification.
using ADMItemTrackProc = ADMBoolean (*)(ADMItemRef, ADMTrackerRef);
using ADMItemTimerProc = ADMBoolean (*)(ADMItemRef, ADMTimerRef);
using ADMItemTimerAbortProc = void (*)(ADMItemRef, ADMTimerRef, ADMAction);
using ADMItemFloatToTextProc = ADMBoolean (*)(ADMItemRef, float, char*, ADMInt32);
using ADMItemTextToFloatProc = ADMBoolean (*)(ADMItemRef, const char*, float*);

using ADMEntryInitProc = ADMErr (*)(ADMEntryRef);
using ADMEntryDestroyProc = void (*)(ADMEntryRef);
using ADMEntryDrawProc = void (*)(ADMEntryRef, ADMDrawerRef);
using ADMEntryTrackProc = ADMBoolean (*)(ADMEntryRef, ADMTrackerRef);
using ADMEntryNotifyProc = void (*)(ADMEntryRef, ADMNotifierRef);
using ADMEntryTimerProc = ADMBoolean (*)(ADMEntryRef, ADMTimerRef);
using ADMEntryTimerAbortProc = void (*)(ADMEntryRef, ADMTimerRef, ADMAction);

using ADMModalMessageProc = ADMErr (*)(ADMUInt32, ADMUInt32, ADMInt32);
using ADMTextFocusChangedProc = void (*)(ADMBoolean);
