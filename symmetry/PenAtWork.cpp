#include "symmetry/PenAtWork.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIPathSuite.h"
#include "host/suites/AIToolSuite.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtTree.h"
#include "symmetry/MirrorTag.h"

#include <algorithm>

namespace facetta {
namespace {

bool isContainer(AIArtHandle art) {
    const ai::int16 type = typeOf(art);
    return type == kGroupArt || type == kCompoundPathArt || type == kPluginArt;
}

bool isOpenPath(AIArtHandle art) {
    if (typeOf(art) != kPathArt) return false;
    AIBoolean closed = true;
    ai::check(ai::suites.path->GetPathClosed(art, &closed));
    return !closed;
}

/// The one object among `art` that is no container; null when there are several or none.
AIArtHandle onlyLeaf(const std::vector<AIArtHandle>& art) {
    AIArtHandle leaf = nullptr;
    for (const AIArtHandle each : art) {
        if (isContainer(each)) continue;
        if (leaf != nullptr) return nullptr;
        leaf = each;
    }
    return leaf;
}

/// Whether all the containers among `art` contain `leaf`, or are groups of layers: a host may give
/// the group of a sublayer no parent.
bool allAround(AIArtHandle leaf, const std::vector<AIArtHandle>& art) {
    std::vector<AIArtHandle> around{leaf};
    while (around.back() != nullptr)
        around.push_back(parentOf(around.back()));
    return std::ranges::all_of(art, [&](AIArtHandle each) {
        return std::ranges::find(around, each) != around.end() ||
               (typeOf(each) == kGroupArt && isLayerGroup(each));
    });
}

} // namespace

bool penIsInHand() {
    const char* current = nullptr;
    ai::check(ai::suites.tool->GetCurrentToolName(&current));
    return current != nullptr && kPenTool == current;
}

bool penIsDrawing(AILayerHandle layer, const LayerStamp& fit) {
    if (!penIsInHand()) return false;
    std::vector<AIArtHandle> newer = artOnLayer(layer);
    std::erase_if(newer, [&](AIArtHandle art) { return stampOfArt(art) <= fit.newest; });
    const AIArtHandle path = onlyLeaf(newer);
    if (path == nullptr || !isOpenPath(path) || MirrorTag::get(path) == MirrorTag::kCopy ||
        !allAround(path, newer))
        return false;
    const std::vector<AIArtHandle> selected = selectedArt();
    return onlyLeaf(selected) == path && allAround(path, selected);
}

} // namespace facetta
