#include "easel/document/Placement.h"

#include "easel/document/Attributes.h"
#include "easel/document/Document.h"
#include "easel/document/Layers.h"
#include "host/Error.h"

namespace easel {
namespace {

Art& referenceOf(Art* reference) {
    if (reference == nullptr) throw ai::Error{kBadParameterErr};
    return *reference;
}

Art& neighbour(Art* reference) {
    Art& art = referenceOf(reference);
    const Art* parent = art.parent();
    const bool isFixed =
        parent == nullptr || parent->parent() == nullptr || parent->type() == kPluginArt;
    if (isFixed) throw ai::Error{kUntouchableArtObjectErr};
    return art;
}

bool canHoldArt(const Art& art) {
    return art.type() == kGroupArt || art.type() == kCompoundPathArt;
}

Art& container(Art* reference) {
    Art& art = referenceOf(reference);
    if (!canHoldArt(art)) throw ai::Error{kBadParameterErr};
    return art;
}

Art& outermostLayer(Art* layer) {
    if (layer == nullptr) throw ai::Error{kNoDocumentErr};
    return *layer;
}

bool isInCompound(const Art& art) {
    const auto isCompound = [](const Art& each) { return each.type() == kCompoundPathArt; };
    return nearestUp(art, isCompound) != nullptr;
}

bool mayBeInCompound(ai::int16 type) {
    return type == kPathArt || type == kCompoundPathArt || type == kGroupArt;
}

} // namespace

Position placeFor(Document& document, ai::int16 order, Art* reference) {
    switch (order) {
    case kPlaceDefault:
        return onTopOf(insertionGroup(document));
    case kPlaceAbove:
        return inFrontOf(neighbour(reference));
    case kPlaceBelow:
        return behind(neighbour(reference));
    case kPlaceInsideOnTop:
        return onTopOf(container(reference));
    case kPlaceInsideOnBottom:
        return atBottomOf(container(reference));
    case kPlaceAboveAll:
        return onTopOf(outermostLayer(layerFrom(document.root().firstChild())));
    case kPlaceBelowAll:
        return atBottomOf(outermostLayer(layerBackwardFrom(document.root().lastChild())));
    default:
        throw ai::Error{kUnknownPaintOrderTypeErr};
    }
}

void checkPlace(const Position& place, ai::int16 type) {
    if (isInCompound(*place.parent) && !mayBeInCompound(type))
        throw ai::Error{kInvalidArtTypeForDestErr};
    checkOpen(*place.parent);
}

void checkPlace(const Position& place, const Art& art) {
    for (const Art* each = &art; each != nullptr; each = nextInPreorder(*each, art))
        if (isInCompound(*place.parent) && !mayBeInCompound(each->type()))
            throw ai::Error{kInvalidArtTypeForDestErr};
    checkOpen(*place.parent);
}

Art& insertionGroup(const Document& document) {
    Art* const layer = document.state().currentLayer;
    if (layer == nullptr) throw ai::Error{kNoDocumentErr};
    return *layer;
}

} // namespace easel
