#pragma once

#include "easel/window/Hand.h"
#include "easel/window/LayerList.h"
#include "easel/window/NativeWindow.h"

namespace easel::window {

/// The column at the right of the canvas: the panels of plug-ins one below the other, then the
/// layers.
class Dock : public NativeWindow {
public:
    explicit Dock(Hand& hand) : layers(hand), hand_(hand) {}

    void open(HWND parent);
    void arrange();
    /// For the widest of the panels that are shown.
    [[nodiscard]] int width() const;

    LayerList layers;

private:
    LRESULT handleMessage(UINT message, WPARAM first, LPARAM second) override;

    Hand& hand_;
};

} // namespace easel::window
