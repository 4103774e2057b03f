#pragma once

#include "easel/svg/AsRead.h"

#include <set>

namespace easel::svg {

/// Layers that the reader made for art outside of layers have no element. Such a layer gets a tag
/// when without one it would not be read again as it is.
struct LayerTags {
    std::set<const Art*> tagged;
    bool named = false; ///< All layers say their titles: those that the reader would give differ.
};
[[nodiscard]] LayerTags layerTags(const Document& document, const DrawingSource& source,
                                  const AsRead& asRead);

} // namespace easel::svg
