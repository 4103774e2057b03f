#include "toolkit/ImplWin/WinPeers.h"

#include "toolkit/ImplWin/NRDMListView.h"
#include "toolkit/ImplWin/NativeDialog.h"

#include "toolkit/ImplCommon/Dialogs.h"

#include <algorithm>
#include <cmath>

namespace NRDM {
namespace {

/// What a kind of control adds to its text, in units. A width of its own, where there is one,
/// counts instead of the text's.
struct SizeRow {
    int besideText;
    int ownWidth;
    int dialogHeight;
    int panelHeight;
    bool hasBaseline;
};

/// In the order of `ControlKind`.
constexpr SizeRow kSizes[] = {
    {30, 0, 24, 21, true},    // PushButton
    {21, 0, 18, 16, true},    // CheckBox
    {21, 0, 18, 16, true},    // RadioButton
    {1, 0, 16, 14, true},     // Label
    {1, 0, 16, 14, true},     // MultiLineLabel
    {0, 96, 22, 19, true},    // Edit
    {0, 96, 22, 19, true},    // EditPopup
    {0, 96, 22, 19, true},    // SpinEdit
    {0, 96, 22, 19, true},    // SpinEditPopup
    {0, 96, 22, 19, true},    // EditSlider
    {0, 96, 22, 19, true},    // SpinEditSlider
    {24, 0, 20, 18, false},   // Frame
    {0, 120, 18, 14, false},  // Slider
    {0, 140, 100, 84, false}, // ListBox
    {27, 0, 24, 21, true},    // PopupList
    {27, 0, 24, 21, true},    // PopupMenu
    {0, 0, 0, 0, false},      // Group
    {0, 100, 100, 100, false} // User
};
constexpr int kPictureMargin = 4; ///< of a picture button, on each side

const SizeRow& rowOf(ControlKind kind) { return kSizes[static_cast<std::size_t>(kind)]; }

/// Letters have whole pixels, so that a text may need a little more at one scale than at another.
/// It gets what suffices at all of them, or it would be drawn smaller than its neighbours there.
int widthOf(std::string_view text, TextStyle style) {
    const std::wstring shown = captionOf(toWide(text)).text;
    double widest = 0;
    for (const double factor : {1.0, 1.25, 1.5, 2.0})
        widest = std::max(widest, textWidth(shown, style, {factor}) / factor);
    return static_cast<int>(std::ceil(widest));
}

int widestEntry(const ItemView& view, TextStyle style) {
    int widest = 0;
    for (const EntryView& entry : view.entries)
        widest = std::max(widest, widthOf(entry.text, style));
    return widest;
}

} // namespace

WinPeers::WinPeers(const Themes& themes, PictureSource pictures)
    : themes_(themes), screen_(std::make_shared<Screen>(themes, std::move(pictures))) {}

std::unique_ptr<DialogPeer> WinPeers::createDialog(const DialogView& view, DialogEvents& events) {
    return std::make_unique<NativeDialog>(*screen_, view, events);
}

layout::ItemSize WinPeers::measure(const ItemView& view, DialogKind where) const {
    if (view.hasPicture) {
        Extent largest;
        for (const int id : {view.pictures.normal, view.pictures.selected, view.pictures.disabled,
                             view.pictures.rollover}) {
            const SIZE size =
                screen_->pictures.size(id, screen_->palettes.of(where == DialogKind::Panel).dark);
            largest = {std::max(largest.width, static_cast<int>(size.cx)),
                       std::max(largest.height, static_cast<int>(size.cy))};
        }
        const int margin = view.kind == ControlKind::Label ? 0 : kPictureMargin;
        return {largest.width + 2 * margin, largest.height + 2 * margin, std::nullopt};
    }
    const bool inPanel = where == DialogKind::Panel;
    const TextStyle style = textStyleOf(view.font, inPanel);
    const auto& [besideText, ownWidth, dialogHeight, panelHeight, hasBaseline] = rowOf(view.kind);
    const int text = std::max(widthOf(view.text, style), widestEntry(view, style));
    const int width = ownWidth > 0 ? ownWidth : text + besideText;
    // Larger fonts than the usual ones need more than the usual height.
    const int line = static_cast<int>(std::ceil(lineMetrics(style, {1.0}).height));
    const int height = hasBaseline ? std::max(inPanel ? panelHeight : dialogHeight, line)
                                   : (inPanel ? panelHeight : dialogHeight);
    layout::ItemSize size{width, height, std::nullopt};
    if (hasBaseline) size.baseline = baselineOf(0, height, style, {1.0});
    return size;
}

int WinPeers::heightAt(const ItemView& view, DialogKind where, int width) const {
    const TextStyle style = textStyleOf(view.font, where == DialogKind::Panel);
    return wrappedHeight(captionOf(toWide(view.text)).text, style, {1.0}, width);
}

WinPeers& WinPeers::current() { return dynamic_cast<WinPeers&>(Dialogs::current().peers()); }

void WinPeers::fail() noexcept {
    if (screen_->failed) screen_->failed();
}

void WinPeers::beep() { MessageBeep(MB_OK); }

void WinPeers::themeChanged() {
    screen_->palettes = Screen::Palettes(themes_);
    for (const NativeDialog* const dialog : screen_->dialogs)
        dialog->repaintAll();
}

} // namespace NRDM
