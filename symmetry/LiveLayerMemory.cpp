#include "symmetry/LiveLayerMemory.h"

#include <algorithm>

namespace facetta {

LiveLayerMemory::Layer* LiveLayerMemory::find(AILayerHandle layer) noexcept {
    const auto found = std::ranges::find(layers, layer, &Layer::layer);
    return found != layers.end() ? &*found : nullptr;
}

LiveLayerMemory::Layer& LiveLayerMemory::at(AILayerHandle layer) {
    Layer* const known = find(layer);
    return known != nullptr ? *known : layers.emplace_back(Layer{.layer = layer});
}

} // namespace facetta
