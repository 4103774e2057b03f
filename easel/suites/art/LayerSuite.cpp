#include "host/suites/AILayerSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

Art* topmostLayer() { return firstSublayer(session().document().root()); }

ai::int32 countLayers() {
    ai::int32 count = 0;
    if (session().current == nullptr) return count;
    for (Art* layer = topmostLayer(); layer != nullptr; layer = layerFrom(layer->next()))
        ++count;
    return count;
}

AILayerHandle getNthLayer(ai::int32 index) {
    Art* layer = index >= 0 ? topmostLayer() : nullptr;
    for (; layer != nullptr && index > 0; --index)
        layer = layerFrom(layer->next());
    if (layer == nullptr) throw ai::Error{kBadParameterErr};
    return layerHandle(layer);
}

AILayerHandle getCurrentLayer() { return layerHandle(session().document().state().currentLayer); }

AILayerHandle getLayerParent(AILayerHandle layer) {
    return layerHandle(parentLayer(session().layerOf(layer)));
}

/// A flag that is the opposite of an attribute of the layer's group.
template <AIArtUserAttr Attribute> bool getWithout(AILayerHandle layer) {
    return !session().layerOf(layer).has(Attribute);
}

bool layerHasSelectedArt(AILayerHandle layer) {
    const Art& group = session().layerOf(layer);
    for (const Art* art = group.firstChild(); art != nullptr; art = nextInPreorder(*art, group))
        if (!isContainer(*art) && (art->has(kArtSelected) || art->has(kArtFullySelected)))
            return true;
    return false;
}

} // namespace

void installLayerSuite(SuiteServer& server) {
    using S = AILayerSuite;
    expose<&S::CountLayers, countLayers>(server);
    expose<&S::GetNthLayer, getNthLayer>(server);
    expose<&S::GetCurrentLayer, getCurrentLayer>(server);
    expose<&S::GetLayerVisible, getWithout<kArtHidden>>(server);
    expose<&S::GetLayerEditable, getWithout<kArtLocked>>(server);
    expose<&S::LayerHasSelectedArt, layerHasSelectedArt>(server);
    expose<&S::GetLayerParent, getLayerParent>(server);
}

} // namespace easel
