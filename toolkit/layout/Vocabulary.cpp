#include "toolkit/layout/Vocabulary.h"

#include "toolkit/layout/Limits.h"

#include <algorithm>
#include <limits>

namespace NRDM::layout {
namespace {

// clang-format off
constexpr KindRecord kKinds[] = {
    {"dialog", Kind::Dialog, Role::Dialog, Stringing::Column, TakesEntries::No, {}, {}},
    {"row", Kind::Row, Role::Container, Stringing::Row, TakesEntries::No, {}, {}},
    {"column", Kind::Column, Role::Container, Stringing::Column, TakesEntries::No, {}, {}},
    {"group", Kind::Group, Role::Container, Stringing::Column, TakesEntries::No, "ADM Frame Type", {}},
    {"cluster", Kind::Cluster, Role::Container, Stringing::Column, TakesEntries::No, "ADM Frame Type", {}},
    {"popup_cluster", Kind::PopupCluster, Role::Container, Stringing::Column, TakesEntries::Yes, {}, {}},
    {"button", Kind::Button, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Text Push Button Type", "ADM Picture Push Button Type"},
    {"static_text", Kind::StaticText, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Text Static Type", {}},
    {"static_image", Kind::StaticImage, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Picture Static Type", {}},
    {"slider", Kind::Slider, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Slider Type", {}},
    {"checkbox", Kind::Checkbox, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Text Check Box Type", "ADM Picture Check Box Button Type"},
    {"radio_button", Kind::RadioButton, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Text Radio Button Type", "ADM Picture Radio Button Type"},
    {"edit_text", Kind::EditText, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Text Edit Type", {}},
    {"edit_slider", Kind::EditSlider, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Popup Control Type", {}},
    {"edit_popup", Kind::EditPopup, Role::Item, Stringing::Leaf, TakesEntries::Yes, "ADM Text Edit Popup Type", {}},
    {"popup", Kind::Popup, Role::Item, Stringing::Leaf, TakesEntries::Yes, "ADM Popup List Type", {}},
    {"spin_edit", Kind::SpinEdit, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Spin Edit Type", {}},
    {"spin_edit_slider", Kind::SpinEditSlider, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM Popup Spin Edit Control Type", {}},
    {"spin_edit_popup", Kind::SpinEditPopup, Role::Item, Stringing::Leaf, TakesEntries::Yes, "ADM Spin Edit Popup Type", {}},
    {"popup_menu", Kind::PopupMenu, Role::Item, Stringing::Leaf, TakesEntries::Yes, "ADM Popup Menu Type", {}},
    {"listbox", Kind::Listbox, Role::Item, Stringing::Leaf, TakesEntries::Yes, "ADM List Box Type", {}},
    {"user_type", Kind::UserType, Role::Item, Stringing::Leaf, TakesEntries::No, "ADM User Type", {}},
    {"entry", Kind::Entry, Role::Entry, Stringing::Leaf, TakesEntries::No, {}, {}},
};

constexpr int kAnyLow = std::numeric_limits<int>::min();
constexpr int kAnyHigh = std::numeric_limits<int>::max();

constexpr KeyRecord kKeys[] = {
    {"name", Key::Name, ValueType::Text},
    {"horizontal", Key::Horizontal, ValueType::Integer, 0, 6},
    {"child_horizontal", Key::ChildHorizontal, ValueType::Integer, 0, 6},
    {"vertical", Key::Vertical, ValueType::Integer, 0, 6},
    {"child_vertical", Key::ChildVertical, ValueType::Integer, 0, 6},
    {"placement", Key::Placement, ValueType::Integer, 0, 3},
    {"spacing", Key::Spacing, ValueType::Lengths, kMinLength, kMaxLength},
    {"indent", Key::Indent, ValueType::Integer, kMinLength, kMaxLength},
    {"margin", Key::Margin, ValueType::FourLengths, kMinLength, kMaxLength},
    {"margin_left", Key::MarginLeft, ValueType::Integer, kMinLength, kMaxLength},
    {"margin_right", Key::MarginRight, ValueType::Integer, kMinLength, kMaxLength},
    {"margin_top", Key::MarginTop, ValueType::Integer, kMinLength, kMaxLength},
    {"margin_bottom", Key::MarginBottom, ValueType::Integer, kMinLength, kMaxLength},
    {"frame", Key::Frame, ValueType::FourLengths, kMinLength, kMaxLength},
    {"frame_left", Key::FrameLeft, ValueType::Integer, kMinLength, kMaxLength},
    {"frame_right", Key::FrameRight, ValueType::Integer, kMinLength, kMaxLength},
    {"frame_top", Key::FrameTop, ValueType::Integer, kMinLength, kMaxLength},
    {"frame_bottom", Key::FrameBottom, ValueType::Integer, kMinLength, kMaxLength},
    {"outset", Key::Outset, ValueType::FourLengths, kMinLength, kMaxLength},
    {"outset_left", Key::OutsetLeft, ValueType::Integer, kMinLength, kMaxLength},
    {"outset_right", Key::OutsetRight, ValueType::Integer, kMinLength, kMaxLength},
    {"outset_top", Key::OutsetTop, ValueType::Integer, kMinLength, kMaxLength},
    {"outset_bottom", Key::OutsetBottom, ValueType::Integer, kMinLength, kMaxLength},
    {"width", Key::Width, ValueType::Integer, 0, kMaxLength},
    {"height", Key::Height, ValueType::Integer, 0, kMaxLength},
    {"baseline", Key::Baseline, ValueType::Integer, kMinLength, kMaxLength},
    {"vsnap", Key::Vsnap, ValueType::Lengths, kMinLength, kMaxLength},
    {"hsnap", Key::Hsnap, ValueType::Lengths, kMinLength, kMaxLength},
    {"suppress_guide_propagation", Key::SuppressGuidePropagation, ValueType::Truth},
    {"font", Key::Font, ValueType::Integer, kAnyLow, kAnyHigh},
    {"style", Key::Style, ValueType::Integer, kAnyLow, kAnyHigh},
    {"menu_id", Key::MenuId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"item_id", Key::ItemId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"popup_item_id", Key::PopupItemId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"popup_item_width", Key::PopupItemWidth, ValueType::Integer, 0, kMaxLength},
    {"entry_id", Key::EntryId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"min_value", Key::MinValue, ValueType::Number},
    {"max_value", Key::MaxValue, ValueType::Number},
    {"value", Key::ItemValue, ValueType::Number},
    {"large_increment", Key::LargeIncrement, ValueType::Number},
    {"small_increment", Key::SmallIncrement, ValueType::Number},
    {"units", Key::Units, ValueType::Integer, kAnyLow, kAnyHigh},
    {"precision", Key::Precision, ValueType::Integer, 0, 9},
    {"enabled", Key::Enabled, ValueType::Truth},
    {"image_id", Key::ImageId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"selected_image_id", Key::SelectedImageId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"disabled_image_id", Key::DisabledImageId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"rollover_image_id", Key::RolloverImageId, ValueType::Integer, kAnyLow, kAnyHigh},
    {"separator", Key::Separator, ValueType::Truth},
    {"visible", Key::Visible, ValueType::Truth},
    {"justify", Key::Justify, ValueType::Integer, 0, 2},
};

constexpr ConstantRecord kConstants[] = {
    {"align_left", 0.0},
    {"align_top", 0.0},
    {"align_right", 1.0},
    {"align_bottom", 1.0},
    {"align_center", 2.0},
    {"align_proportional", 3.0},
    {"align_fill", 4.0},
    {"align_left_fill", 4.0},
    {"align_top_fill", 4.0},
    {"align_right_fill", 5.0},
    {"align_bottom_fill", 5.0},
    {"align_default", 6.0},
    {"place_leaf", 0.0},
    {"place_column", 1.0},
    {"place_row", 2.0},
    {"place_overlay", 3.0},
    {"gLargeSpace", 10.0},
    {"gSmallSpace", 4.0},
    {"gADMDialogFont", 1.0},
    {"gADMPaletteFont", 2.0},
    {"gADMBoldDialogFont", 5.0},
    {"gADMBoldPaletteFont", 6.0},
    {"gADMNoUnits", 0.0},
    {"gADMPointUnits", 1.0},
    {"gADMInchUnits", 2.0},
    {"gADMMillimeterUnits", 3.0},
    {"gADMCentimeterUnits", 4.0},
    {"gADMPicaUnits", 5.0},
    {"gADMPercentUnits", 6.0},
    {"gADMDegreeUnits", 7.0},
    {"gADMQUnits", 8.0},
    {"gADMLeftJustify", 0.0},
    {"gADMCenterJustify", 1.0},
    {"gADMRightJustify", 2.0},
    {"gNumericStyle", 2.0},
    {"yes", true},
    {"no", false},
};
// clang-format on

constexpr std::string_view kReserved[] = {"layout", "view",   "constant", "interface",
                                          "logic",  "unlink", "when",     "relate",
                                          "empty",  "true",   "false"};

// Records are found by their enumerator: the tables stand in the order of the enumerations.
static_assert([] {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (kKinds[i].kind != static_cast<Kind>(i)) return false;
    for (std::size_t i = 0; i < std::size(kKeys); ++i)
        if (kKeys[i].key != static_cast<Key>(i)) return false;
    return true;
}());

template <class Record>
const Record* findNamed(std::span<const Record> table, std::string_view name) {
    const auto found = std::ranges::find(table, name, &Record::name);
    return found == table.end() ? nullptr : &*found;
}

} // namespace

std::span<const KindRecord> kinds() { return kKinds; }
std::span<const KeyRecord> keys() { return kKeys; }
std::span<const ConstantRecord> constants() { return kConstants; }

const KindRecord& recordOf(Kind kind) { return kKinds[static_cast<std::size_t>(kind)]; }
const KeyRecord& recordOf(Key key) { return kKeys[static_cast<std::size_t>(key)]; }

const KindRecord* findKind(std::string_view name) { return findNamed(kinds(), name); }
const KeyRecord* findKey(std::string_view name) { return findNamed(keys(), name); }
const ConstantRecord* findConstant(std::string_view name) { return findNamed(constants(), name); }

bool isReserved(std::string_view word) {
    return std::ranges::find(kReserved, word) != std::end(kReserved);
}

} // namespace NRDM::layout
