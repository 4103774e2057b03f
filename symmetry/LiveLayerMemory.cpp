#include "symmetry/LiveLayerMemory.h"

#include <algorithm>

namespace facetta {

namespace {

/// Whoever undoes more steps than this has one layer regenerated whole.
constexpr std::size_t kMostGiven = 4096;

} // namespace

LiveLayerMemory::Layer* LiveLayerMemory::find(AILayerHandle layer) noexcept {
    const auto found = std::ranges::find(layers, layer, &Layer::layer);
    return found != layers.end() ? &*found : nullptr;
}

LiveLayerMemory::Layer& LiveLayerMemory::at(AILayerHandle layer) {
    Layer* const known = find(layer);
    return known != nullptr ? *known : layers.emplace_back(Layer{.layer = layer});
}

void LiveLayerMemory::noteGiven(std::uint64_t stamp) {
    given.push_back(stamp);
    if (given.size() > kMostGiven) given.pop_front();
}

std::optional<std::uint64_t> LiveLayerMemory::givenAs(ai::int32 stored) const noexcept {
    const auto found = std::find_if(given.rbegin(), given.rend(), [stored](std::uint64_t stamp) {
        return LayerStamp{.newest = stamp}.stored() == stored;
    });
    return found != given.rend() ? std::optional{*found} : std::nullopt;
}

} // namespace facetta
