#pragma once

#include "toolkit/ImplWin/NativeItem.h"

#include "toolkit/ImplCommon/SliderScale.h"

#include <optional>

namespace NRDM {

/// Of a slider that takes up `area`.
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
    [[nodiscard]] std::optional<LRESULT> tell(UINT message, LPARAM lengthy) const;

    SliderDrag drag_;
};

} // namespace NRDM
