#include "toolkit/ImplCommon/Resources.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

using namespace NRDM;

namespace {

/// The program that runs the tests holds the plug-in's resources itself.
constexpr SPPlatformAccessRef kThisProgram = nullptr;

std::string narrow(const std::u16string& text) { return {text.begin(), text.end()}; }

std::string stringResource(int id) { return narrow(readString(kThisProgram, id).value_or(u"")); }

Bytes bytesOf(const std::vector<unsigned char>& data) { return std::as_bytes(std::span(data)); }

} // namespace

TEST_CASE("strings that are not there are nothing") {
    CHECK(stringResource(18001) == "%s  v%s");
    CHECK(readString(kThisProgram, 18003) == u"\u00A9 %s %s");
    CHECK(stringResource(18009) == "Continue");
    for (const int id : {-1, 0, 17100, 17113, 18000, 18010, 70000})
        CHECK_FALSE(readString(kThisProgram, id).has_value());
}

TEST_CASE("the layout texts are there, with the line ends of the system they are for") {
    for (const int layout : {16001, 16002, 16003}) {
        INFO(layout);
        const Bytes bytes = findResource(kThisProgram, ResourceKind::Layout, layout);
        const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        CHECK(text.starts_with("layout "));
        CHECK(std::ranges::count(text, '\n') > 5);
        for (std::size_t at = text.find('\n'); at != std::string::npos;
             at = text.find('\n', at + 1))
            CHECK(text[at - 1] == '\r');
    }
    CHECK(findResource(kThisProgram, ResourceKind::Layout, 16005).empty());  // the panel has none
    CHECK(findResource(kThisProgram, ResourceKind::Picture, 16001).empty()); // not of that kind
}

TEST_CASE("lines of a menu resource: flags, separators, submenus passed over") {
    const std::vector<unsigned char> menu{0,    0,   2,   0, 9,   9, // version, room in the head
                                          0x9,  0,   5,   0, 'A', 0, 0, 0, // greyed and checked
                                          0x10, 0,   'P', 0, 0,   0,       // a submenu...
                                          0x80, 0,   7,   0, 'X', 0, 0, 0, // ... with one line
                                          0,    0,   0,   0, 0,   0, // a separator in the old form
                                          0,    0x8, 0,   0, 0,   0, // and in the new one
                                          0x80, 0,   6,   0, 'Z', 0, 0, 0}; // the last line
    const auto lines = parseMenu(bytesOf(menu));
    REQUIRE(lines.has_value());
    REQUIRE(lines->size() == 5);
    CHECK((*lines)[0].id == 5);
    CHECK((*lines)[0].checked);
    CHECK_FALSE((*lines)[0].enabled);
    CHECK((*lines)[1].text == u"P");
    CHECK((*lines)[2].separator);
    CHECK((*lines)[3].separator);
    CHECK((*lines)[4].id == 6);

    // Cut off anywhere it is nothing.
    for (std::size_t size = 0; size < menu.size(); ++size)
        CHECK_FALSE(parseMenu(bytesOf(menu).first(size)).has_value());
    // Endless nesting ends.
    std::vector<unsigned char> deep{0, 0, 0, 0};
    for (int i = 0; i < 1000; ++i)
        deep.insert(deep.end(), {0x10, 0, 0, 0});
    CHECK_FALSE(parseMenu(bytesOf(deep)).has_value());
}

TEST_CASE("a table of strings that is cut off has the strings before the cut") {
    std::vector<unsigned char> table{2, 0, 'o', 0, 'k', 0, 1, 0, 'x', 0};
    CHECK(stringInTable(bytesOf(table), 32) == u"ok");
    CHECK(stringInTable(bytesOf(table), 33) == u"x");
    CHECK_FALSE(stringInTable(bytesOf(table), 34).has_value());
    table.pop_back();
    CHECK(stringInTable(bytesOf(table), 32) == u"ok");
    CHECK_FALSE(stringInTable(bytesOf(table), 33).has_value());
}

TEST_CASE("a resource file ends where it is cut off or contradicts itself") {
    const std::vector<unsigned char> good{
        3,    0,    0,   0, 28,  0, 0,   0, // sizes of data and header
        0xFF, 0xFF, 6,   0, 'A', 0, 'B', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, // type 6, name AB
        'x',  'y',  'z', 0};
    ResourceFile file(bytesOf(good));
    const auto resource = file.next();
    REQUIRE(resource.has_value());
    CHECK(resource->type == ResourceName(6));
    CHECK(resource->name == ResourceName(u"AB"));
    CHECK(resource->data.size() == 3);
    CHECK_FALSE(file.next().has_value());
    for (std::size_t size = 0; size + 1 < good.size(); ++size) // the padding may be missing
        CHECK_FALSE(ResourceFile(bytesOf(good).first(size)).next().has_value());
    for (const std::size_t sizeField : {std::size_t{0}, std::size_t{4}}) {
        std::vector<unsigned char> bad = good;
        std::fill_n(bad.begin() + static_cast<std::ptrdiff_t>(sizeField), 4, 0xFF);
        CHECK_FALSE(ResourceFile(bytesOf(bad)).next().has_value());
    }
}
