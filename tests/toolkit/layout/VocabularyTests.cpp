#include "tests/toolkit/layout/LayoutTest.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace NRDM::layout::tests {
namespace {

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    REQUIRE_MESSAGE(stream, "cannot read " << file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST_CASE("every key is taken, and every constant has its value") {
    const Parsed parsed = parse(R"(layout All { constant:
        near: align_left == 0 && align_top == 0 && align_right == 1 && align_bottom == 1;
        middle: align_center == 2 && align_proportional == 3 && align_default == 6;
        fills: align_fill == 4 && align_left_fill == 4 && align_top_fill == 4 &&
               align_right_fill == 5 && align_bottom_fill == 5;
        places: place_leaf == 0 && place_column == 1 && place_row == 2 && place_overlay == 3;
        spaces: gLargeSpace == 10 && gSmallSpace == 4 && gNumericStyle == 2;
        fonts: gADMDialogFont == 1 && gADMPaletteFont == 2 && gADMBoldDialogFont == 5 &&
               gADMBoldPaletteFont == 6;
        units: gADMNoUnits == 0 && gADMPointUnits == 1 && gADMInchUnits == 2 &&
               gADMMillimeterUnits == 3 && gADMCentimeterUnits == 4 && gADMPicaUnits == 5 &&
               gADMPercentUnits == 6 && gADMDegreeUnits == 7 && gADMQUnits == 8;
        sides: gADMLeftJustify == 0 && gADMCenterJustify == 1 && gADMRightJustify == 2;
        truths: yes && !no;
        view dialog(enabled: near && middle && fills && places && spaces && fonts && units &&
                             sides && truths) {
            row(name: "a", horizontal: 0, child_horizontal: 1, vertical: 2, child_vertical: 3,
                placement: 3, spacing: 1, indent: 2, margin: 3, margin_left: 4, margin_right: 5,
                margin_top: 6, margin_bottom: 7, frame: 8, frame_left: 9, frame_right: 10,
                frame_top: 11, frame_bottom: 12, outset: 13, outset_left: 14, outset_right: 15,
                outset_top: 16, outset_bottom: 17, width: 18, height: 19, baseline: 20, vsnap: 21,
                hsnap: 22, suppress_guide_propagation: yes, font: 1, style: 2, menu_id: 700,
                item_id: 3, popup_item_id: 4, popup_item_width: 5, entry_id: 6, min_value: 0.5,
                max_value: 1.5, value: 1, large_increment: 0.25, small_increment: 0.125, units: 8,
                precision: 3, enabled: no, image_id: 7, selected_image_id: 8,
                disabled_image_id: 9, rollover_image_id: 10, separator: no, visible: no,
                justify: 2);
        }
    })");
    CHECK(written(parsed.messages) == "");
    REQUIRE(parsed.layout);
    CHECK(truthOf(parsed.layout->dialog, Key::Enabled) == true);
    CHECK(parsed.layout->dialog.children.front().attributes.size() == keys().size());
}

TEST_CASE("elements are created as the types of items they name") {
    struct Row {
        std::string element;
        std::string type;
    };
    const Row rows[] = {
        {"button()", "ADM Text Push Button Type"},
        {"button(image_id: 1)", "ADM Picture Push Button Type"},
        {"checkbox()", "ADM Text Check Box Type"},
        {"checkbox(image_id: 1)", "ADM Picture Check Box Button Type"},
        {"radio_button()", "ADM Text Radio Button Type"},
        {"radio_button(image_id: 1)", "ADM Picture Radio Button Type"},
        {"static_text(image_id: 1)", "ADM Text Static Type"},
        {"static_image()", "ADM Picture Static Type"},
        {"slider()", "ADM Slider Type"},
        {"edit_text()", "ADM Text Edit Type"},
        {"edit_slider()", "ADM Popup Control Type"},
        {"edit_popup()", "ADM Text Edit Popup Type"},
        {"popup()", "ADM Popup List Type"},
        {"spin_edit()", "ADM Spin Edit Type"},
        {"spin_edit_slider()", "ADM Popup Spin Edit Control Type"},
        {"spin_edit_popup()", "ADM Spin Edit Popup Type"},
        {"popup_menu()", "ADM Popup Menu Type"},
        {"listbox()", "ADM List Box Type"},
        {"user_type()", "ADM User Type"},
        {"row(name: \"a\")", ""},
        {"group()", ""},
        {"group(name: \"a\")", "ADM Frame Type"},
        {"cluster(name: \"a\")", "ADM Frame Type"},
    };
    for (const auto& row : rows) {
        INFO(row.element);
        const Layout layout = load(dialog("", row.element + ';'), "test");
        CHECK(itemTypeOf(layout.dialog.children.front()) == row.type);
    }
}

TEST_CASE("a popup cluster gives its popup the id, the width and the entries") {
    const Layout cluster = load(dialog("", "popup_cluster(popup_item_id: 7, popup_item_width: 60) "
                                           "{ button(); entry(entry_id: 1); row(); }"),
                                "test");
    const Layout column = load(dialog("", "popup_cluster() { popup(item_id: 7, width: 60) "
                                          "{ entry(entry_id: 1); } button(); row(); }"),
                               "test");
    CHECK(print(cluster) == print(column));
}

TEST_CASE("the fuzzer knows every word of the language, and what it starts from is flawless") {
    const std::string dictionary = contents("fuzz/layout_fuzz.dict");
    const auto knows = [&dictionary](std::string_view word) {
        return dictionary.find("\n\"" + std::string(word) + "\"\n") != std::string::npos;
    };
    for (const KindRecord& kind : kinds())
        CHECK_MESSAGE(knows(kind.name), kind.name);
    for (const KeyRecord& key : keys())
        CHECK_MESSAGE(knows(key.name), key.name);
    for (const ConstantRecord& constant : constants())
        CHECK_MESSAGE(knows(constant.name), constant.name);

    for (const char* folder : {"fuzz/corpus/layout_fuzz", "resources/layouts"}) {
        for (const auto& file : std::filesystem::directory_iterator(folder)) {
            if (file.path().extension() != ".layout") continue;
            INFO(file.path().string());
            CHECK(written(parse(contents(file.path())).messages) == "");
        }
    }
}

} // namespace NRDM::layout::tests
