#include "toolkit/ImplCommon/CursorMap.h"

#include <doctest/doctest.h>

#include <string>

using namespace NRDM;

namespace {

std::string inMap(const std::string& content) { return "<prop.map>" + content + "</prop.map>"; }

} // namespace

TEST_CASE("a hot spot is taken whole or not at all") {
    struct Row {
        std::string document;
        int x;
        int y;
    };
    const Row rows[] = {
        {inMap("<kHotSpot x=\"3\" y=\"0\"/>"), 3, 0},
        {inMap("<other/><kHotSpot y=\"255\" x=\"8\"/><kHotSpot x=\"1\" y=\"1\"/>"), 8, 255},
        {"<?xml version=\"1.0\"?><!-- c --><prop.map><kHotSpot x=\"1\" y=\"2\"/></prop.map>", 1, 2},
        {inMap(""), 15, 15},
        {inMap("<kHotSpot x=\"3\"/>"), 15, 15},
        {inMap("<kHotSpot x=\"3\" y=\"-1\"/>"), 15, 15},
        {inMap("<kHotSpot x=\"256\" y=\"3\"/>"), 15, 15},
        {inMap("<kHotSpot x=\"3px\" y=\"3\"/>"), 15, 15},
        {inMap("<kHotSpot x=\"99999999999\" y=\"3\"/>"), 15, 15},
        {"<map><kHotSpot x=\"3\" y=\"3\"/></map>", 15, 15},
        {"<prop.map><kHotSpot x=\"3\" y=\"3\"/>", 15, 15},
        {"", 15, 15},
        {std::string(CursorMap::kMostBytes, ' ') + inMap("<kHotSpot x=\"3\" y=\"3\"/>"), 15, 15},
    };
    for (const auto& row : rows) {
        INFO(row.document.substr(0, 80));
        const CursorMap map = readCursorMap(row.document);
        CHECK(map.hotX == row.x);
        CHECK(map.hotY == row.y);
    }
}

TEST_CASE("the picture that need not be enlarged is shown, the smallest of those") {
    const CursorMap map = readCursorMap(
        inMap("<kPicture scale=\"2\" id=\"3\"/><kPicture scale=\"1\" id=\"1\"/>"
              "<kPicture scale=\"0\" id=\"9\"/><kPicture scale=\"nan\" id=\"9\"/>"
              "<kPicture scale=\"1.5\" id=\"2\"/><kPicture id=\"9\"/><kPicture scale=\"4\"/>"));
    CHECK(map.pictures.size() == 3);
    struct Row {
        double scale;
        int id;
    };
    for (const auto& [scale, id] : {Row{0.5, 1}, {1, 1}, {1.25, 2}, {1.5, 2}, {1.75, 3}, {3, 3}})
        CHECK(pictureFor(map, scale, 77).id == id);
    CHECK(pictureFor(CursorMap{}, 2, 77) == CursorMap::Picture{1, 77});

    std::string many;
    for (int i = 0; i < 100; ++i)
        many += "<kPicture scale=\"1\" id=\"1\"/>";
    CHECK(readCursorMap(inMap(many)).pictures.size() == CursorMap::kMostPictures);
}
