#include "tests/toolkit/layout/LayoutTest.h"
#include "toolkit/layout/Nodes.h"

#include <doctest/doctest.h>

namespace NRDM::layout::tests {
namespace {

/// A button of that size.
std::string button(int width, int height = 20, const char* attributes = "") {
    return "button(width: " + std::to_string(width) + ", height: " + std::to_string(height) +
           (*attributes ? ", " : "") + attributes + ");";
}

std::string button(int width, const char* attributes) { return button(width, 20, attributes); }

std::string item(const char* kind, int width, int height, const char* guides) {
    return std::string(kind) + "(width: " + std::to_string(width) +
           ", height: " + std::to_string(height) + ", " + guides + ");";
}

std::string row(const char* attributes, const std::string& elements) {
    return "row(" + std::string(attributes) + ") {" + elements + "}";
}

std::string column(const char* attributes, const std::string& elements) {
    return "column(" + std::string(attributes) + ") {" + elements + "}";
}

std::string label() { return item("static_text", 50, 16, "baseline: 13"); }
std::string field() { return item("edit_text", 80, 22, "baseline: 16"); }

std::string twoColumns(const char* attributes) {
    return dialog("placement: place_row, spacing: 20",
                  column(attributes, label() + label()) + column(attributes, field() + field()));
}

struct Row {
    std::string what;
    std::string text;
    std::string rectangles;
};

void check(std::span<const Row> rows) {
    for (const auto& row : rows) {
        INFO(row.what);
        INFO(row.text);
        CHECK(placed(row.text) == row.rectangles);
    }
}

} // namespace

TEST_CASE("spacing, margins and frames") {
    const Row rows[] = {
        {"10 pixels between neighbours unless said otherwise",
         dialog("placement: place_row", button(90) + button(90) + button(90)),
         "290x20: 0,0 90x20; 100,0 90x20; 200,0 90x20"},
        {"spacing", dialog("placement: place_row, spacing: 24", button(90) + button(90)),
         "204x20: 0,0 90x20; 114,0 90x20"},
        {"a list of gaps; the last one repeats",
         dialog("placement: place_row, spacing: [4, 30]",
                button(10) + button(10) + button(10) + button(10) + button(10)),
         "144x20: 0,0 10x20; 14,0 10x20; 54,0 10x20; 94,0 10x20; 134,0 10x20"},
        {"an empty list is no gap",
         dialog("placement: place_row, spacing: []", button(10) + button(10)),
         "20x20: 0,0 10x20; 10,0 10x20"},
        {"a row of buttons below a wide item",
         dialog("margin: 16",
                button(236, 18) + row("margin_top: 12, spacing: 24, horizontal: align_center",
                                      button(90, 24) + button(90, 24))),
         "268x96: 16,16 236x18; 32,44 204x36; 32,56 90x24; 146,56 90x24"},
        {"a frame adds to the margin; its side counts above it",
         dialog("", "group(frame: 3, frame_top: 20, margin: 5) {" + button(40) + "}"),
         "56x53: 0,0 56x53; 8,25 40x20"},
        {"an empty row takes its margins and both gaps",
         dialog("margin: 2, spacing: 10", button(20) + row("margin: 3", "") + button(20)),
         "24x70: 2,2 20x20; 2,32 6x6; 2,48 20x20"},
        {"margins top, left, bottom, right", dialog("margin: [1, 2, 3, 4]", button(10)),
         "16x24: 2,1 10x20"},
        {"fractions are cut, also of the side that is written first",
         dialog("margin_left: 4.9, margin: 2.9", button(10)), "16x24: 4,2 10x20"},
        {"a container's width is a minimum", dialog("", row("width: 300", button(40))),
         "300x20: 0,0 300x20; 0,0 40x20"},
        {"and never less than its content", dialog("", row("width: 10", button(40))),
         "40x20: 0,0 40x20; 0,0 40x20"},
    };
    check(rows);
}

TEST_CASE("alignment") {
    const Row rows[] = {
        {"children take the container's alignment",
         dialog("spacing: 24, child_horizontal: align_center",
                button(90) + button(120) + button(61)),
         "120x108: 15,0 90x20; 0,44 120x20; 29,88 61x20"},
        {"centred on odd widths",
         dialog("width: 150, margin: 10, spacing: 6, child_horizontal: align_center",
                button(50) + button(81) + button(30)),
         "150x92: 50,10 50x20; 34,36 81x20; 60,62 30x20"},
        {"centred heights",
         dialog("placement: place_row, spacing: 5, child_vertical: align_center",
                button(30) + button(30, 31) + button(30, 10)),
         "100x31: 0,5 30x20; 35,0 30x31; 70,10 30x10"},
        {"indent counts from the edge, and not at all when centred",
         dialog("margin: 5", button(40, "indent: 12") +
                                 button(40, "horizontal: align_right, indent: 12") +
                                 button(40, "horizontal: align_center, indent: 12") + button(100)),
         "110x120: 17,5 40x20; 53,35 40x20; 35,65 40x20; 5,95 100x20"},
        {"indent goes down in a row",
         dialog("placement: place_row, spacing: 10", button(40, "indent: 12") + button(40)),
         "90x32: 0,12 40x20; 50,0 40x20"},
        {"a filled row with its buttons at the far end",
         dialog("spacing: 5", button(300) + row("horizontal: align_fill, spacing: 24",
                                                button(90, "horizontal: align_right") +
                                                    button(90, "horizontal: align_right"))),
         "300x45: 0,0 300x20; 0,25 300x20; 96,25 90x20; 210,25 90x20"},
        {"overlay",
         dialog("placement: place_overlay, margin: 5", button(40) +
                                                           button(80, "horizontal: align_right") +
                                                           button(60, "horizontal: align_fill")),
         "90x30: 5,5 40x20; 5,5 80x20; 5,5 80x20"},
        {"a container's alignment goes to its children and no further",
         dialog("spacing: 5, child_horizontal: align_right",
                button(100) + column("spacing: 5", button(60) + button(20))),
         "100x70: 0,0 100x20; 40,25 60x45; 40,25 60x20; 40,50 20x20"},
        {"children cannot look for their default in a default",
         dialog("child_horizontal: align_default", button(100) + button(60)),
         "100x50: 0,0 100x20; 0,30 60x20"},
        {"a filled item at the far end across its container sticks out of it",
         dialog("", button(200) + button(40, "horizontal: align_right_fill")),
         "200x50: 0,0 200x20; 160,30 200x20"},
        {"and with an indent both end and length give way",
         dialog("", button(200) + button(40, "horizontal: align_right_fill, indent: 12")),
         "200x50: 0,0 200x20; 148,30 188x20"},
        {"a container placed as a leaf has no eye for its children",
         dialog("", button(10) + row("placement: place_leaf", button(40) + button(30))),
         "10x30: 0,0 10x20; 0,30 0x0; 0,30 40x20; 0,30 30x20"},
        {"an item is a leaf whatever it says",
         dialog("", "listbox(placement: place_row, width: 9, height: 8) { entry(name: \"a\"); }"),
         "9x8: 0,0 9x8"},
        {"a popup cluster is a column that begins with its popup",
         dialog("", "popup_cluster(popup_item_id: 7, popup_item_width: 60, spacing: 4) "
                    "{ entry(name: \"a\"); " +
                        button(50) + "}"),
         "60x24: 0,0 60x24; 0,0 60x0; 0,4 50x20"},
    };
    check(rows);
}

TEST_CASE("spare room is shared out") {
    const char* all = "width: 180, placement: place_row, child_horizontal: ";
    const std::string three = button(50) + button(50) + button(50);
    const Row rows[] = {
        {"among fills, the last getting what does not divide",
         dialog(std::string(all) + "align_fill", three),
         "180x20: 0,0 53x20; 63,0 53x20; 126,0 54x20"},
        {"around centred ones", dialog(std::string(all) + "align_center", three),
         "180x20: 1,0 50x20; 64,0 50x20; 128,0 50x20"},
        {"in proportion: none ahead of the first, all ahead of the last",
         dialog("width: 121, placement: place_row, spacing: 4, "
                "child_horizontal: align_proportional",
                button(10) + button(20) + button(30) + button(15)),
         "121x20: 0,0 10x20; 24,0 20x20; 60,0 30x20; 106,0 15x20"},
        {"a lone proportional one has no end to be near to",
         dialog("width: 50, placement: place_row", button(10, "horizontal: align_proportional")),
         "50x20: 0,0 10x20"},
        {"halves, 7/10 of 45 here, are rounded up",
         dialog("width: 60, placement: place_row, spacing: 0",
                button(7) + button(5, "horizontal: align_proportional") + button(3)),
         "60x20: 0,0 7x20; 39,0 5x20; 57,0 3x20"},
        {"the far end is served first",
         dialog("width: 101, placement: place_row, spacing: 4, margin: 3",
                button(10) + button(10, "horizontal: align_center") +
                    button(10, "horizontal: align_right_fill") +
                    button(10, "horizontal: align_right")),
         "101x26: 3,3 10x20; 28,3 10x20; 53,3 31x20; 88,3 10x20"},
    };
    check(rows);
}

TEST_CASE("guides meet") {
    const auto edit = [](int width, const char* guides) {
        return item("edit_text", width, 22, guides);
    };
    const auto text = [](const char* guides) { return item("static_text", 60, 16, guides); };
    const auto input = [](const char* guides) { return item("spin_edit", 96, 22, guides); };
    const Row rows[] = {
        {"the ends of labels in a column",
         dialog("margin: 10, spacing: 6", edit(140, "hsnap: 40") + edit(165, "hsnap: 65") +
                                              edit(120, "hsnap: 20") + button(60)),
         "185x124: 35,10 140x22; 10,38 165x22; 55,66 120x22; 10,94 60x20"},
        {"across nested containers",
         dialog("margin: 10, spacing: 6",
                row("spacing: 3",
                    column("spacing: 2", edit(100, "hsnap: 30") + edit(90, "hsnap: 20")) +
                        button(20)) +
                    edit(120, "hsnap: 50")),
         "163x94: 10,10 143x46; 10,10 120x46; 30,10 100x22; 40,34 90x22; 133,10 20x20; "
         "10,62 120x22"},
        {"line by line in two columns", twoColumns("spacing: 6"),
         "150x50: 0,0 50x47; 0,3 50x16; 0,31 50x16; 70,0 80x50; 70,0 80x22; 70,28 80x22"},
        {"unless the columns stop them", twoColumns("spacing: 6, suppress_guide_propagation: yes"),
         "150x50: 0,0 50x38; 0,0 50x16; 0,22 50x16; 70,0 80x50; 70,0 80x22; 70,28 80x22"},
        {"baselines in a row",
         dialog("placement: place_row, spacing: 2",
                text("baseline: 13") + input("baseline: 16") + button(80, 30, "baseline: 20")),
         "240x30: 0,7 60x16; 62,4 96x22; 160,0 80x30"},
        {"and the row grows where it must",
         dialog("placement: place_row, spacing: 0", item("static_text", 10, 20, "baseline: 18") +
                                                        item("edit_text", 10, 30, "baseline: 10")),
         "20x38: 0,0 10x20; 10,8 10x30"},
        {"from the bottom, where the row grows too",
         dialog("placement: place_row, spacing: 0, child_vertical: align_bottom",
                item("static_text", 10, 20, "baseline: 2") +
                    item("edit_text", 10, 30, "baseline: 20")),
         "20x38: 0,18 10x20; 10,0 10x30"},
        {"into a row that fills toward the far end",
         dialog("", row("horizontal: align_right_fill", edit(100, "hsnap: 30")) +
                        edit(120, "hsnap: 50")),
         "120x54: 0,0 120x22; 20,0 100x22; 0,32 120x22"},
        {"from the far end into a row that fills, which makes room",
         dialog("child_horizontal: align_right",
                row("horizontal: align_fill", edit(100, "horizontal: align_right, hsnap: 30")) +
                    edit(120, "hsnap: 20")),
         "130x54: 0,0 130x22; 0,0 100x22; 10,32 120x22"},
        {"one line for all items of a row inside a column",
         dialog("placement: place_row, spacing: 20",
                column("spacing: 6", row("spacing: 2", label() + label()) + label()) +
                    column("spacing: 6", field() + field())),
         "202x50: 0,0 102x47; 0,0 102x19; 0,3 50x16; 52,3 50x16; 0,31 50x16; 122,0 80x50; "
         "122,0 80x22; 122,28 80x22"},
        {"a negative baseline is none",
         dialog("placement: place_row, spacing: 2", text("baseline: -1") + input("baseline: 16")),
         "158x22: 0,0 60x16; 62,0 96x22"},
        {"further guides are moved to the first item's",
         dialog("spacing: 4", edit(100, "hsnap: [30, 80]") + edit(110, "hsnap: [50, 90]")),
         "120x48: 20,0 100x22; 0,26 110x22"},
        {"from the far end along a column, what lies behind is taken off twice",
         dialog("height: 56, margin_bottom: 10, child_vertical: align_bottom",
                item("static_text", 60, 16, "baseline: 13")),
         "60x56: 0,20 60x16"},
        {"and so in columns that line up from the bottom: only their last lines meet",
         dialog("placement: place_row, spacing: 0, child_vertical: align_bottom",
                column("spacing: 6, child_vertical: align_bottom", label() + label()) +
                    column("spacing: 6, child_vertical: align_bottom", field() + field())),
         "130x50: 0,3 50x47; 0,-22 50x16; 0,31 50x16; 50,0 80x50; 50,-28 80x22; 50,28 80x22"},
    };
    check(rows);
}

TEST_CASE("an item tells where its guides have come to lie") {
    const auto guidesOf = [](const char* attributes) {
        const std::string items = item("edit_text", 100, 22, "hsnap: [30, 80]") +
                                  item("edit_text", 110, 22, "hsnap: [50, 90]");
        const Layout layout = load(dialog(attributes, items), "test");
        MeasuredLayout tree = measured(layout, PlainSizes());
        layOutBothAxes(tree, PlainSizes());
        return std::vector{tree.nodes[1].on(Axis::X).guides, tree.nodes[2].on(Axis::X).guides};
    };
    using Guides = std::vector<std::vector<engine::Length>>;
    CHECK(guidesOf("") == Guides{{30, 70}, {50, 90}});
    CHECK(guidesOf("child_horizontal: align_right") == Guides{{30, 80}, {40, 90}});
}

TEST_CASE("what is drawn outside its rectangle moves nothing and overhangs the containers") {
    struct OutsetRow {
        std::string what;
        std::string text;
        Outset ofDialog;
    };
    const OutsetRow rows[] = {
        {"kept inside the margin", dialog("margin: 4", button(40, "outset: 4")), {}},
        {"half outside it", dialog("margin: 2", button(40, "outset: 4")), {2, 2, 2, 2}},
        {"a side of its own",
         dialog("placement: place_row", button(40, "outset: [1, 2, 3, 4]") + button(40)),
         {2, 1, 0, 3}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        const Layout layout = load(row.text, "test");
        const Placement placement = place(layout, PlainSizes());
        CHECK(placement.front().outset == row.ofDialog);
    }
}

TEST_CASE("an item whose height depends on its width is asked again once the width is known") {
    /// 12 pixels a line, as many lines as 240 pixels of text take.
    class Wrapping : public PlainSizes {
        int heightAt(const Element&, int width, int) const override { return 12 * (240 / width); }
    };
    const std::string text = "static_text(width: 60, horizontal: align_fill); " + button(120);
    CHECK(placed(dialog("spacing: 0", text), Wrapping()) == "120x44: 0,0 120x24; 0,24 120x20");
}

TEST_CASE("a group makes room for its name, unless its frame says how much") {
    class Titled : public PlainSizes {
        int titleHeight(const Element&) const override { return 18; }
    };
    const auto group = [](const char* attributes) {
        return placed(dialog("", std::string("group(") + attributes + ") {" + button(40) + "}"),
                      Titled());
    };
    CHECK(group("frame: 2, name: \"Origin\"") == "44x40: 0,0 44x40; 2,18 40x20");
    CHECK(group("frame_top: 5, name: \"Origin\"") == "40x25: 0,0 40x25; 0,5 40x20");
    CHECK(group("frame: 2") == "44x24: 0,0 44x24; 2,2 40x20");
}

TEST_CASE("what no window can hold is an error at the element, not a wrong number") {
    const std::string wide =
        dialog("placement: place_row", button(16383) + "\n" + button(16383) + "\n" + button(16383));
    CHECK_THROWS_WITH_AS(static_cast<void>(place(load(wide, "test"), PlainSizes())),
                         "Test(1,20): error: this element comes out farther than 32767 pixels",
                         Error);
}

} // namespace NRDM::layout::tests
