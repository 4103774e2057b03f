#include "toolkit/gallery/Pages.h"

#include <array>

namespace NRDM::gallery {
namespace {

/// A box of the given width and height with its top left corner there.
Bounds at(int left, int top, int width, int height) {
    return {left, top, left + width, top + height};
}

Bounds below(const Bounds& bounds, int distance) {
    return {bounds.left, bounds.top + distance, bounds.right, bounds.bottom + distance};
}

void addHeadings(Page& page, std::initializer_list<const char*> headings, int left, int width) {
    for (const char* const heading : headings) {
        page.add(kADMTextStaticType, at(left, 14, width - 8, 16), heading);
        left += width;
    }
}

/// A user item shows what a drawer can do.
void drawSamples(ADMItemRef, ADMDrawerRef drawer) {
    const Suites suites;
    const ADMDrawerSuite& suite = *suites.drawer;
    const auto with = [&](void (*draw)(ADMDrawerRef, const ADMRect*), const ADMRect& rect) {
        draw(drawer, &rect);
    };
    const auto write = [&](void (*draw)(ADMDrawerRef, const char*, const ADMRect*),
                           const char* text) {
        const ADMRect line{6, 40, 276, 56};
        draw(drawer, text, &line);
    };
    ADMRect area{};
    suite.GetBoundsRect(drawer, &area);
    suite.SetADMColor(drawer, 13);
    with(suite.FillRect, area);
    with(suite.DrawSunkenRect, {6, 6, 40, 34});
    with(suite.DrawRaisedRect, {46, 6, 80, 34});
    suite.SetADMColor(drawer, 2);
    with(suite.FillOval, {86, 6, 114, 34});
    suite.SetADMColor(drawer, 15);
    with(suite.DrawOval, {120, 6, 148, 34});
    constexpr std::array kTriangle{ADMPoint{168, 6}, ADMPoint{182, 34}, ADMPoint{154, 34}};
    suite.DrawPolygon(drawer, kTriangle.data(), kTriangle.size());
    with(suite.DrawUpArrow, {190, 6, 210, 34});
    with(suite.DrawDownArrow, {212, 6, 232, 34});
    with(suite.DrawLeftArrow, {234, 6, 254, 34});
    with(suite.DrawRightArrow, {256, 6, 276, 34});
    write(suite.DrawTextLeft, "Left");
    write(suite.DrawTextCentered, "Centred");
    write(suite.DrawTextRight, "Right");
    suite.SetADMColor(drawer, 7);
    with(suite.DrawRect, area);
}

constexpr int kColumn = 98;
constexpr int kLeft = 12;

/// Of the columns of most rows.
constexpr Pose kPoses[] = {Pose::Plain, Pose::RollOver, Pose::Pressed, Pose::Plain};
constexpr int kDisabledColumn = 3;

/// A row of boxes that are off, and one that are on.
void addBoxes(Page& page, const char* type, int top, const char* text) {
    for (int column = 0; column < 4; ++column) {
        const Bounds place = at(kLeft + column * kColumn, top, 86, 18);
        for (const bool on : {false, true}) {
            Exhibit& box = page.add(type, below(place, on ? 24 : 0), text).pose(kPoses[column]);
            if (on) box.on();
            if (column == kDisabledColumn) box.disabled();
        }
    }
}

void addPictureButtons(Page& page, int top) {
    int id = 10;
    for (int column = 0; column < 4; ++column, id += 3) {
        const int left = kLeft + column * kColumn;
        for (const bool second : {false, true}) {
            Exhibit& button =
                page.add(kADMPictureRadioButtonType, at(left + (second ? 40 : 0), top, 32, 27), "",
                         id + (second ? 1 : 0))
                    .pictures(second ? PictureIds{2110, 0, 0, 0} : PictureIds{2106, 0, 2108, 0})
                    .pose(kPoses[column]);
            if (second) button.on();
            if (column == kDisabledColumn) button.disabled();
        }
    }
}

std::unique_ptr<Page> buttons() {
    auto page = std::make_unique<Page>("Buttons", Extent{500, 336}, Page::Fonts::OfDialogs);
    addHeadings(*page, {"Normal", "Roll-over", "Pressed", "Disabled", "Default, focus"}, kLeft,
                kColumn);
    const auto button = [&](int column, const char* text, int id = 0) -> Exhibit& {
        return page->add(kADMTextPushButtonType, at(kLeft + column * kColumn, 44, 86, 24), text,
                         id);
    };
    button(0, "&Apply").tip("Apply the symmetry axes to mirror the artwork");
    button(1, "&Update").pose(Pose::RollOver);
    button(2, "Cancel").pose(Pose::Pressed);
    button(3, "Cancel").disabled();
    button(4, "OK", 1); // an id that makes it the default button
    page->add(kADMTextPushButtonType, at(kLeft + 4 * kColumn, 80, 86, 24), "Cancel")
        .pose(Pose::Focused);
    addBoxes(*page, kADMTextCheckBoxType, 84, "&Snap");
    const auto mixed = [&](int column) -> Exhibit& {
        return page->add(kADMTextCheckBoxType, at(kLeft + column * kColumn, 132, 96, 18), "Mixed")
            .unknown();
    };
    mixed(0);
    mixed(kDisabledColumn).disabled();
    addBoxes(*page, kADMTextRadioButtonType, 168, "Every layer");
    addPictureButtons(*page, 232);
    page->add(kADMFrameType, at(kLeft, 276, 476, 2));
    page->add(kADMTextStaticType, at(kLeft, 288, 476, 16),
              "A label of forty-four characters stays whole here");
    page->add(kADMTextStaticType, at(kLeft, 308, 300, 16), "A disabled label").disabled();
    return page;
}

void leave(Exhibit&) {}
void fillPoints(Exhibit& field) { field.number(128.5F, kADMPointUnits, 3); }
void fillCount(Exhibit& field) { field.number(6); }
void fillThree(Exhibit& field) { field.number(3); }
void fillPercent(Exhibit& field) { field.percent(75); }

std::unique_ptr<Page> fields() {
    auto page = std::make_unique<Page>("Fields", Extent{500, 330}, Page::Fonts::OfDialogs);
    addHeadings(*page, {"Normal", "Roll-over", "Unknown", "Disabled"}, 108, kColumn);
    struct Row {
        const char* label;
        const char* type;
        const char* text;
        void (*fill)(Exhibit&);
    };
    constexpr Row kRows[] = {
        {"Te&xt:", kADMTextEditType, "Untitled", leave},
        {"&Number:", kADMTextEditType, "", fillPoints},
        {"&Spin:", kADMSpinEditType, "", fillCount},
        {"Text or &list:", kADMTextEditPopupType, "Points", leave},
        {"Spin &or list:", kADMSpinEditPopupType, "", fillThree},
        {"Sli&der:", kADMPopupControlType, "", fillPercent},
        {"Spin or slide&r:", kADMPopupSpinEditControlType, "", fillPercent},
    };
    int top = 44;
    for (const auto& [label, type, text, fill] : kRows) {
        page->add(kADMTextStaticType, at(kLeft, top + 3, 100, 16), label);
        for (int column = 0; column < 4; ++column) {
            Exhibit& field =
                page->add(type, at(108 + column * kColumn, top, 86, 22), column == 2 ? "" : text);
            fill(field);
            if (type == kADMTextEditPopupType || type == kADMSpinEditPopupType)
                field.entries({"1", "2", "3", "4", "5", "6"}, 2);
            if (column == 1) field.pose(Pose::RollOver);
            if (column == 2) field.unknown();
            if (column == kDisabledColumn) field.disabled();
        }
        top += 32;
    }
    page->add(kADMTextStaticType, at(kLeft, top + 11, 100, 16), "With the focus:");
    page->add(kADMSpinEditType, at(108, top + 8, 86, 22))
        .number(45, kADMDegreeUnits, 3)
        .pose(Pose::Focused);
    page->add(kADMTextEditType, at(206, top + 8, 86, 22), "right").justify(2);
    page->add(kADMTextEditType, at(304, top + 8, 86, 22), "centred").justify(1);
    return page;
}

void addPopups(Page& page) {
    const auto units = {"Points", "Inches", "Millimetres", "-", "Pixels"};
    const auto popup = [&](int top) -> Exhibit& {
        return page.add(kADMPopupListType, at(kLeft, top, 120, 24)).entries(units, 2);
    };
    popup(20);
    popup(52).pose(Pose::RollOver);
    popup(84).disabled();
    page.add(kADMPopupMenuType, at(kLeft, 116, 120, 24), "&More")
        .entries({"Copy Axes", "-", "Remove All Layer Axes"}, -1);
    page.add(kADMPopupMenuType, at(kLeft, 148, 24, 24)).entries(units, -1).style(1);
    const auto layers = {"Background", "Ornament", "Leaves", "Petals",   "Outer ring",
                         "Inner ring", "Guides",   "Sketch", "Lettering"};
    page.add(kADMListBoxType, at(146, 20, 160, 152)).entries(layers, 3);
    page.add(kADMListBoxType, at(320, 20, 168, 152)).entries(layers, 1).disabled();
}

void addSliders(Page& page) {
    page.add(kADMSliderType, at(kLeft, 190, 140, 16)).percent(30);
    page.add(kADMSliderType, at(kLeft, 210, 140, 16)).percent(60).pose(Pose::RollOver);
    page.add(kADMSliderType, at(kLeft, 230, 140, 16)).percent(90).disabled();
    page.add(kADMSliderType, at(166, 190, 140, 16)).percent(50).pose(Pose::Focused);
}

std::unique_ptr<Page> lists() {
    auto page = std::make_unique<Page>("Lists, sliders and frames", Extent{500, 356},
                                       Page::Fonts::OfDialogs);
    addPopups(*page);
    addSliders(*page);
    page->add(kADMTextStaticMultiLineType, at(320, 188, 168, 62),
              "A static text of several lines is wrapped at the width of its item "
              "and ends where the item ends.");
    constexpr const char* kFrames[] = {"Black", "Grey", "Sunken", "Raised", "Etched"};
    for (int style = 0; style < 5; ++style) {
        const int left = kLeft + style * kColumn;
        page->add(kADMFrameType, at(left, 252, 86, 28)).style(style);
        page->add(kADMTextStaticType, at(left + 4, 258, 78, 16), kFrames[style]).justify(1);
    }
    page->add(kADMFrameType, at(kLeft, 288, 184, 56), "Group").style(1);
    page->add(kADMTextCheckBoxType, at(22, 310, 170, 18), "Inside a named frame");
    page->add(kADMUserType, at(206, 288, 282, 60)).drawn(drawSamples);
    return page;
}

constexpr PageRow kPages[] = {
    {"buttons", buttons},
    {"fields", fields},
    {"lists", lists},
};

} // namespace

std::span<const PageRow> pages() { return kPages; }

} // namespace NRDM::gallery
