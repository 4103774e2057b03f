#pragma once

#include "platform/DialogDoor.h"
#include "toolkit/Headless/Keyboard.h"
#include "toolkit/ImplCommon/Peers.h"

#include <exception>
#include <memory>
#include <vector>

namespace NRDM {

class HeadlessItem;

/// A dialog without a window: the program that runs the code sees it and acts for the user. Where
/// no program does, a modal dialog ends as if it had been closed.
class HeadlessDialog final : public DialogPeer, public facetta::door::Dialog {
public:
    HeadlessDialog(const DialogView& view, DialogEvents& events, std::shared_ptr<Keyboard> keyboard,
                   void (*fail)() noexcept);
    ~HeadlessDialog() override;
    HeadlessDialog(const HeadlessDialog&) = delete;
    HeadlessDialog& operator=(const HeadlessDialog&) = delete;

    // DialogPeer
    std::unique_ptr<ItemPeer> createItem(const ItemView& view, ItemEvents& events) override;
    void close() noexcept override;
    [[nodiscard]] bool isAlive() const override { return !closed_; }
    void changed() override {}
    void invalidate() override {}
    void invalidate(const Bounds&) override {}
    void update() override {}
    void activate() override {}
    void returnKeyboard() override;
    void runModal() override;
    bool endModal() override;
    void startTimer(int, int) override {}
    void stopTimer(int) override {}
    [[nodiscard]] double pixelsInUnit() const override { return 1; }
    [[nodiscard]] Place screenCorner() const override { return {}; }
    void moveTo(Place) override {}
    [[nodiscard]] void* window() const override { return nullptr; }

    // door::Dialog
    [[nodiscard]] bool isModal() const override { return view_.kind == DialogKind::Modal; }
    [[nodiscard]] std::string title() const override { return view_.title; }
    [[nodiscard]] std::vector<facetta::door::SeenItem> items() const override;
    void click(int id) override;
    bool type(std::string_view text) override;
    bool press(facetta::door::Key key, facetta::door::Modifiers modifiers) override;
    bool spin(int id, bool up, bool large) override;
    bool slide(int id, double value, int moves) override;
    bool choose(int id, std::string_view entry) override;
    void clickCloseBox() override;
    void leave() override;

    // For the items.
    [[nodiscard]] const DialogView& view() const noexcept { return view_; }
    [[nodiscard]] DialogEvents& events() const noexcept { return events_; }
    [[nodiscard]] Keyboard& keyboard() const noexcept { return *keyboard_; }
    [[nodiscard]] bool inPanel() const noexcept { return view_.kind == DialogKind::Panel; }
    void add(HeadlessItem& item) { items_.push_back(&item); }
    void remove(HeadlessItem& item) noexcept { std::erase(items_, &item); }

private:
    /// Nothing that a handler throws leaves an event: it ends the modal loop and comes out of
    /// that, or is reported.
    template <typename Act> bool serve(Act act) noexcept;
    [[nodiscard]] HeadlessItem* item(int id) const;
    /// The one with the keyboard, if it is here.
    [[nodiscard]] HeadlessItem* keyboardOwner() const;
    bool pressHere(facetta::door::Key key, facetta::door::Modifiers modifiers);

    const DialogView& view_;
    DialogEvents& events_;
    std::shared_ptr<Keyboard> keyboard_;
    void (*fail_)() noexcept;
    std::vector<HeadlessItem*> items_;
    bool running_ = false;
    bool closed_ = false;
    std::exception_ptr failure_;
    std::shared_ptr<const char> life_ = std::make_shared<const char>();
};

} // namespace NRDM
