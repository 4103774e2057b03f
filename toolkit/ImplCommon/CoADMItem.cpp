#include "toolkit/ImplCommon/CoADMItem.h"

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Exceptions.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace NRDM {
namespace {

/// Of a slider, until a client sets its own.
constexpr float kSliderLowest = 0;
constexpr float kSliderHighest = 100;

float requireNumber(float value) {
    if (std::isnan(value)) throw NRDMParameterException();
    return value;
}

std::vector<EntryView> viewOf(const INRDMList& list) {
    std::vector<EntryView> entries;
    for (int i = 0; i < list.count(); ++i) {
        const INRDMEntry& entry = *list.at(i);
        entries.push_back(
            {entry.text(), entry.isEnabled(), entry.isSeparator(), entry.isChecked()});
    }
    return entries;
}

} // namespace

CoADMItem::CoADMItem(CoADMDialog& dialog, int id, const ItemType& type, const Bounds& bounds)
    : plugin(dialog.plugin()), dialog_(dialog), id_(id), type_(type),
      numeric_(isNumberField(type.kind)) {
    view_.kind = type.kind;
    view_.id = id;
    view_.bounds = bounds;
    view_.hasPicture = type.hasPicture;
    if (hasList(type.kind)) list_ = std::make_unique<INRDMList>(*this);
    if (type.kind == ControlKind::Slider) {
        lowest_ = kSliderLowest;
        highest_ = kSliderHighest;
    }
    refreshValue();
}

void CoADMItem::changed(Aspect aspects) {
    if (peer_) peer_->changed(aspects);
}

void CoADMItem::setLook(int& member, int value) {
    if (member == value) return;
    member = value;
    changed(Aspect::Look);
}

void CoADMItem::setStyle(ADMItemStyle style) {
    setLook(view_.style, style);
    if (kind() == ControlKind::Edit && (style & kADMNumericEditStyle) != 0) makeNumeric();
}

void CoADMItem::setFont(ADMFont font) { setLook(view_.font, font); }

void CoADMItem::setJustify(ADMJustify justify) {
    if (justify < 0 || justify > 2) throw NRDMParameterException();
    setLook(view_.justify, justify);
}

void CoADMItem::setPictures(const PictureIds& pictures) {
    if (view_.pictures == pictures) return;
    view_.pictures = pictures;
    changed(Aspect::Look);
}

void CoADMItem::setCursor(int cursor) { setLook(view_.cursor, cursor); }

void CoADMItem::setTip(std::string tip) {
    tip_ = std::move(tip);
    enableTip(tipEnabled_);
}

void CoADMItem::enableTip(bool enabled) {
    tipEnabled_ = enabled;
    view_.tip = enabled && dialog_.dialogs().areTipsEnabled() ? tip_ : std::string();
    changed(Aspect::Tip);
}

void CoADMItem::setBounds(const Bounds& bounds) {
    if (view_.bounds == bounds) return;
    view_.bounds = bounds;
    changed(Aspect::Bounds);
    if (dialog_.isMade()) notify(kADMBoundsChangedNotifier);
}

void CoADMItem::markDefault(bool isDefault) {
    if (view_.isDefault == isDefault) return;
    view_.isDefault = isDefault;
    changed(Aspect::Look);
}

void CoADMItem::show(bool shown) {
    if (view_.visible == shown) return;
    view_.visible = shown;
    changed(Aspect::Visible);
}

void CoADMItem::enable(bool enabled) {
    if (view_.enabled == enabled) return;
    view_.enabled = enabled;
    changed(Aspect::Enabled);
}

void CoADMItem::activate(bool active) {
    if (!active) return dialog_.setActive(nullptr);
    if (!dialog_.canFocus(*this)) return;
    dialog_.setActive(this);
    if (peer_) peer_->focus();
}

bool CoADMItem::isActive() const { return dialog_.active() == this; }

void CoADMItem::setKnown(bool known) {
    if (view_.known == known) return;
    view_.known = known;
    dropTyped();
    refreshText();
    changed(Aspect::Look | Aspect::Text | Aspect::Value);
}

void CoADMItem::setText(std::string text) {
    const bool shown = view_.known && !view_.typed && view_.text == text;
    view_.typed.reset();
    if (numeric_) {
        // A text that is no number leaves the number as it is.
        if (const auto value = numberIn(text)) setValue(static_cast<float>(*value));
        return;
    }
    if (shown) return;
    view_.text = std::move(text);
    view_.known = true;
    changed(Aspect::Text);
}

const std::string& CoADMItem::text() const { return view_.typed ? *view_.typed : view_.text; }

void CoADMItem::setMaximumLength(int characters) {
    if (characters < 0) throw NRDMParameterException();
    setLook(view_.maximumLength, characters);
}

void CoADMItem::selectAll() {
    if (peer_) peer_->selectAll();
}

void CoADMItem::makeNumeric() {
    if (numeric_ || !isField(kind())) return;
    numeric_ = true;
    refreshText();
    changed(Aspect::Text);
}

void CoADMItem::setForm(const NumberForm& form) {
    if (!isUnit(form.units) || form.precision < kADMIntegerNumeric ||
        form.precision > kMostDecimals)
        throw NRDMParameterException();
    if (form_ == form) return;
    form_ = form;
    refreshValue();
    refreshText();
    changed(Aspect::Text | Aspect::Value);
}

void CoADMItem::setValue(float value) {
    value_ = within(requireNumber(value));
    const bool shown = view_.known && !view_.typed && view_.value == value_;
    const std::string shownText = view_.text;
    view_.known = true;
    view_.typed.reset();
    makeNumeric();
    if (kind() == ControlKind::RadioButton && isOn()) switchOthersOff();
    refreshValue();
    refreshText();
    // Panels set all their values whenever one may have changed: most need no painting.
    if (!shown || view_.text != shownText) changed(Aspect::Text | Aspect::Value);
}

float CoADMItem::within(double value) const {
    const double highest = std::max(lowest_, highest_);
    return static_cast<float>(std::clamp<double>(value, lowest_, highest));
}

void CoADMItem::setLowest(float lowest) {
    if (numeric_ && lowest_ == lowest) return;
    lowest_ = requireNumber(lowest);
    makeNumeric();
    refreshValue();
    changed(Aspect::Value);
}

void CoADMItem::setHighest(float highest) {
    if (numeric_ && highest_ == highest) return;
    highest_ = requireNumber(highest);
    makeNumeric();
    refreshValue();
    changed(Aspect::Value);
}

void CoADMItem::setSmallIncrement(float increment) {
    smallIncrement_ = requireNumber(increment);
    refreshValue();
}

void CoADMItem::setLargeIncrement(float increment) {
    largeIncrement_ = requireNumber(increment);
    refreshValue();
}

float CoADMItem::smallIncrement() const {
    return smallIncrement_.value_or(dialog_.dialogs().incrementsOf(form_.units).small);
}

float CoADMItem::largeIncrement() const {
    return largeIncrement_.value_or(dialog_.dialogs().incrementsOf(form_.units).large);
}

void CoADMItem::refreshValue() {
    view_.value = value_;
    view_.lowest = lowest_;
    view_.highest = highest_;
    view_.smallIncrement = smallIncrement();
    view_.largeIncrement = largeIncrement();
}

void CoADMItem::refreshText() {
    if (!numeric_) return;
    const auto& customs = dialog_.dialogs().customs;
    view_.text = view_.known ? textOf(value_, form_, customs) : std::string();
}

void CoADMItem::switchOthersOff() {
    for (CoADMItem* const other : dialog_.groupOf(*this)) {
        if (other == this || !other->isOn()) continue;
        other->value_ = 0;
        other->refreshValue();
        other->changed(Aspect::Value);
    }
}

void CoADMItem::listChanged() {
    const INRDMEntry* const chosen = list_->chosen();
    view_.entries = viewOf(*list_);
    view_.chosen = chosen != nullptr ? chosen->index() : -1;
    changed(Aspect::Entries);
    if (id_ == kADMMenuItemID) dialog_.menuChanged();
}

std::optional<double> CoADMItem::numberIn(const std::string& text) const {
    return NRDM::numberIn(text, form_, dialog_.dialogs().customs, value_);
}

void CoADMItem::dropTyped() {
    if (!view_.typed) return;
    view_.typed.reset();
    changed(Aspect::Text);
}

void CoADMItem::notify(const char* type) {
    const auto self = shared_from_this();
    const auto dialog = dialog_.shared_from_this();
    CoADMNotifier notifier(dialog_, this, type);
    if (procedures.notify != nullptr)
        procedures.notify(this, &notifier);
    else
        handle(notifier);
}

void CoADMItem::handle(CoADMNotifier& notifier) {
    if (std::exchange(notifier.handledByItem, true)) return;
    if (kind() == ControlKind::RadioButton && isOn() && notifier.type() == kADMUserChangedNotifier)
        switchOthersOff();
    dialog_.receive(notifier);
}

void CoADMItem::close() {
    if (std::exchange(closed_, true)) return;
    struct Ending { // whatever the client's procedure throws, the window goes
        CoADMItem& item;
        ~Ending() {
            if (item.isActive()) item.dialog_.setActive(nullptr);
            item.peer_.reset();
        }
    };
    const Ending ending{*this};
    if (procedures.destroy != nullptr) procedures.destroy(this);
}

// What users do. Each event keeps item and dialog: what is notified may destroy them.

struct CoADMItem::Keeper {
    explicit Keeper(CoADMItem& item)
        : self(item.shared_from_this()), dialog(item.dialog_.shared_from_this()) {}
    std::shared_ptr<CoADMItem> self;
    std::shared_ptr<CoADMDialog> dialog;
};

bool CoADMItem::isRefused() const {
    return closed_ || !view_.enabled || !view_.visible || !dialog_.isEnabled();
}

void CoADMItem::pressed() {
    // Focus that is lost takes over what is typed, which must not happen to what is cancelled.
    if (!isRefused() && dialog_.isCancelling(*this)) dialog_.dropTyped();
}

void CoADMItem::clicked() {
    const Keeper keeper(*this);
    if (isRefused() || !dialog_.finishTyping(*this) || isRefused()) return;
    switch (kind()) {
    case ControlKind::PushButton:
        notify(kADMUserChangedNotifier);
        break;
    case ControlKind::CheckBox:
        changeTo(isOn() && view_.known ? 0.0F : 1.0F, Phase::Complete);
        break;
    case ControlKind::RadioButton:
        if (!isOn() || !view_.known)
            changeTo(1, Phase::Complete);
        else if ((view_.style & kADMRadioAllMayBeOffStyle) != 0)
            changeTo(0, Phase::Complete);
        break;
    case ControlKind::Label:
    case ControlKind::MultiLineLabel:
        return dialog_.activateNeighbour(*this);
    default:
        return;
    }
    dialog_.returnKeyboard(); // or Space, meant for the document, would press it again
}

void CoADMItem::typed(const std::string& text) {
    const Keeper keeper(*this);
    if (isRefused() || text == this->text()) return;
    view_.typed = text;
    notify(kADMIntermediateChangedNotifier);
}

bool CoADMItem::commit() {
    const Keeper keeper(*this);
    if (closed_ || !view_.typed) return true;
    const std::string text = *std::exchange(view_.typed, std::nullopt);
    if (text == view_.text) return true; // typed and taken back
    if (kind() == ControlKind::EditPopup && view_.style == kADMListedValuesOnlyStyle &&
        list_->withText(text) == nullptr) {
        refuse();
        return false;
    }
    return numeric_ ? commitNumber(text) : commitText(text);
}

bool CoADMItem::commitText(const std::string& text) {
    view_.text = text;
    view_.known = true;
    changed(Aspect::Text);
    notify(kADMUserChangedNotifier);
    return true;
}

bool CoADMItem::commitNumber(const std::string& text) {
    const auto number = numberIn(text);
    // As it is shown: a limit itself can always be typed, however few of its decimals that takes.
    if (!number || *number < rounded(lowest_, form_) || *number > rounded(highest_, form_)) {
        refuse();
        return false;
    }
    changeTo(within(*number), Phase::Complete);
    changed(Aspect::Text); // the number as it is written, even when it is the same
    return true;
}

void CoADMItem::refuse() {
    changed(Aspect::Text);
    dialog_.dialogs().peers().beep();
}

void CoADMItem::revert() {
    const Keeper keeper(*this);
    dropTyped();
}

/// Takes over what the user has made of the value, and tells it when it is another one: during a
/// change than before, at its end than at its start.
void CoADMItem::changeTo(float value, Phase phase) {
    const float start = valueBefore_.value_or(value_);
    const bool moved = value != value_ || !view_.known;
    valueBefore_.reset();
    if (phase == Phase::InProgress) valueBefore_ = start;
    if (moved) {
        value_ = value;
        view_.known = true;
        refreshValue();
        refreshText();
        changed(Aspect::Text | Aspect::Value);
    }
    if (phase == Phase::InProgress && moved) notify(kADMIntermediateChangedNotifier);
    if (phase == Phase::Complete && (moved || value != start)) notify(kADMUserChangedNotifier);
}

std::optional<float> CoADMItem::typedValue() const {
    if (!view_.typed) return std::nullopt;
    const auto number = numberIn(*view_.typed);
    return number ? std::optional(static_cast<float>(*number)) : std::nullopt;
}

void CoADMItem::step(int steps, bool large, Phase phase) {
    const Keeper keeper(*this);
    if (isRefused() || !view_.known) return;
    if (kind() != ControlKind::Slider && !numeric_) return;
    if (steps == 0 && !valueBefore_) return; // the end of nothing
    const double from = typedValue().value_or(value_);
    const double to =
        from + steps * static_cast<double>(large ? largeIncrement() : smallIncrement());
    view_.typed.reset();
    changeTo(steps == 0 ? value_ : within(rounded(to, form_)), phase);
}

void CoADMItem::slide(double value, Phase phase) {
    const Keeper keeper(*this);
    if (isRefused()) return;
    view_.typed.reset();
    changeTo(within(rounded(value, form_)), phase);
}

void CoADMItem::choose(int position) {
    const Keeper keeper(*this);
    INRDMEntry* const entry = list_ ? list_->at(position) : nullptr;
    if (isRefused() || entry == nullptr || !entry->isChoice()) return;
    if (isField(kind())) { // the entry's text counts, as if typed
        view_.typed = entry->text();
        if (commit()) changed(Aspect::Text); // over what was typed before
        return;
    }
    list_->choose(entry);
    view_.known = true;
    notify(kADMUserChangedNotifier);
}

void CoADMItem::activated(bool active) {
    const Keeper keeper(*this);
    if (closed_) return;
    if (active) {
        dialog_.setActive(this);
    } else {
        commit();
        if (isActive()) dialog_.setActive(nullptr);
    }
}

void CoADMItem::draw(CoADMDrawer& drawer) {
    const Keeper keeper(*this);
    if (!closed_ && procedures.draw != nullptr) procedures.draw(this, &drawer);
}

bool CoADMItem::track(const TrackInput& input) {
    const Keeper keeper(*this);
    dialog_.noticeInput(input.action);
    if (isRefused() || procedures.track == nullptr || (mask & maskOf(input.action)) == 0)
        return false;
    CoADMTracker tracker(input);
    const bool used = procedures.track(this, &tracker) != 0;
    if (used && input.action == kADMButtonUpAction && !closed_) notify(kADMUserChangedNotifier);
    return used;
}

} // namespace NRDM
