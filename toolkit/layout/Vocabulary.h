#pragma once

/// The words of the layout language: kinds of elements, keys of attributes, named constants.

#include "toolkit/layout/Alignment.h"

#include <span>
#include <string_view>
#include <variant>

namespace NRDM::layout {

// clang-format off

/// In the order of the table of kinds.
enum class Kind {
    Dialog, Row, Column, Group, Cluster, PopupCluster,
    Button, StaticText, StaticImage, Slider, Checkbox, RadioButton,
    EditText, EditSlider, EditPopup, Popup, SpinEdit, SpinEditSlider, SpinEditPopup,
    PopupMenu, Listbox, UserType,
    Entry,
};

/// In the order of the table of keys.
enum class Key {
    Name, Horizontal, ChildHorizontal, Vertical, ChildVertical, Placement, Spacing, Indent,
    Margin, MarginLeft, MarginRight, MarginTop, MarginBottom,
    Frame, FrameLeft, FrameRight, FrameTop, FrameBottom,
    Outset, OutsetLeft, OutsetRight, OutsetTop, OutsetBottom,
    Width, Height, Baseline, Vsnap, Hsnap, SuppressGuidePropagation,
    Font, Style, MenuId, ItemId, PopupItemId, PopupItemWidth, EntryId,
    MinValue, MaxValue, ItemValue, LargeIncrement, SmallIncrement, Units, Precision, Enabled,
    ImageId, SelectedImageId, DisabledImageId, RolloverImageId, Separator, Visible, Justify,
};

// clang-format on

/// What an element of a kind is: the dialog itself, a container of elements, an item that stands
/// alone, or a choice of the list item around it.
enum class Role { Dialog, Container, Item, Entry };

enum class TakesEntries { No, Yes };

struct KindRecord {
    std::string_view name;
    Kind kind;
    Role role;
    Stringing stringing;       ///< unless `placement` says otherwise; an item is always a leaf
    TakesEntries takesEntries; ///< whether `entry` may stand inside
    std::string_view itemType; ///< ADM's name of the item's type; empty when there is no item
    std::string_view pictureItemType; ///< the type instead of it when there is an `image_id`
};

/// What a key takes. `Integer`: a number, cut toward zero. `Lengths`: one such number or a list of
/// them. `FourLengths`: one for all sides, or a list of four: top, left, bottom, right.
enum class ValueType { Text, Truth, Number, Integer, Lengths, FourLengths };

struct KeyRecord {
    std::string_view name;
    Key key;
    ValueType type;
    int lowest = 0; ///< of each whole number the key takes
    int highest = 0;
};

/// A named constant and what it stands for.
struct ConstantRecord {
    std::string_view name;
    std::variant<double, bool> value;
};

[[nodiscard]] std::span<const KindRecord> kinds();
[[nodiscard]] std::span<const KeyRecord> keys();
[[nodiscard]] std::span<const ConstantRecord> constants();

[[nodiscard]] const KindRecord& recordOf(Kind kind);
[[nodiscard]] const KeyRecord& recordOf(Key key);

/// The record of that name, or null. Case counts.
[[nodiscard]] const KindRecord* findKind(std::string_view name);
[[nodiscard]] const KeyRecord* findKey(std::string_view name);
[[nodiscard]] const ConstantRecord* findConstant(std::string_view name);

/// Whether `word` belongs to the grammar and so can name no kind, key, constant or layout.
[[nodiscard]] bool isReserved(std::string_view word);

} // namespace NRDM::layout
