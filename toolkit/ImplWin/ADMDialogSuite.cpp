#include "host/Codes.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/CoADMIcon.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMDialogSuite", slot> stub{};

DialogRequest requestOf(SPPluginRef plugin, const char* name, ADMInt32 resource,
                        ADMDialogStyle style, ADMDialogInitProc init, ADMUserData userData,
                        ADMInt32 options) {
    return {plugin, textFrom(name), resource, style, init, userData, options};
}

ADMDialogRef create(SPPluginRef plugin, const char* name, ADMInt32 resource, ADMDialogStyle style,
                    ADMDialogInitProc init, ADMUserData userData, ADMInt32 options) {
    return Dialogs::current().create(
        requestOf(plugin, name, resource, style, init, userData, options));
}

ADMInt32 modal(SPPluginRef plugin, const char* name, ADMInt32 resource, ADMDialogStyle style,
               ADMDialogInitProc init, ADMUserData userData, ADMInt32 options) {
    return Dialogs::current().modal(
        requestOf(plugin, name, resource, style, init, userData, options));
}

void destroy(CoADMDialog& dialog) {
    if (dialog.isRunning()) throw NRDMParameterException(); // end its loop instead
    dialog.dialogs().destroy(dialog);
}

/// A dialog draws nothing on its background.
void defaultDraw(CoADMDialog&, CoADMDrawer*) {}

void defaultNotify(CoADMDialog& dialog, CoADMNotifier* notifier) {
    dialog.handle(objectOf(notifier));
}

void sendNotify(CoADMDialog& dialog, const std::string& type) { dialog.notify(type.c_str()); }

/// There are no options of timers.
CoADMTimer* createTimer(CoADMDialog& dialog, ADMUInt32 milliseconds, ADMActionMask abortMask,
                        ADMDialogTimerProc fired, ADMDialogTimerAbortProc aborted, ADMInt32) {
    return dialog.startTimer(static_cast<int>(milliseconds), abortMask, fired, aborted);
}
void abortTimer(CoADMDialog& dialog, CoADMTimer* timer) {
    dialog.abortTimer(objectOf(timer), kADMNoEventAction);
}

const char* nameOf(CoADMDialog& dialog) { return dialog.name().c_str(); }

void* windowOf(CoADMDialog& dialog) {
    return dialog.peer() != nullptr ? dialog.peer()->window() : nullptr;
}

void activate(CoADMDialog& dialog, bool active) {
    if (active) dialog.activate();
}
bool isActive(CoADMDialog& dialog) { return dialog.active() != nullptr; }

void getBounds(CoADMDialog& dialog, ADMRect* rect) {
    objectOf(rect) = rectOf(dialog.screenBounds());
}
void getLocalBounds(CoADMDialog& dialog, ADMRect* rect) {
    const auto [width, height] = dialog.view().size;
    objectOf(rect) = {0, 0, width, height};
}
void setLocalBounds(CoADMDialog& dialog, const Bounds& bounds) { dialog.setSize(sizeOf(bounds)); }
void moveTo(CoADMDialog& dialog, int left, int top) { dialog.moveTo({left, top}); }
void resize(CoADMDialog& dialog, int width, int height) { dialog.setSize({width, height}); }

void shift(ADMPoint& point, Place by) { point = {point.h + by.x, point.v + by.y}; }
void shift(ADMRect& rect, Place by) {
    rect = {rect.left + by.x, rect.top + by.y, rect.right + by.x, rect.bottom + by.y};
}
template <typename Shape> void toScreen(CoADMDialog& dialog, Shape* shape) {
    const Bounds bounds = dialog.screenBounds();
    shift(objectOf(shape), {bounds.left, bounds.top});
}
template <typename Shape> void toLocal(CoADMDialog& dialog, Shape* shape) {
    const Bounds bounds = dialog.screenBounds();
    shift(objectOf(shape), {-bounds.left, -bounds.top});
}

void invalidate(CoADMDialog& dialog) {
    if (dialog.peer() != nullptr) dialog.peer()->invalidate();
}
void invalidateRect(CoADMDialog& dialog, const Bounds& area) {
    if (dialog.peer() != nullptr) dialog.peer()->invalidate(area);
}
void update(CoADMDialog& dialog) {
    if (dialog.peer() != nullptr) dialog.peer()->update();
}

int fontOf(CoADMDialog& dialog) { return dialog.view().font; }

void getText(ADMDialogRef dialog, char* buffer, ADMInt32 size) {
    copyText(objectOf(dialog).view().title, buffer, size);
}
int textLength(CoADMDialog& dialog) { return lengthOf(dialog.view().title); }

CoADMItem* createItem(CoADMDialog& dialog, int id, const std::string& type, const Bounds& bounds,
                      ADMItemInitProc init, ADMUserData userData, int) {
    return dialog.createItem(id, type, bounds, init, userData);
}
void destroyItem(CoADMDialog& dialog, CoADMItem* item) { dialog.destroyItem(objectOf(item)); }

/// The item `distance` further, or null.
template <int distance> CoADMItem* nextItem(CoADMDialog& dialog, CoADMItem* item) {
    return dialog.neighbour(objectOf(item), distance);
}

/// The dialog keeps what it needs of the icon.
ADMErr setIcon(CoADMDialog& dialog, bool rolledOver, CoADMIcon* icon) {
    dialog.icons.at(rolledOver ? 1 : 0) = icon != nullptr ? icon->id() : 0;
    return kNoErr;
}

} // namespace

// clang-format off
const ADMDialogSuite kDialogSuite = {
    .Create = create,
    .Modal = modal,
    .PopupModal = stub<"PopupModal">,
    .DisplayAsModal = call<&CoADMDialog::run>,
    .Destroy = call<&destroy>,
    .SetDrawProc = call<&setProcedure<CoADMDialog, &DialogProcedures::draw>>,
    .GetDrawProc = call<&procedureOf<CoADMDialog, &DialogProcedures::draw>>,
    .DefaultDraw = call<&defaultDraw>,
    .SetTrackProc = stub<"SetTrackProc">,
    .GetTrackProc = stub<"GetTrackProc">,
    .DefaultTrack = stub<"DefaultTrack">,
    .SetMask = call<&assign<CoADMDialog, &CoADMDialog::mask>>,
    .GetMask = call<&CoADMDialog::mask>,
    .SetNotifyProc = call<&setProcedure<CoADMDialog, &DialogProcedures::notify>>,
    .GetNotifyProc = call<&procedureOf<CoADMDialog, &DialogProcedures::notify>>,
    .DefaultNotify = call<&defaultNotify>,
    .SendNotify = call<&sendNotify>,
    .SetNotifierData = stub<"SetNotifierData">,
    .GetNotifierData = stub<"GetNotifierData">,
    .SetDestroyProc = call<&setProcedure<CoADMDialog, &DialogProcedures::destroy>>,
    .GetDestroyProc = call<&procedureOf<CoADMDialog, &DialogProcedures::destroy>>,
    .CreateTimer = call<&createTimer>,
    .AbortTimer = call<&abortTimer>,
    .SetUserData = call<&assign<CoADMDialog, &CoADMDialog::userData>>,
    .GetUserData = call<&CoADMDialog::userData>,
    .GetDialogName = call<&nameOf>,
    .GetID = call<&CoADMDialog::id>,
    .GetPluginRef = call<&CoADMDialog::plugin>,
    .GetWindowRef = call<&windowOf>,
    .SetDialogStyle = stub<"SetDialogStyle">,
    .GetDialogStyle = call<&CoADMDialog::style>,
    .Show = call<&CoADMDialog::show>,
    .IsVisible = call<&CoADMDialog::isVisible>,
    .IsDialogTabHidden = stub<"IsDialogTabHidden">,
    .Enable = call<&CoADMDialog::enable>,
    .IsEnabled = call<&CoADMDialog::isEnabled>,
    .Activate = call<&activate>,
    .IsActive = call<&isActive>,
    .SetLocalRect = call<&setLocalBounds>,
    .GetLocalRect = call<&getLocalBounds>,
    .SetBoundsRect = call<&CoADMDialog::setScreenBounds>,
    .GetBoundsRect = call<&getBounds>,
    .GetMainViewRect = stub<"GetMainViewRect">,
    .Move = call<&moveTo>,
    .Size = call<&resize>,
    .SetPreferredSizes = stub<"SetPreferredSizes">,
    .GetPreferredSizes = stub<"GetPreferredSizes">,
    .SetToolbarSizeForMode = stub<"SetToolbarSizeForMode">,
    .GetToolbarSizeForMode = stub<"GetToolbarSizeForMode">,
    .LocalToScreenPoint = call<&toScreen<ADMPoint>>,
    .ScreenToLocalPoint = call<&toLocal<ADMPoint>>,
    .LocalToScreenRect = call<&toScreen<ADMRect>>,
    .ScreenToLocalRect = call<&toLocal<ADMRect>>,
    .Invalidate = call<&invalidate>,
    .InvalidateRect = call<&invalidateRect>,
    .Update = call<&update>,
    .SetCursorID = stub<"SetCursorID">,
    .GetCursorID = stub<"GetCursorID">,
    .SetFont = call<&CoADMDialog::setFont>,
    .GetFont = call<&fontOf>,
    .SetText = call<&CoADMDialog::setTitle>,
    .SetTextW = stub<"SetTextW">,
    .GetText = getText,
    .GetTextW = stub<"GetTextW">,
    .GetTextLength = call<&textLength>,
    .GetTextLengthW = stub<"GetTextLengthW">,
    .SetMinWidth = stub<"SetMinWidth">,
    .GetMinWidth = stub<"GetMinWidth">,
    .SetMinHeight = stub<"SetMinHeight">,
    .GetMinHeight = stub<"GetMinHeight">,
    .SetMaxWidth = stub<"SetMaxWidth">,
    .GetMaxWidth = stub<"GetMaxWidth">,
    .SetMaxHeight = stub<"SetMaxHeight">,
    .GetMaxHeight = stub<"GetMaxHeight">,
    .SetHorizontalIncrement = stub<"SetHorizontalIncrement">,
    .GetHorizontalIncrement = stub<"GetHorizontalIncrement">,
    .SetVerticalIncrement = stub<"SetVerticalIncrement">,
    .GetVerticalIncrement = stub<"GetVerticalIncrement">,
    .GetItem = call<&CoADMDialog::item>,
    .CreateItem = call<&createItem>,
    .DestroyItem = call<&destroyItem>,
    .GetNextItem = call<&nextItem<1>>,
    .GetPreviousItem = call<&nextItem<-1>>,
    .SetDefaultItemID = call<&CoADMDialog::setDefaultId>,
    .GetDefaultItemID = call<&CoADMDialog::defaultId>,
    .SetCancelItemID = call<&CoADMDialog::setCancelId>,
    .GetCancelItemID = call<&CoADMDialog::cancelId>,
    .EndModal = call<&CoADMDialog::end>,
    .RegisterItemType = stub<"RegisterItemType">,
    .UnregisterItemType = stub<"UnregisterItemType">,
    .LoadToolTips = stub<"LoadToolTips">,
    .IsCollapsed = stub<"IsCollapsed">,
    .CreateGroupInDialog = stub<"CreateGroupInDialog">,
    .SetWindowRef = stub<"SetWindowRef">,
    .SetDialogName = stub<"SetDialogName">,
    .IsDialogContextHidden = stub<"IsDialogContextHidden">,
    .SetUpdateEnabled = stub<"SetUpdateEnabled">,
    .IsUpdateEnabled = stub<"IsUpdateEnabled">,
    .SetForcedOnScreen = stub<"SetForcedOnScreen">,
    .IsForcedOnScreen = stub<"IsForcedOnScreen">,
    .DisplayAsPopupModal = stub<"DisplayAsPopupModal">,
    .CreateNestedItem = stub<"CreateNestedItem">,
    .DoneAdjustingFocusOrder = stub<"DoneAdjustingFocusOrder">,
    .BeginAdjustingFocusOrder = stub<"BeginAdjustingFocusOrder">,
    .FirstItem = stub<"FirstItem">,
    .LastItem = stub<"LastItem">,
    .SetIcon = call<&setIcon>,
    .SetToolbarIcon = stub<"SetToolbarIcon">,
    .SetToolbarMode = stub<"SetToolbarMode">,
    .GetToolbarMode = stub<"GetToolbarMode">,
};
// clang-format on

} // namespace NRDM
