#pragma once

#include "toolkit/ImplWin/HWNDBased.h"
#include "toolkit/ImplWin/Text.h"
#include "toolkit/ImplWin/ToolTips.h"

#include "toolkit/ImplCommon/Peers.h"

#include <exception>
#include <memory>

namespace NRDM {

class NativeItem;

/// The corner of a window of `size` in the middle of `around`, moved so that it is whole in `work`
/// as far as it fits there.
[[nodiscard]] POINT centredWithin(const RECT& around, const RECT& work, SIZE size);

/// The window of a dialog or panel: holds the items' windows, gives them what they report to it
/// instead of to themselves, and turns keys into what they mean to a dialog.
class NativeDialog final : public HWNDBased, public DialogPeer {
public:
    NativeDialog(Screen& screen, const DialogView& view, DialogEvents& events);
    ~NativeDialog() override;

    std::unique_ptr<ItemPeer> createItem(const ItemView& view, ItemEvents& events) override;
    void close() noexcept override;
    [[nodiscard]] bool isAlive() const override { return handle() != nullptr; }
    void changed() override;
    void invalidate() override { repaintAll(); }
    void invalidate(const Bounds& area) override;
    void update() override;
    void activate() override;
    void returnKeyboard() override;
    void runModal() override;
    bool endModal() override;
    void startTimer(int timer, int milliseconds) override;
    void stopTimer(int timer) override;
    [[nodiscard]] double pixelsInUnit() const override { return scale_.factor; }
    [[nodiscard]] Place screenCorner() const override;
    void moveTo(Place corner) override;
    [[nodiscard]] void* window() const override { return handle(); }

    [[nodiscard]] Scale scale() const override { return scale_; }
    [[nodiscard]] const Palette& palette() const override {
        return screen().palettes.of(inPanel());
    }
    [[nodiscard]] const DialogView& view() const noexcept { return view_; }
    [[nodiscard]] bool inPanel() const noexcept { return view_.kind == DialogKind::Panel; }
    [[nodiscard]] ToolTips& tips() noexcept { return tips_; }

    /// Whether focus and access keys are to be shown: from the first use of the keyboard on, or
    /// always when the user set Windows so.
    [[nodiscard]] bool keyboardCues() const noexcept { return keyboardCues_; }
    void showKeyboardCues();

    /// An item has got the focus, from `other`; null where the system does not tell.
    void focusCame(HWND other);

    /// A key message that a control has no use for; true when the dialog had.
    bool dialogKey(UINT message, WPARAM wide);

    /// The colours have changed.
    void repaintAll() const;

    /// Called inside a handler: the exception in flight ends the modal loop, or is only reported.
    void failed() noexcept override;

protected:
    LRESULT serve(UINT message, WPARAM wide, LPARAM lengthy) override;
    void paint(const Canvas& canvas, const RECT& area) override;

private:
    class OthersDisabled;

    void createWindow();
    void enableAsItIs();
    [[nodiscard]] RECT windowRect() const;
    bool reflect(HWND control, UINT message, WPARAM wide, LPARAM lengthy, LRESULT& answer);
    [[nodiscard]] bool holds(HWND window) const;
    void followScale();
    void resizeTo(const RECT& place, UINT flags);

    const DialogView& view_;
    DialogEvents& events_;
    Scale scale_;
    ToolTips tips_;
    HWND focused_ = nullptr; ///< the item that gets the focus back with the activation
    HWND lender_ = nullptr;  ///< who had the keyboard before an item of the panel took it
    bool keyboardCues_;
    bool running_ = false;  ///< `runModal` serves events
    int modalsAbove_ = 0;   ///< other dialogs that run meanwhile
    bool placed_ = false;   ///< where it is counts; until then it keeps to the middle
    bool changing_ = false; ///< the size is set from here, and the model need not be told
    std::exception_ptr failure_;
};

} // namespace NRDM
