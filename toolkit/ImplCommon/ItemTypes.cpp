#include "toolkit/ImplCommon/ItemTypes.h"

#include "toolkit/suites/ADMTypes.h"

#include <algorithm>

namespace NRDM {
namespace {

constexpr ItemType kTypes[] = {
    {kADMTextPushButtonType, ControlKind::PushButton},
    {kADMPicturePushButtonType, ControlKind::PushButton, true},
    {kADMTextCheckBoxType, ControlKind::CheckBox},
    {kADMPictureCheckBoxType, ControlKind::CheckBox, true},
    {kADMTextRadioButtonType, ControlKind::RadioButton},
    {kADMPictureRadioButtonType, ControlKind::RadioButton, true},
    {kADMTextStaticType, ControlKind::Label},
    {kADMTextStaticMultiLineType, ControlKind::MultiLineLabel},
    {kADMPictureStaticType, ControlKind::Label, true},
    {kADMTextEditType, ControlKind::Edit},
    {kADMTextEditPopupType, ControlKind::EditPopup},
    {kADMTextEditScrollingPopupType, ControlKind::EditPopup},
    {kADMSpinEditType, ControlKind::SpinEdit},
    {kADMSpinEditPopupType, ControlKind::SpinEditPopup},
    {kADMSpinEditScrollingPopupType, ControlKind::SpinEditPopup},
    {kADMPopupSpinEditControlType, ControlKind::SpinEditSlider},
    {kADMPopupControlType, ControlKind::EditSlider},
    {kADMFrameType, ControlKind::Frame},
    {kADMSliderType, ControlKind::Slider},
    {kADMListBoxType, ControlKind::ListBox},
    {kADMPopupListType, ControlKind::PopupList},
    {kADMScrollingPopupListType, ControlKind::PopupList},
    {kADMPopupMenuType, ControlKind::PopupMenu},
    {kADMItemGroupType, ControlKind::Group},
    {kADMUserType, ControlKind::User},
};

} // namespace

const ItemType* findItemType(std::string_view name) {
    const auto* const found = std::ranges::find(
        kTypes, name, [](const ItemType& type) { return std::string_view(type.name); });
    return found != std::end(kTypes) ? found : nullptr;
}

} // namespace NRDM
