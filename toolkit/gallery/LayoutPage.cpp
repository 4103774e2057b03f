#include "toolkit/gallery/LayoutPage.h"

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <algorithm>

namespace NRDM::gallery {
namespace {

/// The control that an element becomes, if it becomes one.
struct KindRow {
    layout::Kind kind;
    ControlKind control;
};
constexpr KindRow kKinds[] = {
    {layout::Kind::Group, ControlKind::Frame},
    {layout::Kind::Cluster, ControlKind::Frame},
    {layout::Kind::PopupCluster, ControlKind::PopupList},
    {layout::Kind::Button, ControlKind::PushButton},
    {layout::Kind::StaticText, ControlKind::Label},
    {layout::Kind::StaticImage, ControlKind::Label},
    {layout::Kind::Slider, ControlKind::Slider},
    {layout::Kind::Checkbox, ControlKind::CheckBox},
    {layout::Kind::RadioButton, ControlKind::RadioButton},
    {layout::Kind::EditText, ControlKind::Edit},
    {layout::Kind::EditSlider, ControlKind::EditSlider},
    {layout::Kind::EditPopup, ControlKind::EditPopup},
    {layout::Kind::Popup, ControlKind::PopupList},
    {layout::Kind::SpinEdit, ControlKind::SpinEdit},
    {layout::Kind::SpinEditSlider, ControlKind::SpinEditSlider},
    {layout::Kind::SpinEditPopup, ControlKind::SpinEditPopup},
    {layout::Kind::PopupMenu, ControlKind::PopupMenu},
    {layout::Kind::Listbox, ControlKind::ListBox},
    {layout::Kind::UserType, ControlKind::User},
};

constexpr int kDefaultId = 1; ///< of the button that Enter presses

/// What the item of `element` shows; its bounds are left open.
ItemView viewOf(const layout::Element& element) {
    using layout::Key;
    ItemView view;
    for (const auto& [kind, control] : kKinds)
        if (kind == element.kind) view.kind = control;
    view.text = layout::textOf(element, Key::Name);
    view.font = layout::integerOf(element, Key::Font).value_or(0);
    view.justify = layout::integerOf(element, Key::Justify).value_or(0);
    view.style = layout::integerOf(element, Key::Style).value_or(0);
    view.enabled = layout::truthOf(element, Key::Enabled).value_or(true);
    view.visible = layout::truthOf(element, Key::Visible).value_or(true);
    view.value = layout::numberOf(element, Key::ItemValue).value_or(0);
    view.lowest = layout::numberOf(element, Key::MinValue).value_or(view.lowest);
    view.highest = layout::numberOf(element, Key::MaxValue).value_or(view.highest);
    view.pictures.normal = layout::integerOf(element, Key::ImageId).value_or(0);
    view.pictures.selected = layout::integerOf(element, Key::SelectedImageId).value_or(0);
    view.pictures.disabled = layout::integerOf(element, Key::DisabledImageId).value_or(0);
    view.pictures.rollover = layout::integerOf(element, Key::RolloverImageId).value_or(0);
    view.hasPicture = view.pictures.normal != 0;
    view.isDefault = view.kind == ControlKind::PushButton &&
                     layout::integerOf(element, Key::ItemId) == kDefaultId;
    for (const layout::Element& child : element.children) {
        if (child.kind != layout::Kind::Entry) continue;
        EntryView entry;
        entry.text = layout::textOf(child, Key::Name);
        entry.separator = layout::truthOf(child, Key::Separator).value_or(false);
        view.entries.push_back(std::move(entry));
    }
    return view;
}

class ScreenSizes final : public layout::ItemSizes {
public:
    explicit ScreenSizes(const Peers& peers) : peers_(peers) {}

    [[nodiscard]] layout::ItemSize measure(const layout::Element& item) const override {
        const auto [extent, baseline] = peers_.measure(viewOf(item), DialogKind::Modal);
        layout::ItemSize size{extent.width, extent.height, std::nullopt};
        if (baseline >= 0) size.baseline = baseline;
        return size;
    }

private:
    const Peers& peers_;
};

constexpr Extent kSize{500, 336};
constexpr int kLine = 16;
constexpr int kGutter = 40;
constexpr int kRows = (kSize.height - 24) / kLine;
constexpr int kLinesBefore = 6; ///< the first mistake

constexpr Colour kMistake{226, 66, 66};
constexpr Colour kDoubt{214, 150, 40};

std::vector<std::wstring> linesOf(const std::string& text) {
    std::vector<std::wstring> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\r' || text[i] == '\n')
            lines.emplace_back();
        else
            lines.back() += text[i] == '\t' ? L' ' : static_cast<unsigned char>(text[i]);
    }
    return lines;
}

/// Where `message` is: a mark below its letter, and what is wrong in words.
void drawMessage(CoADMDrawer& drawer, const layout::Message& message, const std::wstring& line,
                 int top) {
    drawer.setColour(message.severity == layout::Severity::Error ? kMistake : kDoubt);
    const auto before = static_cast<std::size_t>(message.position.column - 1);
    const int x = kGutter + drawer.textWidth(line.substr(0, std::min(before, line.size())));
    drawer.fillRect({x - 1, top - 3, x + 8, top - 1});
    const std::wstring text = toWide(message.text);
    const int width = drawer.textWidth(text);
    const int left = std::max(kGutter, std::min(x, kSize.width - 16 - width));
    drawer.drawText(text, Bounds{left, top, kSize.width - 12, top + kLine}, Justify::Left);
}

} // namespace

std::unique_ptr<Page> mistakesPage(const std::string& title, const std::string& text,
                                   const layout::Messages& messages) {
    auto page = std::make_unique<Page>(title, kSize, DialogKind::Modal);
    ItemView view;
    view.kind = ControlKind::User;
    view.bounds = {0, 0, kSize.width, kSize.height};
    const int firstMistake = messages.empty() ? 1 : messages.front().position.line;
    const int firstLine = std::max(1, firstMistake - kLinesBefore);
    page->addDrawn(view, [lines = linesOf(text), messages, firstLine](CoADMDrawer& drawer) {
        drawer.setColour(13);
        drawer.fillRect(drawer.bounds());
        int row = 0;
        for (int number = firstLine; number <= static_cast<int>(lines.size()) && row < kRows;
             ++number, ++row) {
            const std::wstring& line = lines[static_cast<std::size_t>(number - 1)];
            const int top = 12 + row * kLine;
            drawer.setColour(7);
            drawer.drawText(std::to_wstring(number), Bounds{0, top, kGutter - 10, top + kLine},
                            Justify::Right);
            drawer.setColour(15);
            drawer.drawText(line, Bounds{kGutter, top, kSize.width - 12, top + kLine},
                            Justify::Left);
            for (const layout::Message& message : messages)
                if (message.position.line == number)
                    drawMessage(drawer, message, line, 12 + ++row * kLine);
        }
    });
    return page;
}

std::unique_ptr<Page> layoutPage(const layout::Layout& layout, const Peers& peers) {
    const layout::Placement placement = layout::place(layout, ScreenSizes(peers));
    const layout::Rectangle& whole = placement.front().bounds;
    auto page =
        std::make_unique<Page>(std::string(layout::textOf(layout.dialog, layout::Key::Name)),
                               Extent{whole.width, whole.height}, DialogKind::Modal);
    for (const layout::Placed& placed : placement) {
        if (layout::itemTypeOf(*placed.element).empty()) continue;
        const auto& [x, y, width, height] = placed.bounds;
        ItemView view = viewOf(*placed.element);
        view.bounds = {x, y, x + width, y + height};
        page->addDrawn(std::move(view), [](CoADMDrawer& drawer) {
            drawer.setColour(7);
            drawer.drawRect(drawer.bounds());
        });
    }
    return page;
}

} // namespace NRDM::gallery
