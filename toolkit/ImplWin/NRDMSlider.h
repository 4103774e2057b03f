#pragma once

#include "toolkit/ImplWin/NativeItem.h"

#include <optional>

namespace NRDM {

/// A slider's values on a bar of pixels: the middle of the thumb keeps its radius away from both
/// ends.
struct SliderScale {
    double lowest = 0;
    double highest = 1;
    int left = 0;
    int right = 0;

    [[nodiscard]] int pixelOf(double value) const;
    [[nodiscard]] double valueAt(int pixel) const;
};

[[nodiscard]] SliderScale sliderScale(const ItemView& view, const RECT& area, Scale scale);

/// Slides in a window: press on the thumb, drag, release; or click beside it for a large step.
/// Shared by the slider and the slider that pops up beside a field.
class SliderDrag {
public:
    SliderDrag(const ItemView& view, ItemEvents& events) : view_(view), events_(events) {}

    /// Mouse messages of `window`; true when answered. `area` is the slider's place in it.
    bool serve(HWND window, UINT message, LPARAM lengthy, const RECT& area, Scale scale);

    [[nodiscard]] bool dragging() const noexcept { return grip_.has_value(); }

private:
    void slideTo(double value, Phase phase);

    const ItemView& view_;
    ItemEvents& events_;
    std::optional<int> grip_; ///< while dragging: the pointer's distance from the thumb's middle
};

/// The value that a key asks a slider for.
[[nodiscard]] std::optional<double> sliderKey(const ItemView& view, WPARAM key);

class NRDMSlider final : public NativeItem {
public:
    NRDMSlider(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    bool key(WPARAM key) override;
    void wheel(int steps) override;
    [[nodiscard]] bool takesWheel() const override { return hasFocus(); }
    void paint(const Canvas& canvas, const RECT& area) override;

private:
    SliderDrag drag_;
};

} // namespace NRDM
