#pragma once

#include "toolkit/ImplCommon/Peers.h"

#include <string_view>

namespace NRDM {

/// A type of item: its name in ADM, and what it is made of.
struct ItemType {
    const char* name;
    ControlKind kind;
    bool hasPicture = false;
};

/// The type of that name, or null when the toolkit has none.
[[nodiscard]] const ItemType* findItemType(std::string_view name);

/// Does the control have a field to type in?
[[nodiscard]] constexpr bool isField(ControlKind kind) {
    return kind >= ControlKind::Edit && kind <= ControlKind::SpinEditSlider;
}
/// Is what is typed there a number, whatever else is said of the item?
[[nodiscard]] constexpr bool isNumberField(ControlKind kind) {
    return kind >= ControlKind::SpinEdit && kind <= ControlKind::SpinEditSlider;
}
/// Does a list belong to it?
[[nodiscard]] constexpr bool hasList(ControlKind kind) {
    return kind == ControlKind::EditPopup || kind == ControlKind::SpinEditPopup ||
           kind == ControlKind::ListBox || kind == ControlKind::PopupList ||
           kind == ControlKind::PopupMenu;
}
/// Can it have the keyboard's focus?
[[nodiscard]] constexpr bool takesFocus(ControlKind kind) {
    return kind <= ControlKind::RadioButton || isField(kind) || kind == ControlKind::Slider ||
           hasList(kind);
}

} // namespace NRDM
