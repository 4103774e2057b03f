#pragma once

#include "toolkit/ImplWin/EditField.h"
#include "toolkit/ImplWin/NRDMListPopup.h"
#include "toolkit/ImplWin/NRDMSliderPopup.h"
#include "toolkit/ImplWin/NativeItem.h"

namespace NRDM {

/// A field to type into, with what its kind has beside it: two arrows to step with, an arrow that
/// opens a list or a slider.
class NRDMEditText final : public NativeItem, private EditFieldOwner {
public:
    NRDMEditText(NativeDialog& dialog, const ItemView& view, ItemEvents& events);

    void changed(Aspect aspects) override;
    void focus() override;
    void selectAll() override { field_.selectAll(); }
    void invalidate() override;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;
    [[nodiscard]] HWND focusWindow() const override { return field_.handle(); }
    [[nodiscard]] std::wstring windowText() const override { return {}; } // the edit has it
    void wheel(int steps) override { step(steps, GetKeyState(VK_SHIFT) < 0); }
    [[nodiscard]] bool takesWheel() const override { return hasFocus() && !popup_; }

private:
    /// The parts beside the field; `None` is the field and its border.
    enum class Part { None, Up, Down, Popup };

    bool fieldMessage(UINT message, WPARAM wide, LPARAM lengthy) override;
    void fieldChanged() override;
    void fieldFocus(bool taken, HWND other) override;
    void fieldFailed() noexcept override { failed(); }
    [[nodiscard]] FaceState fieldState() const override { return state(); }
    [[nodiscard]] const Palette& fieldPalette() const override { return palette(); }

    [[nodiscard]] bool spins() const;
    [[nodiscard]] bool slides() const;
    [[nodiscard]] bool lists() const;
    [[nodiscard]] RECT placeOf(Part part) const;
    [[nodiscard]] Part partAt(POINT point) const;
    [[nodiscard]] FaceState stateOf(Part part) const;
    void arrange();
    void showText();
    void setHotPart(Part part);
    bool fieldKey(WPARAM key);
    bool commit();
    void step(int steps, bool large);
    void press(Part part);
    void letGo();
    void openPopup();

    EditField field_;
    std::unique_ptr<PopupWindow> popup_;
    Part hotPart_ = Part::None;
    Part pressed_ = Part::None;
    int repeats_ = 0;
};

} // namespace NRDM
