/// Builds without a screen: dialogs are all model, and sizes are made up.

#include "toolkit/ImplCommon/Peers.h"

#include "toolkit/Headless/HeadlessDialog.h"
#include "toolkit/ImplCommon/Text.h"

#include <algorithm>

namespace NRDM {
namespace {

constexpr int kCharacterWidth = 6;
constexpr int kLineHeight = 16;

/// What a control adds to the width of its text, how high it is, and where its text stands.
struct Metric {
    ControlKind kind;
    int extraWidth;
    int height;
    int baseline;
};
constexpr Metric kMetrics[] = {
    {ControlKind::PushButton, 24, 24, 16},
    {ControlKind::CheckBox, 20, 18, 14},
    {ControlKind::RadioButton, 20, 18, 14},
    {ControlKind::Label, 0, kLineHeight, 13},
    {ControlKind::MultiLineLabel, 0, 16, 13},
    {ControlKind::Edit, 20, 22, 16},
    {ControlKind::EditPopup, 40, 22, 16},
    {ControlKind::SpinEdit, 40, 22, 16},
    {ControlKind::SpinEditPopup, 60, 22, 16},
    {ControlKind::EditSlider, 40, 22, 16},
    {ControlKind::SpinEditSlider, 60, 22, 16},
    {ControlKind::Frame, 16, 20, -1},
    {ControlKind::Slider, 100, 20, -1},
    {ControlKind::ListBox, 100, 80, -1},
    {ControlKind::PopupList, 40, 22, 16},
    {ControlKind::PopupMenu, 40, 22, 16},
    {ControlKind::Group, 0, 0, -1},
    {ControlKind::User, 100, 100, -1},
};

class HeadlessPeers final : public Peers {
public:
    explicit HeadlessPeers(const Surroundings& surroundings) : fail_(surroundings.fail) {}

    std::unique_ptr<DialogPeer> createDialog(const DialogView& view,
                                             DialogEvents& events) override {
        return std::make_unique<HeadlessDialog>(view, events, keyboard_, fail_);
    }

    [[nodiscard]] layout::ItemSize measure(const ItemView& view, DialogKind) const override {
        const Metric& metric = *std::ranges::find(kMetrics, view.kind, &Metric::kind);
        if (view.hasPicture) return {metric.height, metric.height, std::nullopt};
        const int width = kCharacterWidth * lengthOf(withoutMarks(view.text)) + metric.extraWidth;
        const bool hasText = metric.baseline >= 0;
        return {width, metric.height, hasText ? std::optional(metric.baseline) : std::nullopt};
    }

    [[nodiscard]] int heightAt(const ItemView& view, DialogKind, int width) const override {
        const int inLine = std::max(1, width / kCharacterWidth);
        return kLineHeight * std::max(1, (lengthOf(view.text) + inLine - 1) / inLine);
    }

    void fail() noexcept override {
        if (fail_ != nullptr) fail_();
    }
    void beep() override {}
    void themeChanged() override {}

private:
    std::shared_ptr<Keyboard> keyboard_ = std::make_shared<Keyboard>(); ///< dialogs outlive this
    void (*fail_)() noexcept;
};

} // namespace

std::unique_ptr<Peers> systemPeers(const Surroundings& surroundings) {
    return std::make_unique<HeadlessPeers>(surroundings);
}

} // namespace NRDM
