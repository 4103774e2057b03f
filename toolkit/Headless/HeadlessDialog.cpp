#include "toolkit/Headless/HeadlessDialog.h"

#include "toolkit/Headless/HeadlessItem.h"
#include "toolkit/Headless/Program.h"

#include <algorithm>
#include <utility>

namespace NRDM {

using facetta::door::Key;
using facetta::door::Modifiers;
using facetta::door::SeenItem;

HeadlessDialog::HeadlessDialog(const DialogView& view, DialogEvents& events,
                               std::shared_ptr<Keyboard> keyboard, void (*fail)() noexcept)
    : view_(view), events_(events), keyboard_(std::move(keyboard)), fail_(fail) {
    if (program() != nullptr) program()->opened(*this);
}

HeadlessDialog::~HeadlessDialog() { close(); }

std::unique_ptr<ItemPeer> HeadlessDialog::createItem(const ItemView& view, ItemEvents& events) {
    return std::make_unique<HeadlessItem>(*this, view, events);
}

void HeadlessDialog::close() noexcept {
    running_ = false;
    if (std::exchange(closed_, true)) return;
    if (program() != nullptr) program()->closed(*this);
}

template <typename Act> bool HeadlessDialog::serve(Act act) noexcept {
    const std::weak_ptr<const char> life = life_;
    void (*const fail)() noexcept = fail_;
    try {
        return act();
    } catch (...) {
        const bool inLoop = !life.expired() && running_;
        if (inLoop) {
            if (!failure_) failure_ = std::current_exception();
            running_ = false;
        } else if (fail != nullptr) {
            fail();
        }
    }
    return true; // it was done, and failed
}

void HeadlessDialog::returnKeyboard() {
    if (inPanel() && keyboardOwner() != nullptr) keyboard_->moveTo(nullptr);
}

void HeadlessDialog::runModal() {
    failure_ = nullptr;
    running_ = true;
    while (running_ && program() != nullptr && program()->nextEvent()) {
    }
    if (running_) clickCloseBox();
    running_ = false;
    if (!closed_ && keyboardOwner() != nullptr) keyboard_->moveTo(nullptr);
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

bool HeadlessDialog::endModal() { return std::exchange(running_, false); }

std::vector<SeenItem> HeadlessDialog::items() const {
    std::vector<SeenItem> seen;
    for (const HeadlessItem* const item : items_)
        seen.push_back(item->seen());
    return seen;
}

HeadlessItem* HeadlessDialog::item(int id) const {
    const auto found =
        std::ranges::find(items_, id, [](const auto* one) { return one->view().id; });
    return found != items_.end() ? *found : nullptr;
}

HeadlessItem* HeadlessDialog::keyboardOwner() const {
    HeadlessItem* const owner = keyboard_->owner();
    return owner != nullptr && &owner->dialog() == this ? owner : nullptr;
}

void HeadlessDialog::click(int id) {
    HeadlessItem* const clicked = item(id);
    if (clicked == nullptr) return;
    serve([=] {
        clicked->click();
        return true;
    });
}

bool HeadlessDialog::type(std::string_view text) {
    HeadlessItem* const field = keyboardOwner();
    return field != nullptr && serve([=] { return field->type(text); });
}

bool HeadlessDialog::press(Key key, Modifiers modifiers) {
    if (inPanel() && keyboardOwner() == nullptr) return false;
    serve([=, this] { return pressHere(key, modifiers); });
    return true;
}

bool HeadlessDialog::pressHere(Key key, Modifiers modifiers) {
    if (modifiers.alt) return events_.key(DialogKey::Access, static_cast<char32_t>(key));
    HeadlessItem* const owner = keyboardOwner();
    if (owner != nullptr && owner->press(key, modifiers)) return true;
    switch (key) {
    case Key::Tab:
        return events_.key(modifiers.shift ? DialogKey::BackTab : DialogKey::Tab, 0);
    case Key::Enter:
        return events_.key(DialogKey::Enter, 0);
    case Key::Escape:
        return events_.key(DialogKey::Escape, 0);
    case Key::Left:
    case Key::Up:
        return events_.key(DialogKey::Previous, 0);
    case Key::Right:
    case Key::Down:
        return events_.key(DialogKey::Next, 0);
    default:
        return false;
    }
}

bool HeadlessDialog::spin(int id, bool up, bool large) {
    HeadlessItem* const field = item(id);
    return field != nullptr && serve([=] { return field->spin(up, large); });
}

bool HeadlessDialog::slide(int id, double value, int moves) {
    HeadlessItem* const slider = item(id);
    return slider != nullptr && serve([=] { return slider->slide(value, moves); });
}

bool HeadlessDialog::choose(int id, std::string_view entry) {
    HeadlessItem* const list = item(id);
    return list != nullptr && serve([=] { return list->choose(entry); });
}

void HeadlessDialog::clickCloseBox() {
    serve([this] {
        events_.closeRequested();
        return true;
    });
}

void HeadlessDialog::leave() {
    if (keyboardOwner() == nullptr) return;
    serve([this] {
        keyboard_->moveTo(nullptr);
        return true;
    });
}

} // namespace NRDM
