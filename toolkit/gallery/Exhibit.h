#pragma once

#include "toolkit/ImplCommon/Peers.h"

#include <functional>
#include <memory>
#include <vector>

namespace NRDM::gallery {

/// How an item is to be shown besides what its view says.
enum class Pose { Plain, RollOver, Pressed, Focused };

/// An item that keeps whatever it is told: the gallery is about looks, not about rules.
class Exhibit final : public ItemEvents {
public:
    Exhibit(ItemView view, Pose pose) : view_(std::move(view)), pose_(pose) {}

    void show(DialogPeer& dialog) { peer_ = dialog.createItem(view_, *this); }
    void hide() { peer_.reset(); }

    /// Brings the control into its pose, painted, until the next message it gets.
    void strike() const;

    [[nodiscard]] const ItemView& view() const { return view_; }
    [[nodiscard]] ItemPeer* peer() const { return peer_.get(); }

    std::function<void(CoADMDrawer&)> onDraw; ///< of a user item

    void clicked() override;
    void typed(const std::string& text) override { typed_ = text; }
    bool commit() override;
    void revert() override { typed_.clear(); }
    void step(int steps, bool large, Phase phase) override;
    void slide(double value, Phase phase) override;
    void choose(int entry) override;
    void activated(bool) override {}
    void draw(CoADMDrawer& drawer) override { onDraw(drawer); }
    bool track(const TrackInput&) override { return false; }

private:
    void setValue(double value);

    ItemView view_;
    Pose pose_;
    std::string typed_;
    std::unique_ptr<ItemPeer> peer_;
};

/// One page: a dialog and what hangs in it.
class Page final : public DialogEvents {
public:
    Page(std::string title, Extent size, DialogKind fontsOf);

    Page& add(ItemView view, Pose pose = Pose::Plain);
    Page& addDrawn(ItemView view, std::function<void(CoADMDrawer&)> draw);

    void open(Peers& peers);
    void close();
    /// Painted, with every exhibit in its pose.
    void pose() const;

    [[nodiscard]] const DialogView& view() const { return view_; }
    [[nodiscard]] void* window() const;
    [[nodiscard]] bool isOpen() const { return peer_ != nullptr; }

    bool key(DialogKey key, char32_t letter) override;
    void closeRequested() override;
    void resized(Extent) override {}
    void draw(CoADMDrawer&) override {}
    void timerFired(int) override {}
    bool track(const TrackInput&) override { return false; }

private:
    DialogView view_;
    std::vector<std::unique_ptr<Exhibit>> exhibits_;
    std::unique_ptr<DialogPeer> peer_;
};

} // namespace NRDM::gallery
