#include "easel/session/Inventory.h"

#include "easel/document/Layers.h"
#include "easel/svg/Content.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <numbers>

namespace easel {
namespace {

/// What a plug-in stores in a drawing, by the names under which it does.
constexpr std::string_view kAxesEntry = "FacettaFT";
constexpr std::string_view kCopyEntry = "FTMirroredv1";
constexpr std::string_view kGuideEntry = "FTAxisGuide";

const Value* find(const Dictionary* dictionary, std::string_view key) {
    return dictionary == nullptr ? nullptr : dictionary->find(internKey(key));
}

template <typename T> const T* find(const Dictionary* dictionary, std::string_view key) {
    const Value* const value = find(dictionary, key);
    return value == nullptr ? nullptr : std::get_if<T>(value);
}

/// A number kept as text; 0 when there is none.
double numberIn(const Dictionary& entries, std::string_view key) {
    const SharedText* const text = find<SharedText>(&entries, key);
    return text == nullptr ? 0.0 : svg::parseNumber(**text).value_or(0.0);
}

} // namespace

/// The origin is stored in canvas coordinates, whose y runs down as the drawing's does.
std::optional<LayerAxes> axesOn(const Art& layer) {
    const auto* const entry = find<Ref<Dictionary>>(layer.dictionaryIfAny(), kAxesEntry);
    if (entry == nullptr) return std::nullopt;
    const Dictionary& entries = **entry;
    const Document& document = layer.document();
    const AIRealPoint ruler = document.state().rulerOrigin;
    const svg::Point offset = svg::rulerOffset(document);
    LayerAxes axes;
    const ai::int32* const count = find<ai::int32>(&entries, "ac");
    axes.count = count == nullptr ? 1 : std::clamp(*count, 1, 72);
    axes.angleDegrees = numberIn(entries, "aa") * 180.0 / std::numbers::pi;
    axes.origin = {numberIn(entries, "cx") - ruler.h + offset.x,
                   numberIn(entries, "cy") - ruler.v + offset.y};
    if (const Boolean* const automatic = find<Boolean>(&entries, "au"))
        axes.automatic = automatic->value;
    if (const ai::int32* const stamp = find<ai::int32>(&entries, "ts")) axes.stamp = *stamp;
    return axes;
}

bool isCopy(const Art& art) {
    const ai::int32* const copy = find<ai::int32>(art.dictionaryIfAny(), kCopyEntry);
    return copy != nullptr && *copy == 1;
}

bool isMarkedAsAxisGuide(const Art& art) {
    return find(art.dictionaryIfAny(), kGuideEntry) != nullptr;
}

void Inventory::add(const Art& art) {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        if (kKinds[i].type == art.type()) ++kinds[i];
    segments += static_cast<int>(art.segments().size());
    if (art.content().guide) ++guides;
    if (isCopy(art)) ++copies;
    if (isMarkedAsAxisGuide(art)) ++axisGuides;
}

void Inventory::add(const Inventory& other) {
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        kinds[i] += other.kinds[i];
    segments += other.segments;
    copies += other.copies;
    guides += other.guides;
    axisGuides += other.axisGuides;
}

Inventory inventoryOf(const Art& layer) {
    Inventory inventory;
    const Art* art = nextInPreorder(layer, layer);
    while (art != nullptr) {
        if (art->isLayer()) {
            art = nextSkippingChildren(*art, layer);
            continue;
        }
        inventory.add(*art);
        art = nextInPreorder(*art, layer);
    }
    return inventory;
}

Inventory inventoryOf(const Document& document) {
    Inventory inventory;
    for (const Art* layer = layerFrom(document.root().firstChild()); layer != nullptr;
         layer = nextLayerInPreorder(*layer))
        inventory.add(inventoryOf(*layer));
    return inventory;
}

} // namespace easel
