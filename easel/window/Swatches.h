#pragma once

#include "easel/window/Hand.h"
#include "easel/window/NativeWindow.h"

namespace easel::window {

/// A row of colours: a click fills what is selected, one with the right button strokes it. Behind
/// them the widths of strokes.
class Swatches : public NativeWindow {
public:
    explicit Swatches(Hand& hand) : hand_(hand) {}

    void open(HWND parent);
    [[nodiscard]] static int width();

private:
    LRESULT handleMessage(UINT message, WPARAM first, LPARAM second) override;
    void paint();
    void choose(int x, bool stroke);

    Hand& hand_;
};

} // namespace easel::window
