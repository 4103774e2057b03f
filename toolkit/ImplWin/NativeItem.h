#pragma once

#include "toolkit/ImplWin/HWNDBased.h"
#include "toolkit/ImplWin/NativeDialog.h"
#include "toolkit/ImplWin/Text.h"

#include "toolkit/ImplCommon/Peers.h"

namespace NRDM {

/// What all native controls share: a child window of the dialog that shows an item's view.
class NativeItem : public HWNDBased, public ItemPeer {
public:
    NativeItem(NativeDialog& dialog, const ItemView& view, ItemEvents& events);
    ~NativeItem() override;

    void changed(Aspect aspects) override;
    void focus() override;
    void selectAll() override {}
    void invalidate() override { repaint(); }
    void update() override { UpdateWindow(handle()); }
    void showTip(bool shown) override;
    [[nodiscard]] void* window() const override { return handle(); }

    /// Messages that Windows sends to the parent about this window; true when answered.
    virtual bool notified(UINT message, WPARAM wide, LPARAM lengthy, LRESULT& answer);

    /// After the dialog's scale has changed.
    void rescale() { changed(Aspect::Bounds | Aspect::Look | Aspect::Text); }

protected:
    /// Called by the constructors of the heirs.
    void createItem(const wchar_t* systemClass, DWORD style);

    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void failed() noexcept override { dialog_.failed(); }
    [[nodiscard]] Scale scale() const override {
        return {dialog_.scale().factor, view_.bounds.top};
    }

    /// What the window says it shows: screen readers and other programs read that. They know an
    /// item's window by the item's id.
    [[nodiscard]] virtual std::wstring windowText() const { return toWide(view_.text); }

    /// A key that the control has a use for itself; true when it had.
    virtual bool key(WPARAM) { return false; }

    /// Steps of the mouse wheel, away from the user positive.
    virtual void wheel(int) {}
    /// Has it a use for the wheel now? A value is changed only where the keyboard is: whoever
    /// scrolls past with the pointer means something else.
    [[nodiscard]] virtual bool takesWheel() const { return false; }
    bool serveWheel(WPARAM wide);

    /// Whether it looks different below the pointer.
    [[nodiscard]] virtual bool reactsToPointer() const { return true; }

    /// The window that has the focus when the item has it.
    [[nodiscard]] virtual HWND focusWindow() const { return handle(); }

    [[nodiscard]] NativeDialog& dialog() const noexcept { return dialog_; }
    [[nodiscard]] const ItemView& view() const noexcept { return view_; }
    [[nodiscard]] ItemEvents& events() const noexcept { return events_; }
    [[nodiscard]] virtual FaceState state() const;
    [[nodiscard]] const Palette& palette() const override { return dialog_.palette(); }
    [[nodiscard]] bool hasFocus() const { return GetFocus() == focusWindow(); }
    [[nodiscard]] TextStyle textStyle() const {
        return textStyleOf(view_.font != 0 ? view_.font : dialog_.view().font, dialog_.inPanel());
    }
    [[nodiscard]] Caption caption() const { return captionOf(toWide(view_.text)); }
    [[nodiscard]] Justify justify() const;
    [[nodiscard]] bool hot() const noexcept { return hot_; }

    /// The picture for `state`, centred in `area`.
    void drawPicture(const Canvas& canvas, const RECT& area, const FaceState& state);

    /// Mouse messages of any window of the item go to the dialog's tips.
    void relayToTips(HWND source, UINT message, WPARAM wide, LPARAM lengthy) const;

private:
    void applyTip();
    void showWindowText();
    bool serveKey(UINT message, WPARAM wide);

    NativeDialog& dialog_;
    const ItemView& view_;
    ItemEvents& events_;
    bool hot_ = false;
    int wheelRest_ = 0; ///< of a wheel that moves in parts of a step
};

/// The control for `view`.
[[nodiscard]] std::unique_ptr<NativeItem> makeNativeItem(NativeDialog& dialog, const ItemView& view,
                                                         ItemEvents& events);

} // namespace NRDM
