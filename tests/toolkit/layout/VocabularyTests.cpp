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

TEST_CASE("an element with an image is another type of item, and one without a name may be none") {
    struct Row {
        std::string element;
        std::string type;
    };
    const Row rows[] = {
        {"button()", "ADM Text Push Button Type"},
        {"button(image_id: 1)", "ADM Picture Push Button Type"},
        {"static_text(image_id: 1)", "ADM Text Static Type"},
        {"row(name: \"a\")", ""},
        {"group()", ""},
        {"group(name: \"a\")", "ADM Frame Type"},
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

TEST_CASE("the fuzzer knows every word of the language") {
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
}

TEST_CASE("what the fuzzer starts from is flawless, and an error wherever it is cut off") {
    for (const char* folder : {"fuzz/corpus/layout_fuzz", "resources/layouts"}) {
        for (const auto& file : std::filesystem::directory_iterator(folder)) {
            if (file.path().extension() != ".layout") continue;
            INFO(file.path().string());
            const std::string text = contents(file.path());
            CHECK(written(parse(text).messages) == "");
            for (std::size_t length = text.rfind('}'); length > 0; --length)
                REQUIRE_FALSE(parse(std::string_view(text).substr(0, length)).layout);
        }
    }
}

} // namespace NRDM::layout::tests
