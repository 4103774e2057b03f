#include "host/suites/AILayerSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/HostString.h"
#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"
#include "easel/document/Placement.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

AIErr give(AILayerHandle* out, const Art* layer) {
    *out = layerHandle(layer);
    return kNoErr;
}

Art* topmostLayer() { return firstSublayer(currentDocument().root()); }

// The list of layers.

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
    return give(out, currentDocument().state().currentLayer);
}

AIErr setCurrent(AILayerHandle handle) {
    Art& layer = layerOf(handle);
    setCurrentLayer(layer.document(), layer);
    return kNoErr;
}

AIErr getFirstLayer(AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, topmostLayer());
}

AIErr getNextLayer(AILayerHandle previous, AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, previous != nullptr ? layerFrom(layerOf(previous).next()) : topmostLayer());
}

AIErr getPrevLayer(AILayerHandle following, AILayerHandle* out) {
    required(out) = nullptr;
    const Art& layer = layerOf(following);
    if (parentLayer(layer) != nullptr) return kNotImplementedErr; // the host's own rule
    return give(out, layerBackwardFrom(layer.previous()));
}

AIErr getLayerFirstChild(AILayerHandle layer, AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, firstSublayer(layerOf(layer)));
}

AIErr getLayerParent(AILayerHandle layer, AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, parentLayer(layerOf(layer)));
}

AIErr getNextPreorderLayer(AILayerHandle layer, AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, nextLayerInPreorder(layerOf(layer)));
}

AIErr getNextNonChildPreorderLayer(AILayerHandle layer, AILayerHandle* out) {
    required(out) = nullptr;
    return give(out, nextLayerSkippingSublayers(layerOf(layer)));
}

AIErr getLayerByTitle(AILayerHandle* out, const ai::UnicodeString& title) {
    required(out) = nullptr;
    return give(out, findLayer(currentDocument(), readUtf8(title)));
}

// Making and deleting.

AIErr makeLayer(Document& document, const Position& place, AILayerHandle* out) {
    ai::int32 count = 0;
    countLayers(&count);
    Art& layer = createLayer(document, "Layer " + std::to_string(count + 1), place);
    setCurrentLayer(document, layer);
    return give(out, &layer);
}

AIErr insertLayer(AILayerHandle beside, ai::int16 order, AILayerHandle* out) {
    required(out) = nullptr;
    Document& document = currentDocument();
    switch (order) {
    case kPlaceAbove:
        return makeLayer(document, inFrontOf(layerOf(beside)), out);
    case kPlaceBelow:
        return makeLayer(document, behind(layerOf(beside)), out);
    case kPlaceAboveAll:
        return makeLayer(document, onTopOf(document.root()), out);
    case kPlaceBelowAll:
        return makeLayer(document, atBottomOf(document.root()), out);
    default:
        return kUnknownPaintOrderTypeErr;
    }
}

/// Beside a top-level layer's group no art can be, but a layer can.
Position layerPlaceAt(Art& art, AIPaintOrder order) {
    const bool isTopLayer = art.parent() == &art.document().root();
    if (isTopLayer && order == kPlaceAbove) return inFrontOf(art);
    if (isTopLayer && order == kPlaceBelow) return behind(art);
    return placeFor(static_cast<ai::int16>(order), &art);
}

AIErr insertLayerAtArt(AIArtHandle handle, AIPaintOrder order, AILayerHandle* out) {
    required(out) = nullptr;
    Art& art = artOf(handle);
    const Position place = layerPlaceAt(art, order);
    const bool inLayer = place.parent->isLayer() || place.parent == &art.document().root();
    if (!inLayer) return kInvalidArtTypeForDestErr;
    checkOpen(*place.parent);
    return makeLayer(art.document(), place, out);
}

AIErr deleteLayerAndArt(AILayerHandle layer) {
    deleteLayer(layerOf(layer));
    return kNoErr;
}

AIErr changeLayerToGroup(AILayerHandle handle, AIArtHandle group) {
    if (handle == nullptr && group == nullptr) return kBadParameterErr;
    Art& layer = handle != nullptr ? layerOf(handle) : artOf(group);
    Art* parent = layer.isLayer() ? parentLayer(layer) : nullptr;
    if (parent == nullptr || firstSublayer(layer) != nullptr) return kBadParameterErr;
    Document& document = layer.document();
    if (document.state().currentLayer == &layer) setCurrentLayer(document, *parent);
    layer.write().isLayerGroup = false;
    document.note(&DocumentChanges::layerSet);
    return kNoErr;
}

// Title, colour and flags.

AIErr getLayerTitle(AILayerHandle layer, ai::UnicodeString& title) {
    writeUtf8(title, layerOf(layer).details().layer.title);
    return kNoErr;
}

AIErr setLayerTitle(AILayerHandle layer, const ai::UnicodeString& title) {
    changeLayer(layerOf(layer), [&](LayerProperties& own) { own.title = readUtf8(title); });
    return kNoErr;
}

AIErr getLayerColor(AILayerHandle layer, AIRGBColor* color) {
    required(color) = layerOf(layer).details().layer.color;
    return kNoErr;
}

AIErr setLayerColor(AILayerHandle layer, AIRGBColor color) {
    changeLayer(layerOf(layer), [&](LayerProperties& own) { own.color = color; });
    return kNoErr;
}

/// A flag of the layer's own properties.
template <bool LayerProperties::*Flag> AIErr getFlag(AILayerHandle layer, AIBoolean* value) {
    required(value) = layerOf(layer).details().layer.*Flag ? 1 : 0;
    return kNoErr;
}

template <bool LayerProperties::*Flag> AIErr setFlag(AILayerHandle layer, AIBoolean value) {
    changeLayer(layerOf(layer), [&](LayerProperties& own) { own.*Flag = value != 0; });
    return kNoErr;
}

/// A flag that is the opposite of an attribute of the layer's group.
template <AIArtUserAttr Attribute> AIErr getWithout(AILayerHandle layer, AIBoolean* value) {
    required(value) = layerOf(layer).has(Attribute) ? 0 : 1;
    return kNoErr;
}

template <AIArtUserAttr Attribute> AIErr setWithout(AILayerHandle handle, AIBoolean value) {
    Art& layer = layerOf(handle);
    const bool isSo = !layer.has(Attribute);
    if (isSo != (value != 0)) setUserAttributes(layer, Attribute, value != 0 ? 0 : Attribute);
    return kNoErr;
}

/// A template's sublayers are templates.
AIErr getLayerIsTemplate(AILayerHandle handle, AIBoolean* value) {
    required(value) = 0;
    for (const Art* layer = &layerOf(handle); layer != nullptr; layer = parentLayer(*layer))
        if (layer->details().layer.isTemplate) *value = 1;
    return kNoErr;
}

AIErr getDimmedPercent(AILayerHandle layer, ai::int32* percent) {
    required(percent) = layerOf(layer).details().layer.dimmedPercent;
    return kNoErr;
}

AIErr setDimmedPercent(AILayerHandle layer, ai::int32 percent) {
    if (percent < 0 || percent > 100) return kBadParameterErr;
    changeLayer(layerOf(layer), [&](LayerProperties& own) { own.dimmedPercent = percent; });
    return kNoErr;
}

// The art on a layer.

AIErr layerHasArt(AILayerHandle handle, AIBoolean* hasArt) {
    required(hasArt) = 0;
    for (const Art* art = layerOf(handle).firstChild(); art != nullptr; art = art->next())
        if (!art->isLayer()) *hasArt = 1;
    return kNoErr;
}

AIErr layerHasSelectedArt(AILayerHandle layer, AIBoolean* hasSelected) {
    required(hasSelected) = selectionOf(layerOf(layer)) != Selected::No ? 1 : 0;
    return kNoErr;
}

AIErr selectArtOnLayer(AILayerHandle handle) {
    Art& layer = layerOf(handle);
    if (isEditable(layer)) select(layer, true);
    return kNoErr;
}

AIErr deselectArtOnLayer(AILayerHandle layer) {
    select(layerOf(layer), false);
    return kNoErr;
}

} // namespace

void installLayerSuite(SuiteServer& server) {
    using S = AILayerSuite;
    auto table = server.table<S>(kAILayerSuite, kAILayerSuiteVersion);
    expose<&S::CountLayers, countLayers>(table);
    expose<&S::GetNthLayer, getNthLayer>(table);
    expose<&S::GetCurrentLayer, getCurrentLayer>(table);
    expose<&S::SetCurrentLayer, setCurrent>(table);
    expose<&S::GetFirstLayer, getFirstLayer>(table);
    expose<&S::GetNextLayer, getNextLayer>(table);
    expose<&S::InsertLayer, insertLayer>(table);
    expose<&S::DeleteLayer, deleteLayerAndArt>(table);
    expose<&S::GetLayerTitle, getLayerTitle>(table);
    expose<&S::SetLayerTitle, setLayerTitle>(table);
    expose<&S::GetLayerColor, getLayerColor>(table);
    expose<&S::SetLayerColor, setLayerColor>(table);
    expose<&S::GetLayerVisible, getWithout<kArtHidden>>(table);
    expose<&S::SetLayerVisible, setWithout<kArtHidden>>(table);
    expose<&S::GetLayerPreview, getFlag<&LayerProperties::preview>>(table);
    expose<&S::SetLayerPreview, setFlag<&LayerProperties::preview>>(table);
    expose<&S::GetLayerEditable, getWithout<kArtLocked>>(table);
    expose<&S::SetLayerEditable, setWithout<kArtLocked>>(table);
    expose<&S::GetLayerPrinted, getFlag<&LayerProperties::printed>>(table);
    expose<&S::SetLayerPrinted, setFlag<&LayerProperties::printed>>(table);
    expose<&S::GetLayerDimPlacedImages, getFlag<&LayerProperties::dimPlacedImages>>(table);
    expose<&S::SetLayerDimPlacedImages, setFlag<&LayerProperties::dimPlacedImages>>(table);
    expose<&S::GetLayerByTitle, getLayerByTitle>(table);
    expose<&S::LayerHasArt, layerHasArt>(table);
    expose<&S::LayerHasSelectedArt, layerHasSelectedArt>(table);
    expose<&S::DeselectArtOnLayer, deselectArtOnLayer>(table);
    expose<&S::SelectArtOnLayer, selectArtOnLayer>(table);
    expose<&S::GetLayerIsTemplate, getLayerIsTemplate>(table);
    expose<&S::SetLayerIsTemplate, setFlag<&LayerProperties::isTemplate>>(table);
    expose<&S::GetPrevLayer, getPrevLayer>(table);
    expose<&S::GetLayerDimmedPercent, getDimmedPercent>(table);
    expose<&S::SetLayerDimmedPercent, setDimmedPercent>(table);
    expose<&S::GetLayerFirstChild, getLayerFirstChild>(table);
    expose<&S::GetLayerParent, getLayerParent>(table);
    expose<&S::InsertLayerAtArt, insertLayerAtArt>(table);
    expose<&S::ChangeLayerToGroup, changeLayerToGroup>(table);
    expose<&S::GetNextPreorderLayer, getNextPreorderLayer>(table);
    expose<&S::GetNextNonChildPreorderLayer, getNextNonChildPreorderLayer>(table);
}

} // namespace easel
