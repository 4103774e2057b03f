#include "easel/window/Pictures.h"

#include "easel/paint/Picture.h"
#include "easel/svg/Numbers.h"
#include "easel/svg/PathData.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <string>

namespace easel::window {
namespace {

/// Drawn in a square of 24, filled or as lines two wide.
struct OwnIcon {
    std::string_view name;
    const char* path;
    bool filled;
};
constexpr OwnIcon kIcons[] = {
    {"Adobe Select Tool", "M7 3 L7 18 L11 14.5 L13.5 20.5 L16 19.5 L13.5 13.5 L18.5 13.5 Z", true},
    {"Adobe Pen Tool", "M5 19 L8 10 L15 4 L20 9 L14 16 Z M5 19 L12 12", false},
    {"Easel Pencil Tool", "M4 20 L6 15 L16 5 L19 8 L9 18 Z M14 7 L17 10", false},
    {"Easel Line Tool", "M5 19 L19 5", false},
    {"Easel Rectangle Tool", "M4 6 H20 V18 H4 Z", false},
    {"Easel Ellipse Tool", "M3 12 A9 6.5 0 0 1 21 12 A9 6.5 0 0 1 3 12 Z", false},
    {"shown", "M3 12 C7 6 17 6 21 12 C17 18 7 18 3 12 Z M10 12 A2 2 0 0 1 14 12 A2 2 0 0 1 10 12 Z",
     false},
    {"locked", "M7 11 H17 V19 H7 Z M9 11 V8 C9 4 15 4 15 8 V11", false},
};
constexpr paint::Colour kIconColour{0.15F, 0.15F, 0.17F, 1.0F};

Pixels pixelsOf(const paint::Picture& picture) {
    Pixels pixels(picture.width, picture.height);
    const std::size_t count = picture.pixels.size() / 4;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t* const from = &picture.pixels[4 * i];
        const std::uint32_t alpha = from[3];
        const auto scaled = [&](std::uint32_t value) { return (value * alpha + 127) / 255; };
        pixels.data()[i] =
            alpha << 24 | scaled(from[0]) << 16 | scaled(from[1]) << 8 | scaled(from[2]);
    }
    return pixels;
}

std::span<const std::byte> resource(HMODULE library, const wchar_t* type, ai::uint32 id) {
    const HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(id), type);
    const HGLOBAL loaded = found != nullptr ? LoadResource(library, found) : nullptr;
    if (loaded == nullptr) return {};
    return {static_cast<const std::byte*>(LockResource(loaded)), SizeofResource(library, found)};
}

/// Null while the plug-in's library is not loaded.
HMODULE libraryOf(const Host& host, SPPluginRef plugin) {
    const Plugin* const found = host.plugins.find(plugin);
    const bool isLoaded = found != nullptr && found->library != nullptr;
    return isLoaded ? reinterpret_cast<HMODULE>(found->library->native()) : nullptr;
}

/// The number that `attribute` has in the first element of that name which comes after `from`.
std::optional<int> numberIn(std::string_view text, std::string_view element,
                            std::string_view attribute) {
    const std::size_t start = text.find("<" + std::string(element));
    if (start == std::string_view::npos) return std::nullopt;
    const std::string_view tag = text.substr(start, text.find('>', start) - start);
    const std::string opening = ' ' + std::string(attribute) + "=\"";
    const std::size_t at = tag.find(opening);
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view value = tag.substr(at + opening.size());
    const auto number = svg::parseNumber(value.substr(0, value.find('"')));
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

/// A description says where the hot spot is and which picture is for which density; the first one
/// is that of an ordinary screen. Null when anything is missing.
HCURSOR loadCursor(HMODULE library, ai::int32 id) {
    const auto description = resource(library, L"XML_", static_cast<ai::uint32>(id));
    const std::string_view text{reinterpret_cast<const char*>(description.data()),
                                description.size()};
    const auto x = numberIn(text, "kHotSpot", "x");
    const auto y = numberIn(text, "kHotSpot", "y");
    const auto picture = numberIn(text, "kPicture", "id");
    if (!x || !y || !picture) return nullptr;
    const auto png = resource(library, L"PNGI", static_cast<ai::uint32>(*picture));
    if (png.empty()) return nullptr;
    const WORD hotSpot[] = {static_cast<WORD>(*x), static_cast<WORD>(*y)};
    std::vector<BYTE> bits(sizeof hotSpot + png.size());
    std::memcpy(bits.data(), hotSpot, sizeof hotSpot);
    std::memcpy(bits.data() + sizeof hotSpot, png.data(), png.size());
    constexpr DWORD kFormat = 0x00030000;
    return reinterpret_cast<HCURSOR>(
        CreateIconFromResourceEx(bits.data(), static_cast<DWORD>(bits.size()), /*icon*/ FALSE,
                                 kFormat, 0, 0, LR_DEFAULTCOLOR));
}

} // namespace

Pixels ownIcon(std::string_view name) {
    const auto* const icon =
        std::ranges::find_if(kIcons, [&](const OwnIcon& each) { return each.name == name; });
    if (icon == std::end(kIcons)) return {kIconSide, kIconSide};
    const svg::Outline outline = svg::parsePathData(icon->path).outline;
    return pixelsOf(paint::render(kIconSide, kIconSide, [&](paint::Painter& painter) {
        const paint::Ink ink{kIconColour, nullptr, {}};
        paint::Pen pen;
        pen.width = 2;
        pen.join = svg::Join::Round;
        pen.cap = svg::Cap::Round;
        if (icon->filled)
            painter.fill(outline, paint::FillRule::NonZero, ink);
        else
            painter.stroke(outline, pen, ink);
    }));
}

Pixels toolIcon(const Host& host, const Tool& tool) {
    const ai::uint32 id = host.user.darkTheme ? tool.darkIcon : tool.lightIcon;
    Pixels icon(kIconSide, kIconSide);
    const auto picture = paint::readPng(resource(libraryOf(host, tool.plugin), L"PNGI", id));
    if (!picture) return icon;
    const Pixels given = pixelsOf(*picture);
    const int left = (kIconSide - given.width()) / 2;
    const int top = (kIconSide - given.height()) / 2;
    for (int y = std::max(0, top); y < std::min(kIconSide, top + given.height()); ++y)
        for (int x = std::max(0, left); x < std::min(kIconSide, left + given.width()); ++x)
            icon.data()[y * kIconSide + x] = given.data()[(y - top) * given.width() + x - left];
    return icon;
}

Cursors::~Cursors() {
    for (const auto& [key, cursor] : loaded_)
        if (cursor != nullptr) DestroyCursor(cursor);
}

HCURSOR Cursors::current(const Host& host) {
    const HCURSOR arrow = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    const UserRecord& user = host.user;
    if (user.cursor < 0 || host.tools.current == nullptr) return arrow;
    const std::pair key{user.cursorOwner, user.cursor};
    auto found = loaded_.find(key);
    if (found == loaded_.end())
        found = loaded_.emplace(key, loadCursor(libraryOf(host, key.first), key.second)).first;
    return found->second != nullptr ? found->second : arrow;
}

} // namespace easel::window
