/// What users do to dialogs: keys that belong to no item, sizes, timers.

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Text.h"

#include <algorithm>

namespace NRDM {

bool CoADMDialog::canFocus(const CoADMItem& item) const {
    return takesFocus(item.kind()) && item.view().visible && item.view().enabled && isEnabled();
}

/// A group of radio buttons is one stop: the button that is on, or the first.
bool CoADMDialog::isTabStop(const CoADMItem& item) const {
    if (!canFocus(item)) return false;
    if (item.kind() != ControlKind::RadioButton) return true;
    const auto group = groupOf(item);
    const auto on = std::ranges::find_if(group, [](const auto* one) { return one->isOn(); });
    return &item == (on != group.end() ? *on : group.front());
}

bool CoADMDialog::commitTyped() {
    const auto items = items_; // handlers may change the dialog's
    return std::ranges::all_of(items, [](const auto& item) { return item->commit(); });
}

void CoADMDialog::dropTyped() {
    for (const auto& item : items_)
        item->dropTyped();
}

bool CoADMDialog::finishTyping(const CoADMItem& item) {
    if (isRunning() && &item == pushButton(cancelId_)) {
        dropTyped();
        return true;
    }
    return commitTyped();
}

void CoADMDialog::focusFirst() {
    const auto field = std::ranges::find_if(
        items_, [&](const auto& item) { return isField(item->kind()) && canFocus(*item); });
    if (field != items_.end()) return (*field)->activate(true);
    if (CoADMItem* const button = pushButton(defaultId_); button != nullptr && canFocus(*button))
        return button->activate(true);
    moveFocus(1);
}

bool CoADMDialog::moveFocus(int direction) {
    if (!commitTyped()) return true;
    const int count = static_cast<int>(items_.size());
    const auto found =
        std::ranges::find_if(items_, [&](const auto& item) { return item.get() == active_; });
    const int start = found != items_.end() ? static_cast<int>(found - items_.begin())
                                            : (direction > 0 ? -1 : count);
    for (int i = 1; i <= count; ++i) {
        const int place = ((start + direction * i) % count + count) % count;
        CoADMItem& next = *items_[static_cast<std::size_t>(place)];
        if (!isTabStop(next)) continue;
        next.activate(true);
        return true;
    }
    return false;
}

bool CoADMDialog::moveInGroup(int direction) {
    if (active_ == nullptr || active_->kind() != ControlKind::RadioButton) return false;
    auto group = groupOf(*active_);
    std::erase_if(group, [&](const auto* one) { return one != active_ && !canFocus(*one); });
    const auto place = std::ranges::find(group, active_) - group.begin();
    const auto count = std::ssize(group);
    CoADMItem& next = *group[static_cast<std::size_t>((place + direction + count) % count)];
    next.activate(true);
    if (!next.isOn()) next.clicked();
    return true;
}

bool CoADMDialog::enter() {
    if (!commitTyped()) return true;
    if (active_ != nullptr && active_->kind() == ControlKind::PushButton) {
        active_->clicked();
        return true;
    }
    CoADMItem* const button = isModal() ? pushButton(defaultId_) : nullptr;
    if (button != nullptr) button->clicked();
    const bool wasActive = active_ != nullptr;
    returnKeyboard();
    return button != nullptr || wasActive;
}

bool CoADMDialog::escape() {
    dropTyped();
    if (isModal()) closeRequested();
    const bool wasActive = active_ != nullptr;
    returnKeyboard();
    return isModal() || wasActive;
}

void CoADMDialog::returnKeyboard() {
    if (view_.kind == DialogKind::Panel && peer() != nullptr) peer()->returnKeyboard();
}

bool CoADMDialog::access(char32_t letter) {
    if (!isModal() || letter == 0) return false;
    for (const auto& item : items_) {
        const ItemView& view = item->view();
        if (isField(view.kind) || view.hasPicture || !view.visible || !view.enabled) continue;
        if (accessKeyOf(view.text) != letter) continue;
        const auto kept = item;
        kept->activate(true);
        kept->clicked();
        return true;
    }
    return false;
}

bool CoADMDialog::key(DialogKey key, char32_t letter) {
    const auto self = shared_from_this();
    noticeInput(kADMKeyStrokeAction);
    if (closed_ || !isEnabled()) return false;
    switch (key) {
    case DialogKey::Tab:
        return moveFocus(1);
    case DialogKey::BackTab:
        return moveFocus(-1);
    case DialogKey::Enter:
        return enter();
    case DialogKey::Escape:
        return escape();
    case DialogKey::Previous:
        return moveInGroup(-1);
    case DialogKey::Next:
        return moveInGroup(1);
    case DialogKey::Access:
        return access(letter);
    }
    return false;
}

void CoADMDialog::activateNeighbour(const CoADMItem& label) {
    if ((label.view().style & kADMNoNeighbourStyle) != 0) return;
    for (const int distance : {1, -1}) {
        CoADMItem* const field = neighbour(label, distance);
        if (field == nullptr || !isField(field->kind()) || !canFocus(*field)) continue;
        return field->activate(true);
    }
}

void CoADMDialog::closeRequested() {
    const auto self = shared_from_this();
    if (!isRunning()) return show(false);
    if (CoADMItem* const button = pushButton(cancelId_))
        button->clicked();
    else
        end(cancelId_, /*cancelling*/ true);
}

void CoADMDialog::resized(Extent size) {
    if (size == view_.size) return; // our own change, coming back
    view_.size = size;
    changed();
    notify(kADMBoundsChangedNotifier);
}

void CoADMDialog::draw(CoADMDrawer& drawer) {
    const auto self = shared_from_this();
    if (!closed_ && procedures.draw != nullptr) procedures.draw(this, &drawer);
}

void CoADMDialog::timerFired(int number) {
    const auto self = shared_from_this();
    const auto timer = [&] {
        const auto found =
            std::ranges::find(timers_, number, [](const auto& one) { return one->number; });
        return found != timers_.end() ? found->get() : nullptr;
    };
    CoADMTimer* const due = timer();
    if (due == nullptr) return;
    const bool again = due->fired(this, due) != 0;
    if (again || timer() == nullptr) return; // it may have been aborted meanwhile
    peer()->stopTimer(number);
    std::erase_if(timers_, [&](const auto& one) { return one->number == number; });
}

void CoADMDialog::noticeInput(ADMAction action) {
    std::vector<CoADMTimer*> cancelled;
    for (const auto& timer : timers_)
        if ((timer->abortMask & maskOf(action)) != 0) cancelled.push_back(timer.get());
    for (CoADMTimer* const timer : cancelled)
        if (std::ranges::find(timers_, timer, &std::unique_ptr<CoADMTimer>::get) != timers_.end())
            abortTimer(*timer, action);
}

bool CoADMDialog::track(const TrackInput& input) {
    const auto self = shared_from_this();
    noticeInput(input.action);
    if (closed_ || !isEnabled() || procedures.track == nullptr ||
        (mask & maskOf(input.action)) == 0)
        return false;
    CoADMTracker tracker(input);
    return procedures.track(this, &tracker) != 0;
}

} // namespace NRDM
