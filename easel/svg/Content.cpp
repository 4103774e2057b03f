#include "easel/svg/Content.h"

#include "easel/document/Layers.h"

#include <cassert>

namespace easel::svg {
namespace {

/// Never a negative zero: it would look like a difference where there is none.
AIReal narrowed(double value) { return static_cast<AIReal>(value) + 0.0F; }

} // namespace

const ElementSource* DrawingSource::find(const Art& art) const {
    const auto found = elements.find(art.handle());
    return found == elements.end() ? nullptr : &found->second;
}

const DrawingSource* sourceOf(const Document& document) {
    return dynamic_cast<const DrawingSource*>(document.foreign.get());
}

Art& startingLayer(const Document& document) {
    Art* const top = layerFrom(document.root().firstChild());
    assert(top != nullptr); // the last layer cannot be deleted
    for (Art* layer = top; layer != nullptr; layer = layerFrom(layer->next()))
        if (!layer->has(kArtHidden) && !layer->has(kArtLocked)) return *layer;
    return *top;
}

int layerNumber(const Document& document, const Art* wanted) {
    int number = 0;
    for (const Art* layer = layerFrom(document.root().firstChild()); layer != nullptr;
         layer = nextLayerInPreorder(*layer)) {
        if (layer == wanted) return number;
        ++number;
    }
    return -1;
}

Art* numberedLayer(const Document& document, int number) {
    Art* layer = layerFrom(document.root().firstChild());
    while (layer != nullptr && number-- > 0)
        layer = nextLayerInPreorder(*layer);
    return layer;
}

Point rulerOffset(const Document& document) {
    const DrawingSource* const source = sourceOf(document);
    if (source ==
        nullptr) { // soft (0, 0) on the artboard's top left corner is the drawing's (0, 0)
        const AIRealRect artboard = document.artboard();
        return {-static_cast<double>(artboard.left), static_cast<double>(artboard.top)};
    }
    const AIRealPoint now = document.state().rulerOrigin;
    return {static_cast<double>(now.h) - static_cast<double>(source->rulerOrigin.h),
            static_cast<double>(now.v) - static_cast<double>(source->rulerOrigin.v)};
}

AIRealPoint toSoft(Point point, Point offset) {
    return {narrowed(point.x - offset.x), narrowed(-(point.y - offset.y))};
}

AIRealMatrix toSoft(const Matrix& m, Point offset) {
    const AIRealPoint origin = toSoft(Point{m.e, m.f}, offset);
    return {narrowed(m.a), narrowed(-m.b), narrowed(m.c), narrowed(-m.d), origin.h, origin.v};
}

Matrix fromSoft(const AIRealMatrix& m, Point offset) {
    return {m.a, -m.b, m.c, -m.d, m.tx + offset.x, -m.ty + offset.y};
}

} // namespace easel::svg
