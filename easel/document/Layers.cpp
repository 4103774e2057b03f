#include "easel/document/Layers.h"

#include "easel/document/Session.h"
#include "host/Error.h"

#include <utility>

namespace easel {

Art& createLayer(Document& document, std::string title, Position position) {
    Art& group = createArt(document, kGroupArt, position);
    ArtContent& content = group.write();
    content.isLayerGroup = true;
    content.details.write().layer.title = std::move(title);
    document.note(&DocumentChanges::layerSet);
    return group;
}

AILayerHandle layerHandle(const Art* layer) noexcept {
    if (layer == nullptr) return nullptr;
    return static_cast<AILayerHandle>(HandleTable::withKind(layer->handle(), HandleKind::Layer));
}

Art* layerFrom(Art* art) noexcept {
    while (art != nullptr && !art->isLayer())
        art = art->next();
    return art;
}

Art* layerBackwardFrom(Art* art) noexcept {
    while (art != nullptr && !art->isLayer())
        art = art->previous();
    return art;
}

Art* firstSublayer(const Art& layer) noexcept { return layerFrom(layer.firstChild()); }

Art* parentLayer(const Art& layer) noexcept {
    return layer.parent() != nullptr ? layerOf(*layer.parent()) : nullptr;
}

Art* nextLayerInPreorder(const Art& layer) noexcept {
    if (Art* child = firstSublayer(layer)) return child;
    for (const Art* each = &layer; each != nullptr; each = parentLayer(*each))
        if (Art* next = layerFrom(each->next())) return next;
    return nullptr;
}

Art* findLayer(const Document& document, std::string_view title) {
    Art* layer = firstSublayer(document.root());
    while (layer != nullptr && layer->details().layer.title != title)
        layer = nextLayerInPreorder(*layer);
    return layer;
}

void deleteLayer(Art& layer) {
    Document& document = layer.document();
    Art* neighbour = layerFrom(layer.next());
    if (neighbour == nullptr) neighbour = layerBackwardFrom(layer.previous());
    if (neighbour == nullptr) neighbour = parentLayer(layer);
    if (neighbour == nullptr) throw ai::Error{kCantDeleteLastLayerErr};
    const Art* current = document.state().currentLayer;
    if (current == nullptr || isInside(*current, layer)) setCurrentLayer(document, *neighbour);
    disposeArt(layer);
    document.note(&DocumentChanges::layerSet);
    document.note(&DocumentChanges::layerDeleted);
}

void setCurrentLayer(Document& document, Art& layer) {
    if (document.state().currentLayer == &layer) return;
    document.writeState().currentLayer = &layer;
    document.note(&DocumentChanges::currentLayer);
}

} // namespace easel
