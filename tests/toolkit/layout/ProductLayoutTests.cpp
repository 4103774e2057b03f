#include "tests/toolkit/layout/LayoutTest.h"

#include <doctest/doctest.h>

#include <fstream>
#include <iterator>

namespace NRDM::layout::tests {
namespace {

const std::string kFolder = "resources/layouts/";

std::string textOfFile(const std::string& name) {
    std::ifstream file(kFolder + name, std::ios::binary);
    REQUIRE_MESSAGE(file, "cannot read " << name << " below the working directory");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The items by id, one a line, `3 16,16 194x18`; a container's line begins with `-`.
std::string byId(const Placement& placement) {
    std::ostringstream out;
    for (const Placed& placed : placement) {
        const auto id = integerOf(*placed.element, Key::ItemId);
        out << (id ? std::to_string(*id) : "-") << ' ' << written(placed.bounds) << '\n';
    }
    return out.str();
}

struct Product {
    std::string file;
    std::string name;
    std::string title;
    Baselines baselines;
    std::string placement;
};

const Product kProducts[] = {
    {"16001-preferences.layout", "FTPreferences", "Facetta Preferences", Baselines::No,
     "- 0,0 268x180\n"
     "3 16,16 194x18\n"
     "4 16,44 236x18\n"
     "5 16,72 170x18\n"
     "6 16,100 200x18\n"
     "- 32,128 204x36\n"
     "2 32,140 90x24\n"
     "1 146,140 90x24\n"},
    {"16002-edit-symmetry-axes.layout", "KdEditSymmetryAxes", "Edit Symmetry Axes", Baselines::No,
     "- 0,0 374x198\n"
     "- 20,20 334x22\n"
     "- 20,20 152x22\n"
     "- 20,20 152x22\n"
     "3 20,20 54x16\n"
     "4 76,20 96x22\n"
     "- 202,20 152x22\n"
     "- 202,20 152x22\n"
     "5 202,20 54x16\n"
     "6 258,20 96x22\n"
     "- 20,60 178x22\n"
     "7 20,60 36x16\n"
     "8 58,60 96x22\n"
     "9 156,60 42x16\n"
     "- 20,100 152x22\n"
     "10 20,100 90x16\n"
     "11 112,100 60x22\n"
     "- 85,140 204x36\n"
     "2 85,152 90x24\n"
     "1 199,152 90x24\n"},
    {"16002-edit-symmetry-axes.layout", "KdEditSymmetryAxes", "Edit Symmetry Axes", Baselines::Yes,
     "- 0,0 374x198\n"
     "- 20,20 334x22\n"
     "- 20,20 152x22\n"
     "- 20,20 152x22\n"
     "3 20,23 54x16\n"
     "4 76,20 96x22\n"
     "- 202,20 152x22\n"
     "- 202,20 152x22\n"
     "5 202,23 54x16\n"
     "6 258,20 96x22\n"
     "- 20,60 178x22\n"
     "7 20,63 36x16\n"
     "8 58,60 96x22\n"
     "9 156,63 42x16\n"
     "- 20,100 152x22\n"
     "10 20,103 90x16\n"
     "11 112,100 60x22\n"
     "- 85,140 204x36\n"
     "2 85,152 90x24\n"
     "1 199,152 90x24\n"},
    {"16003-about.layout", "FacettaAbout", "Facetta About", Baselines::Yes,
     "- 0,0 632x536\n"
     "4 16,16 600x468\n"
     "- 88,496 456x24\n"
     "2 88,496 96x24\n"
     "5 208,496 96x24\n"
     "3 328,496 96x24\n"
     "1 448,496 96x24\n"},
};

} // namespace

TEST_CASE("the product's layouts are placed as designed") {
    for (const Product& product : kProducts) {
        INFO(product.file);
        const Parsed parsed = parse(textOfFile(product.file));
        CHECK(written(parsed.messages) == "");
        REQUIRE(parsed.layout);
        CHECK(parsed.layout->name == product.name);
        CHECK(textOf(parsed.layout->dialog, Key::Name) == product.title);
        CHECK(byId(place(*parsed.layout, PlainSizes(product.baselines))) == product.placement);
    }
}

TEST_CASE("the product's preferences stand the same with baselines and without") {
    const Layout layout = load(textOfFile(kProducts[0].file), "preferences");
    CHECK(byId(place(layout, PlainSizes(Baselines::Yes))) == kProducts[0].placement);
}

TEST_CASE("the product's layouts keep CR LF, the line ends of text resources") {
    for (const Product& product : kProducts) {
        INFO(product.file);
        const std::string text = textOfFile(product.file);
        char before = '\0';
        for (const char c : text) {
            if ((c == '\n') != (before == '\r')) FAIL("a lone CR or LF");
            before = c;
        }
        CHECK(text.ends_with("\r\n"));
    }
}

TEST_CASE("any part of a product's layout that is cut off is an error, never a crash") {
    for (const Product& product : kProducts) {
        const std::string text = textOfFile(product.file);
        const std::size_t whole = text.rfind('}');
        for (std::size_t length = 0; length <= whole; ++length) {
            INFO(product.file << " cut at byte " << length);
            REQUIRE_FALSE(parse(std::string_view(text).substr(0, length)).layout);
        }
    }
}

} // namespace NRDM::layout::tests
