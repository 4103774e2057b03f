#include "easel/document/SelectedArt.h"

#include "easel/document/Attributes.h"
#include "easel/document/TransformArt.h"

#include <algorithm>

namespace easel {

std::vector<Art*> selectedArt(const Document& document) {
    std::vector<Art*> found;
    const Art& root = document.root();
    for (Art* art = nextInPreorder(root, root); art != nullptr;) {
        const Selected selected = art->isLayer() ? Selected::Partly : selectionOf(*art);
        const bool whole =
            selected == Selected::Fully || (selected == Selected::Partly && !isContainer(*art));
        if (whole) found.push_back(art);
        art = whole ? nextSkippingChildren(*art, root) : nextInPreorder(*art, root);
    }
    std::ranges::reverse(found);
    return found;
}

void deleteSelected(Document& document) {
    for (Art* const art : selectedArt(document))
        disposeArt(*art);
}

void moveSelected(Document& document, double right, double up) {
    const AIRealMatrix matrix{1, 0, 0, 1, static_cast<AIReal>(right), static_cast<AIReal>(up)};
    constexpr ai::int32 kAll = kTransformObjects | kTransformChildren | kTransformFillGradients |
                               kTransformFillPatterns | kTransformStrokeGradients |
                               kTransformStrokePatterns;
    for (Art* const art : selectedArt(document))
        transformArt(*art, matrix, 1, kAll);
}

void duplicateSelected(Document& document) {
    for (Art* const art : selectedArt(document)) {
        Art& copy = duplicateArt(*art, inFrontOf(*art));
        select(*art, false);
        select(copy, true);
    }
}

void restyleSelected(Document& document, const std::function<void(ArtStyle&)>& change) {
    const Art& root = document.root();
    for (Art* art = nextInPreorder(root, root); art != nullptr; art = nextInPreorder(*art, root))
        if (art->type() == kPathArt && selectionOf(*art) != Selected::No)
            change(styleCarrier(*art).write().style.write());
    change(document.writeState().initialStyle.write());
}

} // namespace easel
