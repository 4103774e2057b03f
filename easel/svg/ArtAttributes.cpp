#include "easel/svg/ArtAttributes.h"

#include "easel/document/ArtTree.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Ink.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace easel::svg {
namespace {

void gatherMembers(const Art& container, std::vector<const Art*>& members) {
    for (const Art* art = container.lastChild(); art != nullptr; art = art->previous())
        if (art->type() == kPathArt)
            members.push_back(art);
        else
            gatherMembers(*art, members);
}

bool has(const ArtContent& content, AIArtUserAttr attribute) {
    return (content.attributes & static_cast<std::uint32_t>(attribute)) != 0;
}

std::string textIf(bool holds, std::string text) { return holds ? text : std::string{}; }

std::string highlightText(const AIRGBColor& color) {
    const AIRGBColor usual = LayerProperties{}.color;
    if (color.red == usual.red && color.green == usual.green && color.blue == usual.blue) return {};
    const auto channel = [](ai::uint16 value) { return static_cast<float>(value) / 65535.0F; };
    return formatColour({channel(color.red), channel(color.green), channel(color.blue)});
}

} // namespace

std::vector<const Art*> membersOf(const Art& art) {
    if (art.type() == kPathArt) return {&art};
    std::vector<const Art*> members;
    gatherMembers(art, members);
    return members;
}

bool isGuide(const Art& art, const ContentOf& contentOf) {
    if (art.type() != kPathArt && art.type() != kCompoundPathArt) return false;
    const std::vector<const Art*> members = membersOf(art);
    return !members.empty() && std::ranges::all_of(members, [&](const Art* member) {
        return contentOf(*member).guide;
    });
}

bool isClipMask(const Art& art) {
    return art.has(kArtIsClipMask) && art.parent() != nullptr && art.parent()->content().clipped;
}

std::vector<AttributeText> artAttributes(const Art& art, const ContentOf& contentOf) {
    const ArtContent& content = contentOf(art);
    const ArtDetails& details = *content.details;
    const bool isLayer = content.isLayerGroup;
    const LayerProperties& layer = isLayer ? details.layer : LayerProperties{};
    const bool guide = isGuide(art, contentOf);
    const AIPathStyle& path = content.style->path;
    return {
        {"inkscape:groupmode", textIf(isLayer, "layer")},
        {"inkscape:label", isLayer ? layer.title : details.name},
        {"inkscape:highlight-color", highlightText(layer.color)},
        {"easel:preview", textIf(!layer.preview, "false")},
        {"easel:printed", textIf(!layer.printed, "false")},
        {"easel:dim-images", textIf(layer.dimPlacedImages, "true")},
        {"easel:template", textIf(layer.isTemplate, "true")},
        {"easel:dimmed-percent", textIf(layer.dimmedPercent != LayerProperties{}.dimmedPercent,
                                        std::to_string(layer.dimmedPercent))},
        {"sodipodi:insensitive", textIf(has(content, kArtLocked), "true")},
        {"easel:note", details.note},
        {"easel:guide", textIf(guide, "true")},
        {"easel:hidden", textIf(guide && has(content, kArtHidden), "true")},
        {"easel:fill-ink", textIf(path.fillPaint != 0, inkText(path.fill.color))},
        {"easel:stroke-ink", textIf(path.strokePaint != 0, inkText(path.stroke.color))},
    };
}

std::string membersText(const std::vector<const Art*>& members) {
    const bool allGuides =
        std::ranges::all_of(members, [](const Art* each) { return each->content().guide; });
    auto list = nlohmann::ordered_json::array();
    bool any = false;
    for (const Art* member : members) {
        auto item = nlohmann::ordered_json::object();
        if (member->has(kArtLocked)) item["locked"] = true;
        if (member->has(kArtHidden)) item["hidden"] = true;
        if (member->content().guide && !allGuides) item["guide"] = true;
        if (!member->details().name.empty()) item["name"] = member->details().name;
        if (!member->details().note.empty()) item["note"] = member->details().note;
        const std::string json = member->dictionaryIfAny() != nullptr
                                     ? dictionaryJson(*member->dictionaryIfAny())
                                     : std::string{};
        if (!json.empty()) item["dictionary"] = json;
        any = any || !item.empty();
        list.push_back(std::move(item));
    }
    if (!any) return {};
    return list.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace easel::svg
