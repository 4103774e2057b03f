#include "easel/svg/LayerTags.h"

#include "easel/document/Layers.h"
#include "easel/svg/Element.h"

#include <utility>

namespace easel::svg {

LayerTags layerTags(const Document& document, const DrawingSource& source, const AsRead& asRead) {
    LayerTags tags;
    const Art& root = document.root();
    std::vector<std::string> titles;
    std::vector<std::string> shown;
    bool belowIsLoose = false;
    for (const Art* layer = root.lastChild(); layer != nullptr; layer = layer->previous()) {
        const ArtSource* const read = source.find(*layer);
        const std::string& title = layer->details().layer.title;
        shown.push_back(title);
        titles.push_back(title);
        const bool wasBelow = std::exchange(belowIsLoose, false);
        if (read == nullptr) continue;
        if (read->node != kNoNode) {
            const bool sameTitle = title == read->content.details->layer.title;
            const Element element{*source.tree, read->node};
            if (sameTitle && element.get("inkscape:label").empty() && element.get("id").empty())
                titles.back().clear();
            continue;
        }
        const bool isOnlyOne = root.firstChild() == root.lastChild();
        const bool same = asRead.hasSameState(*layer, *read) &&
                          layer->dictionaryIfAny() == nullptr && layer->style().opacity == 1 &&
                          !layer->content().clipped && !wasBelow &&
                          (layer->firstChild() != nullptr || isOnlyOne);
        if (same)
            titles.back().clear();
        else
            tags.tagged.insert(layer);
        belowIsLoose = same;
    }
    fillInTitles(titles);
    tags.named = titles != shown;
    for (const Art* layer = root.lastChild(); tags.named && layer != nullptr;
         layer = layer->previous())
        tags.tagged.insert(layer);
    return tags;
}

} // namespace easel::svg
