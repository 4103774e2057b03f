#include "toolkit/ImplWin/NRDMEditText.h"
#include "toolkit/ImplWin/NRDMFrame.h"
#include "toolkit/ImplWin/NRDMItemGroup.h"
#include "toolkit/ImplWin/NRDMLabel.h"
#include "toolkit/ImplWin/NRDMListView.h"
#include "toolkit/ImplWin/NRDMPopupList.h"
#include "toolkit/ImplWin/NRDMPopupMenu.h"
#include "toolkit/ImplWin/NRDMSlider.h"
#include "toolkit/ImplWin/NRDMToggleButton.h"
#include "toolkit/ImplWin/NRDMUserType.h"

#include <iterator>

namespace NRDM {
namespace {

using Maker = std::unique_ptr<NativeItem> (*)(NativeDialog&, const ItemView&, ItemEvents&);

template <typename Control>
std::unique_ptr<NativeItem> make(NativeDialog& dialog, const ItemView& view, ItemEvents& events) {
    return std::make_unique<Control>(dialog, view, events);
}

/// In the order of `ControlKind`.
constexpr Maker kMakers[] = {
    make<NRDMButton>,       // PushButton
    make<NRDMToggleButton>, // CheckBox
    make<NRDMToggleButton>, // RadioButton
    make<NRDMLabel>,        // Label
    make<NRDMLabel>,        // MultiLineLabel
    make<NRDMEditText>,     // Edit
    make<NRDMEditText>,     // EditPopup
    make<NRDMEditText>,     // SpinEdit
    make<NRDMEditText>,     // SpinEditPopup
    make<NRDMEditText>,     // EditSlider
    make<NRDMEditText>,     // SpinEditSlider
    make<NRDMFrame>,        // Frame
    make<NRDMSlider>,       // Slider
    make<NRDMListView>,     // ListBox
    make<NRDMPopupList>,    // PopupList
    make<NRDMPopupMenu>,    // PopupMenu
    make<NRDMItemGroup>,    // Group
    make<NRDMUserType>,     // User
};
static_assert(std::size(kMakers) == static_cast<std::size_t>(ControlKind::User) + 1);

} // namespace

std::unique_ptr<NativeItem> makeNativeItem(NativeDialog& dialog, const ItemView& view,
                                           ItemEvents& events) {
    return kMakers[static_cast<std::size_t>(view.kind)](dialog, view, events);
}

} // namespace NRDM
