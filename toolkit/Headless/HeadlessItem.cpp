#include "toolkit/Headless/HeadlessItem.h"

#include "toolkit/Headless/HeadlessDialog.h"
#include "toolkit/ImplCommon/ItemTypes.h"
#include "toolkit/ImplCommon/Text.h"

#include <algorithm>
#include <cmath>

namespace NRDM {
namespace {

using facetta::door::Key;
using facetta::door::Modifiers;
using facetta::door::SeenItem;

bool continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

bool isWithin(const Bounds& bounds, Extent area) {
    const int twiceX = bounds.left + bounds.right;
    const int twiceY = bounds.top + bounds.bottom;
    return twiceX >= 0 && twiceY >= 0 && twiceX < 2 * area.width && twiceY < 2 * area.height;
}

bool isButton(ControlKind kind) { return kind <= ControlKind::RadioButton; }

bool hasArrows(ControlKind kind) {
    return kind == ControlKind::SpinEdit || kind == ControlKind::SpinEditPopup ||
           kind == ControlKind::SpinEditSlider;
}

} // namespace

HeadlessItem::HeadlessItem(HeadlessDialog& dialog, const ItemView& view, ItemEvents& events)
    : dialog_(dialog), view_(view), events_(events) {
    dialog.add(*this);
}

HeadlessItem::~HeadlessItem() {
    dialog_.keyboard().forget(*this);
    dialog_.remove(*this);
}

void HeadlessItem::focus() { dialog_.keyboard().moveTo(this); }

SeenItem HeadlessItem::seen() const {
    SeenItem seen;
    seen.id = view_.id;
    seen.isField = isField(view_.kind);
    const bool listed = view_.kind == ControlKind::PopupList && view_.known && view_.chosen >= 0;
    seen.text = seen.isField ? view_.typed.value_or(view_.text)
                : listed     ? view_.entries[static_cast<std::size_t>(view_.chosen)].text
                             : withoutMarks(view_.text);
    seen.tip = view_.visible ? view_.tip : std::string();
    seen.enabled = view_.enabled && dialog_.view().enabled;
    seen.shown = view_.visible && isWithin(view_.bounds, dialog_.view().size);
    seen.focused = dialog_.keyboard().owner() == this;
    const bool isBox =
        view_.kind == ControlKind::CheckBox || view_.kind == ControlKind::RadioButton;
    seen.on = isBox && view_.known && view_.value != 0;
    if (view_.kind == ControlKind::Slider) seen.position = view_.value;
    return seen;
}

void HeadlessItem::click() {
    const std::weak_ptr<const char> life = life_;
    if (isButton(view_.kind)) events_.pressed();
    if (life.expired()) return;
    if (takesFocus(view_.kind)) dialog_.keyboard().moveTo(this);
    // A field that keeps the keyboard, because what is typed was refused, keeps the click as well.
    const bool isRefused =
        !life.expired() && takesFocus(view_.kind) && dialog_.keyboard().owner() != this;
    if (!life.expired() && !isRefused && !isField(view_.kind)) events_.clicked();
}

bool HeadlessItem::type(std::string_view text) {
    if (!isField(view_.kind)) return false;
    if (text.empty()) events_.typed({});
    const std::weak_ptr<const char> life = life_;
    int characters = 0;
    for (std::size_t end = 1; end <= text.size(); ++end) {
        if (end < text.size() && continues(text[end])) continue;
        if (life.expired() || ++characters > view_.maximumLength) break;
        events_.typed(std::string(text.substr(0, end)));
    }
    return true;
}

bool HeadlessItem::press(Key key, Modifiers modifiers) {
    if (isField(view_.kind)) return pressInField(key, modifiers);
    switch (view_.kind) {
    case ControlKind::PushButton:
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
        if (key != Key::Space) return false;
        events_.clicked();
        return true;
    case ControlKind::Slider:
        return pressInSlider(key);
    case ControlKind::PopupList:
    case ControlKind::ListBox:
        return pressInList(key);
    default:
        return false;
    }
}

/// True when the key's way ends here: one that should take over what is refused goes no further.
bool HeadlessItem::pressInField(Key key, Modifiers modifiers) {
    const std::weak_ptr<const char> life = life_;
    switch (key) {
    case Key::Up:
    case Key::Down:
        events_.step(key == Key::Up ? 1 : -1, modifiers.shift, Phase::Complete);
        return true;
    case Key::PageUp:
    case Key::PageDown:
        events_.step(key == Key::PageUp ? 1 : -1, true, Phase::Complete);
        return true;
    case Key::Enter:
    case Key::Tab:
        return view_.typed && (!events_.commit() || life.expired());
    case Key::Escape:
        if (view_.typed) events_.revert();
        return false;
    default: // the caret's
        return true;
    }
}

bool HeadlessItem::pressInSlider(Key key) {
    struct Row {
        Key key;
        double small;
        double large;
    };
    static constexpr Row kRows[] = {{Key::Left, -1, 0},        {Key::Down, -1, 0},
                                    {Key::Right, 1, 0},        {Key::Up, 1, 0},
                                    {Key::PageDown, 0, -1},    {Key::PageUp, 0, 1},
                                    {Key::Home, -HUGE_VAL, 0}, {Key::End, HUGE_VAL, 0}};
    const auto* const row = std::ranges::find(kRows, key, &Row::key);
    if (row == std::end(kRows)) return false;
    double step = 0;
    if (row->small != 0) step += row->small * view_.smallIncrement;
    if (row->large != 0) step += row->large * view_.largeIncrement;
    const double value =
        std::clamp(view_.value + step, view_.lowest, std::max(view_.lowest, view_.highest));
    if (value != view_.value) events_.slide(value, Phase::Complete);
    return true;
}

bool HeadlessItem::pressInList(Key key) {
    const bool back = key == Key::Up || key == Key::Left;
    if (!back && key != Key::Down && key != Key::Right) return false;
    for (int entry = view_.chosen + (back ? -1 : 1);
         entry >= 0 && entry < static_cast<int>(view_.entries.size()); entry += back ? -1 : 1) {
        const EntryView& next = view_.entries[static_cast<std::size_t>(entry)];
        if (!next.enabled || next.separator) continue;
        events_.choose(entry);
        break;
    }
    return true;
}

bool HeadlessItem::spin(bool up, bool large) {
    if (!hasArrows(view_.kind) || !view_.known) return false;
    const std::weak_ptr<const char> life = life_;
    dialog_.keyboard().moveTo(this);
    if (life.expired()) return true;
    events_.step(up ? 1 : -1, large, Phase::InProgress);
    if (!life.expired()) events_.step(0, false, Phase::Complete);
    return true;
}

SliderScale HeadlessItem::sliderScale() const {
    return {view_.lowest, view_.highest, kThumbRadius,
            view_.bounds.right - view_.bounds.left - kThumbRadius};
}

void HeadlessItem::slideTo(double value, Phase phase) {
    if (value != view_.value || phase == Phase::Complete) events_.slide(value, phase);
}

bool HeadlessItem::slide(double value, int moves) {
    if (view_.kind != ControlKind::Slider) return false;
    const std::weak_ptr<const char> life = life_;
    dialog_.keyboard().moveTo(this);
    if (life.expired()) return true;
    const SliderScale bar = sliderScale();
    const int from = bar.pixelOf(view_.value);
    const int to = bar.pixelOf(value);
    for (int move = 1; move <= moves && !life.expired(); ++move)
        slideTo(bar.valueAt(from + (to - from) * move / moves), Phase::InProgress);
    if (!life.expired()) slideTo(bar.valueAt(to), Phase::Complete);
    if (!life.expired()) dialog_.returnKeyboard();
    return true;
}

bool HeadlessItem::choose(std::string_view text) {
    const auto found = std::ranges::find(view_.entries, text, &EntryView::text);
    if (found == view_.entries.end() || !found->enabled || found->separator) return false;
    const auto entry = static_cast<int>(found - view_.entries.begin());
    const std::weak_ptr<const char> life = life_;
    dialog_.keyboard().moveTo(this);
    if (life.expired()) return true;
    if (isField(view_.kind) && view_.typed && !events_.commit()) return true;
    if (life.expired()) return true;
    if (isField(view_.kind) || entry != view_.chosen) events_.choose(entry);
    return true;
}

bool HeadlessItem::loseKeyboard() {
    // A panel has its last good value back, and the user goes on to something else.
    const std::weak_ptr<const char> life = life_;
    const bool accepted = !view_.typed || events_.commit();
    if (life.expired()) return true;
    if (!accepted && !dialog_.inPanel()) return false;
    events_.activated(false);
    return true;
}

} // namespace NRDM
