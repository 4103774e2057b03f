#include "easel/svg/Content.h"

#include "easel/document/Layers.h"
#include "easel/svg/DictionaryJson.h"
#include "easel/svg/Numbers.h"

#include <cassert>
#include <set>

namespace easel::svg {
namespace {

/// Never a negative zero: it would look like a difference where there is none.
AIReal narrowed(double value) { return static_cast<AIReal>(value) + 0.0F; }

} // namespace

const ArtSource* DrawingSource::find(const Art& one) const {
    const auto found = art.find(one.handle());
    return found == art.end() ? nullptr : &found->second;
}

const DrawingSource* sourceOf(const Document& document) {
    return dynamic_cast<const DrawingSource*>(document.foreign.get());
}

std::vector<AttributeText> documentAttributes(const Document& document) {
    const DocumentState& state = document.state();
    const DrawingSource* const source = sourceOf(document);
    const Point corner = source != nullptr ? source->viewBoxCorner : Point{};
    const std::string width = formatNumber(state.setup.width);
    const std::string height = formatNumber(state.setup.height);
    const auto unless = [](bool usual, std::string text) { return usual ? std::string{} : text; };
    const auto entries = [](const Dictionary& dictionary) { return dictionaryJson(dictionary); };
    const bool usualLayer =
        state.currentLayer == nullptr || state.currentLayer == &startingLayer(document);
    return {
        {"width", width},
        {"height", height},
        {"viewBox",
         formatNumber(corner.x) + ' ' + formatNumber(corner.y) + ' ' + width + ' ' + height},
        {"easel:ruler-origin",
         unless(rulerOffset(document) == Point{} || source == nullptr,
                formatNumber(state.rulerOrigin.h) + ' ' + formatNumber(state.rulerOrigin.v))},
        {"easel:current-layer",
         unless(usualLayer, std::to_string(layerNumber(document, state.currentLayer)))},
        {"easel:ruler-units",
         unless(document.rulerUnits == kPointsUnits, std::to_string(document.rulerUnits))},
        {"easel:color-model",
         unless(document.colorModel == 1, std::to_string(document.colorModel))},
        {"easel:document", entries(document.recordedDictionary())},
        {"easel:unrecorded", entries(document.otherDictionary())},
    };
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

void fillInTitles(std::vector<std::string>& titles) {
    const std::set<std::string> given{titles.begin(), titles.end()};
    int number = 1;
    for (std::string& title : titles) {
        if (!title.empty()) continue;
        do
            title = "Layer " + std::to_string(number++);
        while (given.contains(title));
    }
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

AIRealMatrix toSoft(const Matrix& matrix, Point offset) {
    const Matrix m = softMatrix(matrix, offset);
    return {narrowed(m.a), narrowed(m.b), narrowed(m.c),
            narrowed(m.d), narrowed(m.e), narrowed(m.f)};
}

Matrix softMatrix(const Matrix& m, Point offset) {
    return {m.a, -m.b, m.c, -m.d, m.e - offset.x, -(m.f - offset.y)};
}

Matrix drawingMatrix(const Matrix& m, Point offset) {
    return {m.a, -m.b, m.c, -m.d, m.e + offset.x, -m.f + offset.y};
}

} // namespace easel::svg
