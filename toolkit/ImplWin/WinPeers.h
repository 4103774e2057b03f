#pragma once

#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/ImplWin/Screen.h"

namespace NRDM {

/// Windows for dialogs and items.
class WinPeers final : public Peers {
public:
    /// `pictures` are the plug-in's. Throws `NRDMResourceException`.
    WinPeers(const Theme& theme, PictureSource pictures);

    std::unique_ptr<DialogPeer> createDialog(const DialogView& view, DialogEvents& events) override;
    [[nodiscard]] NaturalSize measure(const ItemView& view, DialogKind where) const override;
    [[nodiscard]] int heightAt(const ItemView& view, DialogKind where, int width) const override;
    void fail() noexcept override;
    void beep() override;
    void themeChanged() override;

    /// `theme` holds from now on: everything open is painted anew.
    void setTheme(const Theme& theme);

    [[nodiscard]] Screen& screen() noexcept { return *screen_; }

private:
    std::unique_ptr<Screen> screen_;
};

} // namespace NRDM
