#include "toolkit/gallery/Pages.h"

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <array>

namespace NRDM::gallery {
namespace {

/// A view with the members that most items have.
ItemView item(ControlKind kind, Bounds bounds, std::string text = {}) {
    ItemView view;
    view.kind = kind;
    view.bounds = bounds;
    view.text = std::move(text);
    return view;
}

ItemView disabled(ItemView view) {
    view.enabled = false;
    return view;
}

ItemView on(ItemView view, double value = 1) {
    view.value = value;
    return view;
}

ItemView unknown(ItemView view) {
    view.known = false;
    return view;
}

ItemView styled(ItemView view, int style) {
    view.style = style;
    return view;
}

ItemView justified(ItemView view, int justify) {
    view.justify = justify;
    return view;
}

ItemView tipped(ItemView view, std::string tip) {
    view.tip = std::move(tip);
    return view;
}

ItemView defaulted(ItemView view) {
    view.isDefault = true;
    return view;
}

ItemView pictured(ItemView view, PictureIds pictures) {
    view.hasPicture = true;
    view.pictures = pictures;
    return view;
}

ItemView listing(ItemView view, std::initializer_list<const char*> texts, int chosen) {
    for (const char* const text : texts) {
        EntryView entry;
        entry.text = text;
        entry.separator = entry.text == "-";
        view.entries.push_back(entry);
    }
    view.chosen = chosen;
    return view;
}

/// A box of the given width and height with its top left corner there.
Bounds at(int left, int top, int width, int height) {
    return {left, top, left + width, top + height};
}

void addHeadings(Page& page, std::initializer_list<const char*> headings, int left, int width) {
    for (const char* const heading : headings) {
        ItemView view = item(ControlKind::Label, at(left, 14, width - 8, 16), heading);
        page.add(view);
        left += width;
    }
}

/// A user item shows what a drawer can do.
void drawSamples(CoADMDrawer& drawer) {
    const Bounds area = drawer.bounds();
    drawer.setColour(13);
    drawer.fillRect(area);
    drawer.drawSunkenRect({6, 6, 40, 34});
    drawer.drawRaisedRect({46, 6, 80, 34});
    drawer.setColour(2);
    drawer.fillOval({86, 6, 114, 34});
    drawer.setColour(15);
    drawer.drawOval({120, 6, 148, 34});
    const std::array star{Place{168, 6}, Place{182, 34}, Place{154, 34}};
    drawer.drawPolygon(star);
    drawer.drawArrow({190, 6, 210, 34}, Arrow::Up);
    drawer.drawArrow({212, 6, 232, 34}, Arrow::Down);
    drawer.drawArrow({234, 6, 254, 34}, Arrow::Left);
    drawer.drawArrow({256, 6, 276, 34}, Arrow::Right);
    drawer.drawText(L"Left", Bounds{6, 40, 276, 56}, Justify::Left);
    drawer.drawText(L"Centred", Bounds{6, 40, 276, 56}, Justify::Centre);
    drawer.drawText(L"Right", Bounds{6, 40, 276, 56}, Justify::Right);
    drawer.setColour(7);
    drawer.drawRect(area);
}

constexpr int kColumn = 98;
constexpr int kLeft = 12;

void addBoxes(Page& page, ControlKind kind, int top, const char* text) {
    const auto box = [&](int column) {
        return item(kind, at(kLeft + column * kColumn, top, 86, 18), text);
    };
    const auto onBox = [&](int column) {
        ItemView view = on(box(column));
        view.bounds.top += 24;
        view.bounds.bottom += 24;
        return view;
    };
    page.add(box(0)).add(onBox(0));
    page.add(box(1), Pose::RollOver).add(onBox(1), Pose::RollOver);
    page.add(box(2), Pose::Pressed).add(onBox(2), Pose::Pressed);
    page.add(disabled(box(3))).add(disabled(onBox(3)));
}

std::unique_ptr<Page> buttons() {
    auto page = std::make_unique<Page>("Buttons", Extent{500, 336}, DialogKind::Modal);
    addHeadings(*page, {"Normal", "Roll-over", "Pressed", "Disabled", "Default, focus"}, kLeft,
                kColumn);
    const auto button = [&](int column, const char* text) {
        return item(ControlKind::PushButton, at(kLeft + column * kColumn, 44, 86, 24), text);
    };
    page->add(tipped(button(0, "&Apply"), "Apply the symmetry axes to mirror the artwork"))
        .add(button(1, "&Update"), Pose::RollOver)
        .add(button(2, "Cancel"), Pose::Pressed)
        .add(disabled(button(3, "Cancel")))
        .add(defaulted(button(4, "OK")));
    ItemView focused = button(4, "Cancel");
    focused.bounds = at(kLeft + 4 * kColumn, 80, 86, 24);
    page->add(focused, Pose::Focused);
    addBoxes(*page, ControlKind::CheckBox, 84, "&Snap");
    page->add(unknown(item(ControlKind::CheckBox, at(kLeft, 132, 96, 18), "Mixed")))
        .add(disabled(
            unknown(item(ControlKind::CheckBox, at(kLeft + 3 * kColumn, 132, 96, 18), "Mixed"))));
    addBoxes(*page, ControlKind::RadioButton, 168, "Every layer");
    const PictureIds selection{2106, 0, 2108, 0};
    const PictureIds layer{2110, 0, 0, 0};
    for (int column = 0; column < 4; ++column) {
        const Pose pose = column == 1 ? Pose::RollOver : column == 2 ? Pose::Pressed : Pose::Plain;
        const int left = kLeft + column * kColumn;
        ItemView first = pictured(item(ControlKind::RadioButton, at(left, 232, 32, 27)), selection);
        ItemView second =
            on(pictured(item(ControlKind::RadioButton, at(left + 40, 232, 32, 27)), layer));
        first.enabled = second.enabled = column != 3;
        page->add(first, pose).add(second, pose);
    }
    page->add(item(ControlKind::Frame, at(kLeft, 276, 476, 2)));
    page->add(item(ControlKind::Label, at(kLeft, 288, 476, 16),
                   "A label of forty-four characters stays whole here"));
    page->add(disabled(item(ControlKind::Label, at(kLeft, 308, 300, 16), "A disabled label")));
    return page;
}

std::unique_ptr<Page> fields() {
    auto page = std::make_unique<Page>("Fields", Extent{500, 330}, DialogKind::Modal);
    addHeadings(*page, {"Normal", "Roll-over", "Unknown", "Disabled"}, 108, kColumn);
    struct Row {
        const char* label;
        ControlKind kind;
        const char* text;
    };
    constexpr Row kRows[] = {
        {"Te&xt:", ControlKind::Edit, "Untitled"},
        {"&Number:", ControlKind::Edit, "128.500 pt"},
        {"&Spin:", ControlKind::SpinEdit, "6"},
        {"Text or &list:", ControlKind::EditPopup, "Points"},
        {"Spin &or list:", ControlKind::SpinEditPopup, "3"},
        {"Sli&der:", ControlKind::EditSlider, "75%"},
        {"Spin or slide&r:", ControlKind::SpinEditSlider, "75%"},
    };
    int top = 44;
    for (const auto& [label, kind, text] : kRows) {
        page->add(item(ControlKind::Label, at(kLeft, top + 3, 100, 16), label));
        for (int column = 0; column < 4; ++column) {
            ItemView field =
                item(kind, at(108 + column * kColumn, top, 86, 22), column == 2 ? "" : text);
            field.value = 75;
            field.known = column != 2;
            field.enabled = column != 3;
            if (kind == ControlKind::EditPopup || kind == ControlKind::SpinEditPopup)
                field = listing(field, {"1", "2", "3", "4", "5", "6"}, 2);
            page->add(field, column == 1 ? Pose::RollOver : Pose::Plain);
        }
        top += 32;
    }
    page->add(item(ControlKind::Label, at(kLeft, top + 11, 100, 16), "With the focus:"));
    page->add(item(ControlKind::SpinEdit, at(108, top + 8, 86, 22), "45.000\u00B0"), Pose::Focused);
    page->add(justified(item(ControlKind::Edit, at(206, top + 8, 86, 22), "right"), 2));
    page->add(justified(item(ControlKind::Edit, at(304, top + 8, 86, 22), "centred"), 1));
    return page;
}

std::unique_ptr<Page> lists() {
    auto page =
        std::make_unique<Page>("Lists, sliders and frames", Extent{500, 356}, DialogKind::Modal);
    const auto units = {"Points", "Inches", "Millimetres", "-", "Pixels"};
    const auto popup = [&](int top) {
        return listing(item(ControlKind::PopupList, at(kLeft, top, 120, 24)), units, 2);
    };
    page->add(popup(20)).add(popup(52), Pose::RollOver).add(disabled(popup(84)));
    page->add(listing(item(ControlKind::PopupMenu, at(kLeft, 116, 120, 24), "&More"),
                      {"Copy Axes", "-", "Remove All Layer Axes"}, -1));
    ItemView menu = listing(item(ControlKind::PopupMenu, at(kLeft, 148, 24, 24)), units, -1);
    page->add(styled(menu, 1));
    const auto layers = {"Background", "Ornament", "Leaves", "Petals",   "Outer ring",
                         "Inner ring", "Guides",   "Sketch", "Lettering"};
    page->add(listing(item(ControlKind::ListBox, at(146, 20, 160, 152)), layers, 3));
    page->add(disabled(listing(item(ControlKind::ListBox, at(320, 20, 168, 152)), layers, 1)));
    for (int row = 0; row < 3; ++row) {
        ItemView slider =
            on(item(ControlKind::Slider, at(kLeft, 190 + row * 20, 140, 16)), 30.0 + row * 30);
        slider.enabled = row != 2;
        page->add(slider, row == 1 ? Pose::RollOver : Pose::Plain);
    }
    page->add(on(item(ControlKind::Slider, at(166, 190, 140, 16)), 50), Pose::Focused);
    ItemView wrapped = item(ControlKind::MultiLineLabel, at(320, 188, 168, 62),
                            "A static text of several lines is wrapped at the width of its item "
                            "and ends where the item ends.");
    page->add(wrapped);
    constexpr const char* kFrames[] = {"Black", "Grey", "Sunken", "Raised", "Etched"};
    for (int style = 0; style < 5; ++style) {
        const int left = kLeft + style * kColumn;
        page->add(styled(item(ControlKind::Frame, at(left, 252, 86, 28)), style));
        page->add(
            justified(item(ControlKind::Label, at(left + 4, 258, 78, 16), kFrames[style]), 1));
    }
    page->add(styled(item(ControlKind::Frame, at(kLeft, 288, 184, 56), "Group"), 1));
    page->add(item(ControlKind::CheckBox, at(22, 310, 170, 18), "Inside a named frame"));
    page->addDrawn(item(ControlKind::User, at(206, 288, 282, 60)), drawSamples);
    return page;
}

/// The panel with the plug-in's own pictures: where everything meets at its real size.
std::unique_ptr<Page> panel() {
    auto page = std::make_unique<Page>("Symmetry", Extent{240, 188}, DialogKind::Panel);
    const auto edges = [](int left, int top, int right, int bottom) {
        return Bounds{left, top, right, bottom};
    };
    const auto label = [&](Bounds bounds, const char* text) {
        page->add(item(ControlKind::Label, bounds, text));
    };
    const auto picture = [&](Bounds bounds, PictureIds ids) {
        page->add(pictured(item(ControlKind::Label, bounds), ids));
    };
    page->add(
        on(pictured(item(ControlKind::RadioButton, edges(9, 12, 41, 39)), {2106, 0, 2108, 0})));
    page->add(pictured(item(ControlKind::RadioButton, edges(53, 12, 85, 39)), {2110, 0, 0, 0}));
    page->add(disabled(on(item(ControlKind::CheckBox, edges(95, 19, 149, 33), "Active"))));
    page->add(disabled(item(ControlKind::PushButton, edges(163, 17, 227, 38), "Update")));
    page->add(item(ControlKind::PushButton, edges(12, 50, 128, 71), "Apply to Selection"));
    page->add(item(ControlKind::PushButton, edges(136, 50, 227, 71), "Cancel"));
    page->add(item(ControlKind::Frame, edges(8, 82, 230, 84)));
    picture(edges(9, 88, 34, 113), {2112, 0, 0, 0});
    label(edges(39, 94, 53, 108), "X:");
    page->add(item(ControlKind::Edit, edges(52, 91, 124, 110), "306.000 pt"));
    label(edges(142, 94, 156, 108), "Y:");
    page->add(item(ControlKind::Edit, edges(155, 91, 227, 110), "-396.000 pt"));
    picture(edges(9, 117, 34, 142), {2114, 0, 0, 0});
    page->add(item(ControlKind::Edit, edges(40, 119, 92, 138), "45.000\u00B0"));
    label(edges(108, 122, 188, 136), "Number of Axes:");
    page->add(item(ControlKind::SpinEdit, edges(187, 119, 227, 138), "6"));
    page->add(item(ControlKind::Frame, edges(8, 147, 230, 149)));
    page->add(on(item(ControlKind::CheckBox, edges(12, 159, 29, 173))));
    picture(edges(32, 154, 57, 179), {2116, 0, 2118, 0});
    page->add(on(item(ControlKind::Slider, edges(65, 162, 167, 174)), 40));
    picture(edges(65, 156, 167, 163), {2120, 0, 2122, 0});
    page->add(item(ControlKind::SpinEdit, edges(179, 159, 227, 178), "40%"));
    return page;
}

constexpr PageRow kPages[] = {
    {"buttons", buttons},
    {"fields", fields},
    {"lists", lists},
    {"panel", panel},
};

} // namespace

std::span<const PageRow> pages() { return kPages; }

} // namespace NRDM::gallery
