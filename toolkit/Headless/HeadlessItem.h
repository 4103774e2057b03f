#pragma once

#include "platform/DialogDoor.h"
#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/ImplCommon/SliderScale.h"

namespace NRDM {

class HeadlessDialog;

/// A control without a window. As far as a user can tell it does what those with one do: it reports
/// the same events in the same order.
class HeadlessItem final : public ItemPeer {
public:
    HeadlessItem(HeadlessDialog& dialog, const ItemView& view, ItemEvents& events);
    ~HeadlessItem() override;

    void changed(Aspect) override {}
    void focus() override;
    void selectAll() override {}
    void invalidate() override {}
    void update() override {}
    void showTip(bool) override {}
    [[nodiscard]] void* window() const override { return nullptr; }

    [[nodiscard]] const ItemView& view() const noexcept { return view_; }
    [[nodiscard]] const HeadlessDialog& dialog() const noexcept { return dialog_; }
    [[nodiscard]] facetta::door::SeenItem seen() const;

    // What the user does. Each may destroy the item.
    void click();
    /// False: there is nothing to type in.
    bool type(std::string_view text);
    /// False: a key for the dialog.
    bool press(facetta::door::Key key, facetta::door::Modifiers modifiers);
    bool spin(bool up, bool large);
    bool slide(double value, int moves);
    bool choose(std::string_view entry);

    void gainKeyboard() { events_.activated(true); }
    /// False: it keeps the keyboard, because what is typed was refused.
    bool loseKeyboard();

private:
    [[nodiscard]] SliderScale sliderScale() const;
    void slideTo(double value, Phase phase);
    bool pressInField(facetta::door::Key key, facetta::door::Modifiers modifiers);
    bool pressInSlider(facetta::door::Key key);
    bool pressInList(facetta::door::Key key);

    HeadlessDialog& dialog_;
    const ItemView& view_;
    ItemEvents& events_;
    std::shared_ptr<const char> life_ = std::make_shared<const char>();
};

} // namespace NRDM
