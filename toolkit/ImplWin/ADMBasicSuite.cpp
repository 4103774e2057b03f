#include "host/Error.h"
#include "platform/Platform.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Palette.h"
#include "toolkit/ImplCommon/Resources.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"
#include "toolkit/ImplCommon/System.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMBasicSuite", slot> stub{};

template <typename Character>
ADMErr getIndexString(SPPluginRef plugin, ADMInt32 list, ADMInt32 index, Character* buffer,
                      ADMInt32 size) {
    copyText("", buffer, size);
    const auto text = readString(resourceLibrary(plugin), list + index);
    if (!text) return kBadParameterErr;
    copyText(utf8Of(*text), buffer, size);
    return kNoErr;
}

void beep() { Dialogs::current().peers().beep(); }

void showText(const char* text) {
    facetta::platform::showMessage(kWinHostSuite.GetCurrentOwnerWindow(), utf16Of(textFrom(text)));
}
void errorAlert(const char* text) { showText(text); }
void messageAlert(const char* text) { showText(text); }

ADMBoolean getScreenDimensions(const ADMPoint* point, ADMRect* screen) {
    const ADMPoint& place = objectOf(point);
    objectOf(screen) = rectOf(screenAt({place.h, place.v}));
    return true;
}
ADMBoolean getWorkspaceBounds(ADMRect* workspace) {
    objectOf(workspace) = rectOf(workspaceBounds());
    return true;
}

void enableToolTips(ADMBoolean enabled) { Dialogs::current().enableTips(enabled != 0); }
ADMBoolean areToolTipsEnabled() { return Dialogs::current().areTipsEnabled(); }

ADMUnits requireUnits(ADMUnits units) {
    if (!isUnit(units)) throw NRDMParameterException();
    return units;
}

void valueToString(float value, char* buffer, ADMInt32 size, ADMUnits units, ADMInt32 precision,
                   ADMBoolean showUnits) {
    const NumberForm form{
        .units = requireUnits(units), .precision = precision, .showsUnits = showUnits != 0};
    copyText(textOf(value, form, Dialogs::current().customs), buffer, size);
}

/// 0 for what cannot be read.
ADMBoolean stringToValue(const char* text, float* value, ADMUnits units) {
    const NumberForm form{.units = requireUnits(units), .precision = kMostDecimals};
    const auto number = numberIn(textFrom(text), form, Dialogs::current().customs, 0);
    objectOf(value) = static_cast<float>(number.value_or(0));
    return number.has_value();
}

void setNumbersArePoints(ADMBoolean arePoints) {
    Dialogs::current().customs.plainNumbersArePoints = arePoints != 0;
}
ADMBoolean getNumbersArePoints() { return Dialogs::current().customs.plainNumbersArePoints; }

void setDefaultIncrements(ADMUnits units, float small, float large) {
    Dialogs::current().setIncrements(requireUnits(units), {small, large});
}
void getDefaultIncrements(ADMUnits units, float* small, float* large) {
    const Increments increments = Dialogs::current().incrementsOf(requireUnits(units));
    objectOf(small) = increments.small;
    objectOf(large) = increments.large;
}

ADMBoolean colourToRGB(ADMColor colour, ADMRGBColor* rgb) {
    const auto found = admColour(colour, Palette(Dialogs::current().themes().dialogs));
    if (!found) return false;
    constexpr ADMUInt16 kWhole = 0xFFFF / 0xFF;
    objectOf(rgb) = {static_cast<ADMUInt16>(found->red * kWhole),
                     static_cast<ADMUInt16>(found->green * kWhole),
                     static_cast<ADMUInt16>(found->blue * kWhole)};
    return true;
}

} // namespace

// clang-format off
const ADMBasicSuite kBasicSuite = {
    .GetIndexString = getIndexString<char>,
    .GetIndexStringW = getIndexString<ADMUnicode>,
    .Beep = beep,
    .ErrorAlert = errorAlert,
    .ErrorAlertW = stub<"ErrorAlertW">,
    .MessageAlert = messageAlert,
    .MessageAlertW = stub<"MessageAlertW">,
    .QuestionAlert = stub<"QuestionAlert">,
    .QuestionAlertW = stub<"QuestionAlertW">,
    .YesNoAlert = stub<"YesNoAlert">,
    .YesNoAlertW = stub<"YesNoAlertW">,
    .GetScreenDimensions = getScreenDimensions,
    .EnableToolTips = enableToolTips,
    .AreToolTipsEnabled = areToolTipsEnabled,
    .ValueToString = valueToString,
    .ValueToStringW = stub<"ValueToStringW">,
    .StringToValue = stringToValue,
    .StringToValueW = stub<"StringToValueW">,
    .StandardGetFileDialog = stub<"StandardGetFileDialog">,
    .StandardGetFileDialogW = stub<"StandardGetFileDialogW">,
    .StandardGetDirectoryDialog = stub<"StandardGetDirectoryDialog">,
    .StandardGetDirectoryDialogW = stub<"StandardGetDirectoryDialogW">,
    .StandardPutFileDialog = stub<"StandardPutFileDialog">,
    .StandardPutFileDialogW = stub<"StandardPutFileDialogW">,
    .ChooseColor = stub<"ChooseColor">,
    .SetAppUnits = stub<"SetAppUnits">,
    .GetAppUnits = stub<"GetAppUnits">,
    .SetNumbersArePoints = setNumbersArePoints,
    .GetNumbersArePoints = getNumbersArePoints,
    .SetDefaultIncrements = setDefaultIncrements,
    .GetDefaultIncrements = getDefaultIncrements,
    .AboutBox = stub<"AboutBox">,
    .AboutBoxW = stub<"AboutBoxW">,
    .AreToolTipsSticky = stub<"AreToolTipsSticky">,
    .GetToolTipDelays = stub<"GetToolTipDelays">,
    .SetWindowUIMode = stub<"SetWindowUIMode">,
    .GetWindowUIMode = stub<"GetWindowUIMode">,
    .SetUIBrightness = stub<"SetUIBrightness">,
    .GetUIBrightness = stub<"GetUIBrightness">,
    .SetUsePersistentPaletteDrawers = stub<"SetUsePersistentPaletteDrawers">,
    .GetUsePersistentPaletteDrawers = stub<"GetUsePersistentPaletteDrawers">,
    .SetUseUIAnimations = stub<"SetUseUIAnimations">,
    .GetUseUIAnimations = stub<"GetUseUIAnimations">,
    .GetWorkspaceBounds = getWorkspaceBounds,
    .GetDocumentAreaBounds = stub<"GetDocumentAreaBounds">,
    .GetPaletteLayoutBounds = stub<"GetPaletteLayoutBounds">,
    .SetPlatformCursor = stub<"SetPlatformCursor">,
    .PluginAboutBox = stub<"PluginAboutBox">,
    .PluginAboutBoxW = stub<"PluginAboutBoxW">,
    .SetAlertButtonText = stub<"SetAlertButtonText">,
    .SetAlertButtonTextW = stub<"SetAlertButtonTextW">,
    .ShowToolTip = stub<"ShowToolTip">,
    .ShowToolTipW = stub<"ShowToolTipW">,
    .HideToolTip = stub<"HideToolTip">,
    .CreateMenu = stub<"CreateMenu">,
    .DisplayMenu = stub<"DisplayMenu">,
    .DestroyMenu = stub<"DestroyMenu">,
    .GetLastADMError = stub<"GetLastADMError">,
    .ADMColorToRGBColor = colourToRGB,
    .SetAppFPS = stub<"SetAppFPS">,
    .GetAppFPS = stub<"GetAppFPS">,
    .LightweightErrorAlert = stub<"LightweightErrorAlert">,
    .LightweightErrorAlertW = stub<"LightweightErrorAlertW">,
    .LookUpZString = stub<"LookUpZString">,
    .LookUpZStringW = stub<"LookUpZStringW">,
};
// clang-format on

} // namespace NRDM
