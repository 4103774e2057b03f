#include "toolkit/ImplCommon/CoADMDialog.h"

#include "host/Codes.h"
#include "toolkit/ImplCommon/Exceptions.h"
#include "toolkit/ImplCommon/Text.h"

#include <algorithm>
#include <utility>

namespace NRDM {
namespace {

/// An option of creation: items begin hidden.
constexpr int kItemsHiddenOption = 0x10;

/// Made-up ids begin here, out of the way of those that clients give later.
constexpr int kFirstMadeUpId = 30000;

} // namespace

CoADMDialog::CoADMDialog(Dialogs& dialogs, const DialogRequest& request)
    : BaseDialog(dialogs, request), options_(request.options) {}

void CoADMDialog::open() {
    if (view_.kind == DialogKind::Panel) {
        menuItem_ = std::make_shared<CoADMItem>(*this, kADMMenuItemID,
                                                *findItemType(kADMPopupMenuType), Bounds{});
        panel_ = std::make_unique<HostPanel>(*this);
    }
    openWindow();
}

void CoADMDialog::openWindow() {
    view_.parent = panel_ ? panel_->window() : dialogs().ownerWindow();
    view_.keyboardOwner = panel_ ? dialogs().hostWindow() : nullptr;
    attach(dialogs().peers().createDialog(view_, *this));
    for (const auto& item : items_)
        attachWindow(*item);
    for (const auto& timer : timers_)
        peer()->startTimer(timer->number, timer->milliseconds);
}

void CoADMDialog::closeWindow() {
    for (const auto& item : items_) {
        item->dropTyped();
        item->attach(nullptr);
    }
    active_ = nullptr;
    detach();
}

void CoADMDialog::followHost() {
    if (!panel_ || closed_) return;
    // A host that cannot tell just now has not moved it.
    const void* const window = panel_->window();
    const bool stands =
        peer() != nullptr && peer()->isAlive() && (window == nullptr || window == view_.parent);
    if (stands) {
        changed();
    } else {
        closeWindow();
        openWindow();
    }
    askHostForRoom();
}

void CoADMDialog::close() {
    if (std::exchange(closed_, true)) return;
    struct Ending { // whatever the client's procedures throw, the windows go
        CoADMDialog& dialog;
        ~Ending() {
            dialog.closeWindow();
            dialog.panel_.reset();
            dialog.panelMenu_.reset();
        }
    };
    const Ending ending{*this};
    if (procedures.destroy != nullptr) procedures.destroy(this);
    while (!timers_.empty())
        abortTimer(*timers_.back(), kADMNoEventAction);
    while (!items_.empty())
        destroyItem(*items_.back());
    if (menuItem_) menuItem_->close();
}

int CoADMDialog::run() {
    if (!isModal() || isRunning() || closed_) throw NRDMParameterException();
    const auto self = shared_from_this();
    focusFirst();
    return runLoop();
}

void CoADMDialog::attachWindow(CoADMItem& item) {
    if (peer() != nullptr) item.attach(peer()->createItem(item.view(), item));
}

CoADMItem* CoADMDialog::createItem(int id, std::string_view type, const Bounds& bounds,
                                   ADMItemInitProc init, ADMUserData itemData) {
    const ItemType* const known = findItemType(type);
    const bool isTaken = id != kADMUniqueItemID && this->item(id) != nullptr;
    if (known == nullptr || id < 0 || isTaken || closed_) throw NRDMParameterException();
    const auto item =
        std::make_shared<CoADMItem>(*this, id != kADMUniqueItemID ? id : freeId(), *known, bounds);
    item->userData = itemData;
    item->show((options_ & kItemsHiddenOption) == 0);
    items_.push_back(item);
    markDefault();
    attachWindow(*item);
    if (init == nullptr || init(item.get()) == kNoErr) return item.get();
    destroyItem(*item);
    return nullptr;
}

void CoADMDialog::destroyItem(CoADMItem& item) {
    const auto kept = item.shared_from_this();
    std::erase(items_, kept);
    kept->close();
}

int CoADMDialog::freeId() const {
    int largest = kFirstMadeUpId;
    for (const auto& item : items_)
        largest = std::max(largest, item->id());
    return largest + 1;
}

CoADMItem* CoADMDialog::item(int id) const {
    switch (id) {
    case kADMFirstItemID:
        return items_.empty() ? nullptr : items_.front().get();
    case kADMLastItemID:
        return items_.empty() ? nullptr : items_.back().get();
    case kADMDefaultItemID:
        return item(defaultId_);
    case kADMCancelItemID:
        return item(cancelId_);
    case kADMMenuItemID:
        return menuItem_.get();
    default:
        const auto found = std::ranges::find(items_, id, [](const auto& one) { return one->id(); });
        return found != items_.end() ? found->get() : nullptr;
    }
}

CoADMItem* CoADMDialog::neighbour(const CoADMItem& item, int distance) const {
    const auto found =
        std::ranges::find_if(items_, [&](const auto& one) { return one.get() == &item; });
    const auto place = found - items_.begin() + distance;
    if (found == items_.end() || place < 0 || place >= std::ssize(items_)) return nullptr;
    return items_[static_cast<std::size_t>(place)].get();
}

CoADMItem* CoADMDialog::pushButton(int id) const {
    CoADMItem* const button = item(id);
    return button != nullptr && button->kind() == ControlKind::PushButton ? button : nullptr;
}

/// Only modal dialogs have a default item: in a panel, Enter belongs to the field.
void CoADMDialog::markDefault() {
    const CoADMItem* const button = isModal() ? pushButton(defaultId_) : nullptr;
    for (const auto& one : items_)
        one->markDefault(button != nullptr && one.get() == button);
}

void CoADMDialog::setDefaultId(int id) {
    defaultId_ = id;
    markDefault();
}

bool CoADMDialog::end(int result, bool cancelling) {
    if (!isRunning()) return false;
    const auto self = shared_from_this();
    if (cancelling)
        dropTyped();
    else
        commitTyped();
    return endModal(result);
}

void CoADMDialog::notify(const char* type) {
    const auto self = shared_from_this();
    CoADMNotifier notifier(*this, nullptr, type);
    receive(notifier);
}

void CoADMDialog::receive(CoADMNotifier& notifier) {
    if (procedures.notify != nullptr)
        procedures.notify(this, &notifier);
    else
        handle(notifier);
}

void CoADMDialog::handle(CoADMNotifier& notifier) {
    if (std::exchange(notifier.handledByDialog, true)) return;
    const CoADMItem* const item = notifier.item();
    if (item == nullptr || notifier.type() != kADMUserChangedNotifier) return;
    if (item == pushButton(cancelId_))
        end(cancelId_, /*cancelling*/ true);
    else if (item == pushButton(defaultId_))
        end(defaultId_, /*cancelling*/ false);
}

CoADMTimer* CoADMDialog::startTimer(int milliseconds, ADMActionMask abortMask,
                                    ADMDialogTimerProc fired, ADMDialogTimerAbortProc aborted) {
    if (fired == nullptr || milliseconds < 0 || peer() == nullptr) throw NRDMParameterException();
    timers_.push_back(std::make_unique<CoADMTimer>(
        CoADMTimer{++lastTimer_, milliseconds, abortMask, fired, aborted}));
    peer()->startTimer(lastTimer_, milliseconds);
    return timers_.back().get();
}

void CoADMDialog::abortTimer(CoADMTimer& timer, ADMAction cause) {
    const auto found = std::ranges::find(timers_, &timer, &std::unique_ptr<CoADMTimer>::get);
    if (found == timers_.end()) throw NRDMParameterException();
    const std::unique_ptr<CoADMTimer> kept = std::move(*found);
    timers_.erase(found);
    if (peer() != nullptr) peer()->stopTimer(kept->number);
    if (kept->aborted != nullptr) kept->aborted(this, kept.get(), cause);
}

std::vector<CoADMItem*> CoADMDialog::groupOf(const CoADMItem& item) const {
    const auto radio = [&](int id) {
        CoADMItem* const other = this->item(id);
        return other != nullptr && other->kind() == ControlKind::RadioButton ? other : nullptr;
    };
    int first = item.id();
    while (first > 1 && radio(first - 1) != nullptr)
        --first;
    std::vector<CoADMItem*> group;
    for (int id = first; CoADMItem* const member = radio(id); ++id)
        group.push_back(member);
    return group;
}

void CoADMDialog::menuChanged() {
    if (!panel_ || !dialogs().flyoutMenus) return;
    if (!panelMenu_) {
        panelMenu_ = std::make_unique<NRDMPanelMenu>(*dialogs().flyoutMenus);
        panel_->setMenu(panelMenu_->reference());
    }
    panelMenu_->show(*menuItem_->list());
}

void CoADMDialog::panelStateChanged(int state) {
    if (std::exchange(knownState_, state) == state) return; // our own change, coming back
    notify(kADMCycleNotifier);
}

// What users do: keys that belong to no item, sizes, timers.

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
    if (isCancelling(item)) {
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
