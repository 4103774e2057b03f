#pragma once

namespace NRDM {

class HeadlessItem;

/// Which item has the keyboard: where no window has a focus, this is it.
class Keyboard {
public:
    [[nodiscard]] HeadlessItem* owner() const noexcept { return owner_; }

    /// The user's hand or the model moves it; null: to where no dialog is. The item that had it is
    /// done with first, and may keep it. What is told may destroy items, these two among them.
    void moveTo(HeadlessItem* item);

    /// `item` is gone.
    void forget(const HeadlessItem& item) noexcept {
        if (owner_ == &item) owner_ = nullptr;
    }

private:
    HeadlessItem* owner_ = nullptr;
};

} // namespace NRDM
