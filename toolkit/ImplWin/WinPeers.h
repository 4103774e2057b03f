#pragma once

#include "toolkit/ImplCommon/Lent.h"
#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/ImplWin/CoADMImage.h"
#include "toolkit/ImplWin/CoADMWindowDrawer.h"
#include "toolkit/ImplWin/Screen.h"

namespace NRDM {

/// Windows for dialogs and items.
class WinPeers final : public Peers {
public:
    /// `themes` are read again when it has changed; `pictures` are the plug-in's. Throws
    /// `NRDMResourceException`.
    WinPeers(const Themes& themes, PictureSource pictures);

    std::unique_ptr<DialogPeer> createDialog(const DialogView& view, DialogEvents& events) override;
    [[nodiscard]] layout::ItemSize measure(const ItemView& view, DialogKind where) const override;
    [[nodiscard]] int heightAt(const ItemView& view, DialogKind where, int width) const override;
    void fail() noexcept override;
    void beep() override;
    void themeChanged() override;

    [[nodiscard]] Screen& screen() noexcept { return *screen_; }
    [[nodiscard]] Lent<CoADMImage>& images() noexcept { return images_; }
    [[nodiscard]] Lent<CoADMWindowDrawer>& drawers() noexcept { return drawers_; }

    /// Those of the running toolkit.
    [[nodiscard]] static WinPeers& current();

private:
    const Themes& themes_;
    std::shared_ptr<Screen> screen_;
    Lent<CoADMImage> images_;
    Lent<CoADMWindowDrawer> drawers_;
};

} // namespace NRDM
