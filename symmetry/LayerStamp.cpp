#include "symmetry/LayerStamp.h"

#include "symmetry/ArtList.h"
#include "symmetry/ArtTree.h"
#include "symmetry/LayerAxesStore.h"

#include <algorithm>

namespace facetta {

bool unchanged(const LayerStamp& before, const LayerStamp& now) noexcept {
    const bool bothCounted = before.objects != 0 && now.objects != 0;
    return before.group == now.group && before.newest == now.newest &&
           (!bothCounted || before.objects == now.objects);
}

LayerStamp readLayerStamp(AILayerHandle layer, StampReach reach) {
    LayerStamp stamp;
    const AIArtHandle group = groupArtOf(layer);
    if (group == nullptr) return stamp;
    stamp.group = stamp.newest = stampOfArt(group);
    if (reach == StampReach::Descendants) return stamp;
    const std::vector<AIArtHandle> all = artOnLayer(layer);
    for (const AIArtHandle art : all)
        stamp.newest = std::max(stamp.newest, stampOfArt(art));
    stamp.objects = all.size() + 1; // never 0, which means that nobody counted
    return stamp;
}

} // namespace facetta
