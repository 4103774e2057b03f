#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMItemSuite", slot> stub{};

template <auto Member> auto inView(const CoADMItem& item) { return item.view().*Member; }

template <auto Member> auto inForm(const CoADMItem& item) { return item.form().*Member; }
template <auto Member>
void setInForm(CoADMItem& item,
               std::remove_reference_t<decltype(std::declval<NumberForm&>().*Member)> value) {
    NumberForm form = item.form();
    form.*Member = value;
    item.setForm(form);
}

/// Whole numbers stand for the nearest real ones.
template <auto Setter> void setWhole(CoADMItem& item, ADMInt32 value) {
    (item.*Setter)(static_cast<float>(value));
}
template <auto Getter> ADMInt32 whole(const CoADMItem& item) {
    constexpr double kLeast = std::numeric_limits<ADMInt32>::min();
    constexpr double kMost = std::numeric_limits<ADMInt32>::max();
    return static_cast<ADMInt32>(
        std::clamp(std::round(static_cast<double>((item.*Getter)())), kLeast, kMost));
}

void setBoolean(CoADMItem& item, bool on) { item.setValue(on ? 1.0F : 0.0F); }

template <int PictureIds::*Member> void setPicture(CoADMItem& item, int id, const std::string&) {
    PictureIds pictures = item.view().pictures;
    pictures.*Member = id;
    item.setPictures(pictures);
}
/// Pictures have no names.
template <int PictureIds::*Member>
void getPicture(CoADMItem& item, ADMInt32* id, const char** name) {
    objectOf(id) = item.view().pictures.*Member;
    if (name != nullptr) *name = nullptr;
}

bool setCursor(CoADMItem& item, SPPluginRef plugin, int id, const std::string&) {
    if (plugin != nullptr) item.plugin = plugin;
    item.setCursor(id);
    return true;
}

CoADMItem* createItem(CoADMDialog& dialog, int id, const std::string& type, const Bounds& bounds,
                      ADMItemInitProc init, ADMUserData userData, int) {
    return dialog.createItem(id, type, bounds, init, userData);
}

void destroy(CoADMItem& item) { item.dialog().destroyItem(item); }

/// The other types draw themselves.
void setDrawProc(CoADMItem& item, ADMItemDrawProc procedure) {
    if (item.kind() != ControlKind::User) throw NRDMParameterException();
    item.procedures.draw = procedure;
    if (item.peer() != nullptr) item.peer()->invalidate();
}
void defaultDraw(CoADMItem& item, CoADMDrawer*) {
    if (item.kind() != ControlKind::User) throw NRDMParameterException();
}

/// What a press does is the business of the controls.
bool defaultTrack(CoADMItem&, CoADMTracker*) { return true; }

void defaultNotify(CoADMItem& item, CoADMNotifier* notifier) { item.handle(objectOf(notifier)); }

void sendNotify(CoADMItem& item, const std::string& type) { item.notify(type.c_str()); }

CoADMDialog* dialogOf(CoADMItem& item) { return &item.dialog(); }

void* windowOf(CoADMItem& item) { return item.peer() != nullptr ? item.peer()->window() : nullptr; }

const char* typeOf(CoADMItem& item) { return item.type().name; }

/// Of the parts of a field, the text and the popup: the item itself stands for them.
CoADMItem* childOf(CoADMItem& item, int part) {
    constexpr int kText = 3;
    constexpr int kPopup = 4;
    const bool has = part == kText ? isField(item.kind())
                                   : part == kPopup && isField(item.kind()) && hasList(item.kind());
    return has ? &item : nullptr;
}

void getBounds(CoADMItem& item, ADMRect* rect) { objectOf(rect) = rectOf(item.view().bounds); }
void getLocalBounds(CoADMItem& item, ADMRect* rect) {
    const auto [width, height] = sizeOf(item.view().bounds);
    objectOf(rect) = {0, 0, width, height};
}
void moveTo(CoADMItem& item, int left, int top) {
    const auto [width, height] = sizeOf(item.view().bounds);
    item.setBounds({left, top, left + width, top + height});
}
void resize(CoADMItem& item, int width, int height) {
    const Bounds& bounds = item.view().bounds;
    item.setBounds({bounds.left, bounds.top, bounds.left + width, bounds.top + height});
}
void setLocalBounds(CoADMItem& item, const Bounds& bounds) {
    const auto [width, height] = sizeOf(bounds);
    resize(item, width, height);
}
void getBestSize(CoADMItem& item, ADMPoint* size) {
    const CoADMDialog& dialog = item.dialog();
    const auto natural = dialog.dialogs().peers().measure(item.view(), dialog.view().kind);
    objectOf(size) = {natural.width, natural.height};
}

void invalidate(CoADMItem& item) {
    if (item.peer() != nullptr) item.peer()->invalidate();
}
void update(CoADMItem& item) {
    if (item.peer() != nullptr) item.peer()->update();
}

void getText(ADMItemRef item, char* buffer, ADMInt32 size) {
    copyText(objectOf(item).text(), buffer, size);
}
void getTip(ADMItemRef item, char* buffer, ADMInt32 size) {
    copyText(objectOf(item).tip(), buffer, size);
}
int textLength(CoADMItem& item) { return lengthOf(item.text()); }

ADMBoolean floatToText(ADMItemRef item, float value, char* buffer, ADMInt32 size) {
    const CoADMItem& self = objectOf(item);
    copyText(textOf(value, self.form(), self.dialog().dialogs().customs), buffer, size);
    return true;
}
ADMBoolean textToFloat(ADMItemRef item, const char* text, float* value) {
    const CoADMItem& self = objectOf(item);
    const auto number = self.numberIn(textFrom(text));
    if (number) objectOf(value) = static_cast<float>(*number);
    return number.has_value();
}

} // namespace

// clang-format off
const ADMItemSuite kItemSuite = {
    .Create = call<&createItem>,
    .Destroy = call<&destroy>,
    .SetDrawProc = call<&setDrawProc>,
    .GetDrawProc = call<&procedureOf<CoADMItem, &ItemProcedures::draw>>,
    .DefaultDraw = call<&defaultDraw>,
    .SetTrackProc = call<&setProcedure<CoADMItem, &ItemProcedures::track>>,
    .GetTrackProc = call<&procedureOf<CoADMItem, &ItemProcedures::track>>,
    .DefaultTrack = call<&defaultTrack>,
    .SetMask = call<&assign<CoADMItem, &CoADMItem::mask>>,
    .GetMask = call<&CoADMItem::mask>,
    .SetNotifyProc = call<&setProcedure<CoADMItem, &ItemProcedures::notify>>,
    .GetNotifyProc = call<&procedureOf<CoADMItem, &ItemProcedures::notify>>,
    .DefaultNotify = call<&defaultNotify>,
    .SendNotify = call<&sendNotify>,
    .SetNotifierData = stub<"SetNotifierData">,
    .GetNotifierData = stub<"GetNotifierData">,
    .SetDestroyProc = call<&setProcedure<CoADMItem, &ItemProcedures::destroy>>,
    .GetDestroyProc = call<&procedureOf<CoADMItem, &ItemProcedures::destroy>>,
    .CreateTimer = stub<"CreateTimer">,
    .AbortTimer = stub<"AbortTimer">,
    .SetUserData = call<&assign<CoADMItem, &CoADMItem::userData>>,
    .GetUserData = call<&CoADMItem::userData>,
    .GetID = call<&CoADMItem::id>,
    .GetDialog = call<&dialogOf>,
    .GetWindowRef = call<&windowOf>,
    .GetList = call<&CoADMItem::list>,
    .GetChildItem = call<&childOf>,
    .SetPluginRef = call<&assign<CoADMItem, &CoADMItem::plugin>>,
    .GetPluginRef = call<&CoADMItem::plugin>,
    .SetItemType = stub<"SetItemType">,
    .GetItemType = call<&typeOf>,
    .SetItemStyle = call<&CoADMItem::setStyle>,
    .GetItemStyle = call<&inView<&ItemView::style>>,
    .Show = call<&CoADMItem::show>,
    .IsVisible = call<&inView<&ItemView::visible>>,
    .Enable = call<&CoADMItem::enable>,
    .IsEnabled = call<&inView<&ItemView::enabled>>,
    .Activate = call<&CoADMItem::activate>,
    .IsActive = call<&CoADMItem::isActive>,
    .Known = call<&CoADMItem::setKnown>,
    .IsKnown = call<&inView<&ItemView::known>>,
    .SetLocalRect = call<&setLocalBounds>,
    .GetLocalRect = call<&getLocalBounds>,
    .SetBoundsRect = call<&CoADMItem::setBounds>,
    .GetBoundsRect = call<&getBounds>,
    .GetBestSize = call<&getBestSize>,
    .Move = call<&moveTo>,
    .Size = call<&resize>,
    .LocalToScreenPoint = stub<"LocalToScreenPoint">,
    .ScreenToLocalPoint = stub<"ScreenToLocalPoint">,
    .LocalToScreenRect = stub<"LocalToScreenRect">,
    .ScreenToLocalRect = stub<"ScreenToLocalRect">,
    .Invalidate = call<&invalidate>,
    .InvalidateRect = stub<"InvalidateRect">,
    .Update = call<&update>,
    .SetCursorID = call<&setCursor>,
    .GetCursorID = stub<"GetCursorID">,
    .SetPictureID = call<&setPicture<&PictureIds::normal>>,
    .GetPictureID = call<&getPicture<&PictureIds::normal>>,
    .SetSelectedPictureID = call<&setPicture<&PictureIds::selected>>,
    .GetSelectedPictureID = call<&getPicture<&PictureIds::selected>>,
    .SetDisabledPictureID = call<&setPicture<&PictureIds::disabled>>,
    .GetDisabledPictureID = call<&getPicture<&PictureIds::disabled>>,
    .SetTipString = call<&CoADMItem::setTip>,
    .SetTipStringW = stub<"SetTipStringW">,
    .GetTipString = getTip,
    .GetTipStringW = stub<"GetTipStringW">,
    .GetTipStringLength = stub<"GetTipStringLength">,
    .GetTipStringLengthW = stub<"GetTipStringLengthW">,
    .EnableTip = call<&CoADMItem::enableTip>,
    .IsTipEnabled = call<&CoADMItem::isTipEnabled>,
    .ShowToolTip = stub<"ShowToolTip">,
    .HideToolTip = stub<"HideToolTip">,
    .SetFont = call<&CoADMItem::setFont>,
    .GetFont = call<&inView<&ItemView::font>>,
    .SetText = call<&CoADMItem::setText>,
    .SetTextW = call<&CoADMItem::setText>,
    .GetText = getText,
    .GetTextW = stub<"GetTextW">,
    .GetTextLength = call<&textLength>,
    .GetTextLengthW = stub<"GetTextLengthW">,
    .SetMaxTextLength = call<&CoADMItem::setMaximumLength>,
    .GetMaxTextLength = call<&inView<&ItemView::maximumLength>>,
    .SelectAll = call<&CoADMItem::selectAll>,
    .SetSelectionRange = stub<"SetSelectionRange">,
    .GetSelectionRange = stub<"GetSelectionRange">,
    .SetJustify = call<&CoADMItem::setJustify>,
    .GetJustify = call<&inView<&ItemView::justify>>,
    .SetUnits = call<&setInForm<&NumberForm::units>>,
    .GetUnits = call<&inForm<&NumberForm::units>>,
    .SetPrecision = call<&setInForm<&NumberForm::precision>>,
    .GetPrecision = call<&inForm<&NumberForm::precision>>,
    .SetBooleanValue = call<&setBoolean>,
    .GetBooleanValue = call<&CoADMItem::isOn>,
    .SetIntValue = call<&setWhole<&CoADMItem::setValue>>,
    .GetIntValue = call<&whole<&CoADMItem::value>>,
    .SetFixedValue = stub<"SetFixedValue">,
    .GetFixedValue = stub<"GetFixedValue">,
    .SetFloatValue = call<&CoADMItem::setValue>,
    .GetFloatValue = call<&CoADMItem::value>,
    .SetMinIntValue = call<&setWhole<&CoADMItem::setLowest>>,
    .GetMinIntValue = call<&whole<&CoADMItem::lowest>>,
    .SetMinFixedValue = stub<"SetMinFixedValue">,
    .GetMinFixedValue = stub<"GetMinFixedValue">,
    .SetMaxIntValue = call<&setWhole<&CoADMItem::setHighest>>,
    .GetMaxIntValue = call<&whole<&CoADMItem::highest>>,
    .SetMinFloatValue = call<&CoADMItem::setLowest>,
    .GetMinFloatValue = call<&CoADMItem::lowest>,
    .SetMaxFixedValue = stub<"SetMaxFixedValue">,
    .GetMaxFixedValue = stub<"GetMaxFixedValue">,
    .SetMaxFloatValue = call<&CoADMItem::setHighest>,
    .GetMaxFloatValue = call<&CoADMItem::highest>,
    .SetSmallIncrement = call<&CoADMItem::setSmallIncrement>,
    .GetSmallIncrement = call<&CoADMItem::smallIncrement>,
    .SetLargeIncrement = call<&CoADMItem::setLargeIncrement>,
    .GetLargeIncrement = call<&CoADMItem::largeIncrement>,
    .SetAllowUnits = call<&setInForm<&NumberForm::allowsUnits>>,
    .GetAllowUnits = call<&inForm<&NumberForm::allowsUnits>>,
    .SetAllowMath = call<&setInForm<&NumberForm::allowsMath>>,
    .GetAllowMath = call<&inForm<&NumberForm::allowsMath>>,
    .SetFloatToTextProc = stub<"SetFloatToTextProc">,
    .GetFloatToTextProc = stub<"GetFloatToTextProc">,
    .DefaultFloatToText = floatToText,
    .DefaultFloatToTextW = stub<"DefaultFloatToTextW">,
    .SetTextToFloatProc = stub<"SetTextToFloatProc">,
    .GetTextToFloatProc = stub<"GetTextToFloatProc">,
    .DefaultTextToFloat = textToFloat,
    .DefaultTextToFloatW = stub<"DefaultTextToFloatW">,
    .ShowUnits = call<&setInForm<&NumberForm::showsUnits>>,
    .GetShowUnits = call<&inForm<&NumberForm::showsUnits>>,
    .WasPercentageChange = stub<"WasPercentageChange">,
    .GetHierarchyList = stub<"GetHierarchyList">,
    .AddItem = stub<"AddItem">,
    .RemoveItem = stub<"RemoveItem">,
    .SetPicture = stub<"SetPicture">,
    .GetPicture = stub<"GetPicture">,
    .SetSelectedPicture = stub<"SetSelectedPicture">,
    .GetSelectedPicture = stub<"GetSelectedPicture">,
    .SetDisabledPicture = stub<"SetDisabledPicture">,
    .GetDisabledPicture = stub<"GetDisabledPicture">,
    .SetPopupDialog = stub<"SetPopupDialog">,
    .GetPopupDialog = stub<"GetPopupDialog">,
    .SetForeColor = stub<"SetForeColor">,
    .GetForeColor = stub<"GetForeColor">,
    .SetBackColor = stub<"SetBackColor">,
    .GetBackColor = stub<"GetBackColor">,
    .SetRolloverPictureID = call<&setPicture<&PictureIds::rollover>>,
    .GetRolloverPictureID = call<&getPicture<&PictureIds::rollover>>,
    .SetRolloverPicture = stub<"SetRolloverPicture">,
    .GetRolloverPicture = stub<"GetRolloverPicture">,
    .SetHasRollOverProperty = stub<"SetHasRollOverProperty">,
    .GetHasRollOverProperty = stub<"GetHasRollOverProperty">,
    .SetInRollOverState = stub<"SetInRollOverState">,
    .IsInRollOverState = stub<"IsInRollOverState">,
    .IgnoreForceRoman = stub<"IgnoreForceRoman">,
    .SetWantsFocus = stub<"SetWantsFocus">,
    .GetWantsFocus = stub<"GetWantsFocus">,
    .SetNextFocus = stub<"SetNextFocus">,
    .SetFirstFocus = stub<"SetFirstFocus">,
    .MoveFocusItem = stub<"MoveFocusItem">,
};
// clang-format on

} // namespace NRDM
