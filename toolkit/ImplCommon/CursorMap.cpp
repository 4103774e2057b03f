#include "toolkit/ImplCommon/CursorMap.h"

#include <tinyxml2.h>

#include <algorithm>
#include <charconv>
#include <optional>

namespace NRDM {
namespace {

constexpr double kMostScale = 16;

/// The whole of an attribute as a number. The parser's own numbers would follow the user's locale.
template <typename Number>
std::optional<Number> number(const tinyxml2::XMLElement& element, const char* attribute) {
    const char* const text = element.Attribute(attribute);
    if (text == nullptr) return std::nullopt;
    const std::string_view digits(text);
    Number value{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    return value;
}

/// A point counts whole or not at all.
void readHotSpot(const tinyxml2::XMLElement& element, CursorMap& map) {
    const auto isInside = [](std::optional<int> at) {
        return at && *at >= 0 && *at < CursorMap::kLargestSide;
    };
    const auto x = number<int>(element, "x");
    const auto y = number<int>(element, "y");
    if (!isInside(x) || !isInside(y)) return;
    map.hotX = *x;
    map.hotY = *y;
}

void readPicture(const tinyxml2::XMLElement& element, CursorMap& map) {
    const auto scale = number<double>(element, "scale");
    const auto id = number<int>(element, "id");
    if (!scale || !id || !(*scale > 0 && *scale <= kMostScale) || *id <= 0) return;
    if (map.pictures.size() < CursorMap::kMostPictures) map.pictures.push_back({*scale, *id});
}

} // namespace

CursorMap readCursorMap(std::string_view document) {
    CursorMap map;
    tinyxml2::XMLDocument tree;
    if (document.size() > CursorMap::kMostBytes ||
        tree.Parse(document.data(), document.size()) != tinyxml2::XML_SUCCESS)
        return map;
    const tinyxml2::XMLElement* const root = tree.FirstChildElement("prop.map");
    if (root == nullptr) return map;
    if (const auto* const hotSpot = root->FirstChildElement("kHotSpot")) readHotSpot(*hotSpot, map);
    for (const auto* picture = root->FirstChildElement("kPicture"); picture != nullptr;
         picture = picture->NextSiblingElement("kPicture"))
        readPicture(*picture, map);
    return map;
}

CursorMap::Picture pictureFor(const CursorMap& map, double scale, int plain) {
    if (map.pictures.empty()) return {1, plain};
    const auto isBetter = [scale](const CursorMap::Picture& a, const CursorMap::Picture& b) {
        const bool aSuffices = a.scale >= scale;
        if (aSuffices != (b.scale >= scale)) return aSuffices;
        return aSuffices ? a.scale < b.scale : a.scale > b.scale;
    };
    return *std::ranges::min_element(map.pictures, isBetter);
}

} // namespace NRDM
