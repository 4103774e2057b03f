/// What users do to items. Each event keeps item and dialog: what is notified may destroy them.

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/CoADMItem.h"
#include "toolkit/ImplCommon/Dialogs.h"

#include <algorithm>
#include <utility>

namespace NRDM {

struct CoADMItem::Keeper {
    explicit Keeper(CoADMItem& item)
        : self(item.shared_from_this()), dialog(item.dialog_.shared_from_this()) {}
    std::shared_ptr<CoADMItem> self;
    std::shared_ptr<CoADMDialog> dialog;
};

bool CoADMItem::isRefused() const {
    return closed_ || !view_.enabled || !view_.visible || !dialog_.isEnabled();
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
    typed_ = text;
    notify(kADMIntermediateChangedNotifier);
}

bool CoADMItem::commit() {
    const Keeper keeper(*this);
    if (closed_ || !typed_) return true;
    const std::string text = *std::exchange(typed_, std::nullopt);
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
    const auto number = dialog_.dialogs().numberIn(*this, text);
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
    if (!typed_) return std::nullopt;
    const auto number = dialog_.dialogs().numberIn(*this, *typed_);
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
    typed_.reset();
    changeTo(steps == 0 ? value_ : within(rounded(to, form_)), phase);
}

void CoADMItem::slide(double value, Phase phase) {
    const Keeper keeper(*this);
    if (isRefused()) return;
    typed_.reset();
    changeTo(within(rounded(value, form_)), phase);
}

void CoADMItem::choose(int position) {
    const Keeper keeper(*this);
    INRDMEntry* const entry = list_ ? list_->at(position) : nullptr;
    if (isRefused() || entry == nullptr || !entry->isChoice()) return;
    if (isField(kind())) { // the entry's text counts, as if typed
        typed_ = entry->text();
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
