#pragma once

#include "platform/DialogDoor.h"
#include "toolkit/Headless/Program.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace facetta::tests {

/// A user in front of the modal dialogs of one test. Each dialog is met with the act that was
/// prepared last, and closed after it, which cancels what that left open.
class DialogUser final : public door::Program {
public:
    using Act = std::function<void(DialogUser&)>;

    DialogUser() { NRDM::program() = this; }
    explicit DialogUser(Act what) : DialogUser() { act = std::move(what); }
    ~DialogUser() { NRDM::program() = nullptr; }
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

    Act act;
    int met = 0; ///< dialogs so far

    // What is seen
    [[nodiscard]] std::string title() const { return dialog_->title(); }
    [[nodiscard]] std::vector<door::SeenItem> items() const { return dialog_->items(); }
    [[nodiscard]] door::SeenItem item(int id) const {
        const std::vector<door::SeenItem> items = dialog_->items();
        const auto found = std::ranges::find(items, id, &door::SeenItem::id);
        CHECK(found != items.end());
        return found != items.end() ? *found : door::SeenItem{};
    }
    [[nodiscard]] std::string text(int id) const { return item(id).text; }

    // What is done
    void click(int id) { dialog_->click(id); }
    /// Types over what the field holds, and goes on to the next.
    void enter(int id, std::string_view text) {
        dialog_->click(id);
        dialog_->type(text);
        dialog_->press(door::Key::Tab, {});
    }
    void type(std::string_view text) { dialog_->type(text); }
    void press(door::Key key, door::Modifiers modifiers = {}) { dialog_->press(key, modifiers); }
    void ok() { click(1); }
    void cancel() { click(2); }

    void opened(door::Dialog& dialog) override {
        if (!dialog.isModal()) return;
        dialog_ = &dialog;
        ++met;
    }
    void closed(door::Dialog& dialog) noexcept override {
        if (dialog_ == &dialog) dialog_ = nullptr;
    }
    bool nextEvent() noexcept override {
        if (!act) return false;
        std::exchange(act, nullptr)(*this);
        return dialog_ != nullptr;
    }

private:
    door::Dialog* dialog_ = nullptr;
};

} // namespace facetta::tests
