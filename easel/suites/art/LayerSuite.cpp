#include "host/suites/AILayerSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/document/Layers.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

AIErr give(AILayerHandle* out, const Art* layer) {
    *out = layerHandle(layer);
    return kNoErr;
}

Art* topmostLayer() { return firstSublayer(session().document().root()); }

AIErr countLayers(ai::int32* count) {
    required(count) = 0;
    if (session().current == nullptr) return kNoErr;
    for (Art* layer = topmostLayer(); layer != nullptr; layer = layerFrom(layer->next()))
        ++*count;
    return kNoErr;
}

AIErr getNthLayer(ai::int32 index, AILayerHandle* out) {
    required(out) = nullptr;
    if (index < 0) return kBadParameterErr;
    Art* layer = topmostLayer();
    for (; layer != nullptr && index > 0; --index)
        layer = layerFrom(layer->next());
    return layer != nullptr ? give(out, layer) : kBadParameterErr;
}

AIErr getCurrentLayer(AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, session().document().state().currentLayer);
}

AIErr getLayerParent(AILayerHandle layer, AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, parentLayer(session().layerOf(layer)));
}

/// A flag that is the opposite of an attribute of the layer's group.
template <AIArtUserAttr Attribute> AIErr getWithout(AILayerHandle layer, AIBoolean* value) {
    required(value) = session().layerOf(layer).has(Attribute) ? 0 : 1;
    return kNoErr;
}

AIErr layerHasSelectedArt(AILayerHandle layer, AIBoolean* value) {
    required(value) = 0;
    const Art& group = session().layerOf(layer);
    for (const Art* art = group.firstChild(); art != nullptr; art = nextInPreorder(*art, group))
        if (!isContainer(*art) && (art->has(kArtSelected) || art->has(kArtFullySelected))) {
            *value = 1;
            break;
        }
    return kNoErr;
}

} // namespace

void installLayerSuite(SuiteServer& server) {
    using S = AILayerSuite;
    auto table = server.table<S>(kAILayerSuite, kAILayerSuiteVersion);
    expose<&S::CountLayers, countLayers>(table);
    expose<&S::GetNthLayer, getNthLayer>(table);
    expose<&S::GetCurrentLayer, getCurrentLayer>(table);
    expose<&S::GetLayerVisible, getWithout<kArtHidden>>(table);
    expose<&S::GetLayerEditable, getWithout<kArtLocked>>(table);
    expose<&S::LayerHasSelectedArt, layerHasSelectedArt>(table);
    expose<&S::GetLayerParent, getLayerParent>(table);
}

} // namespace easel
