#pragma once

#include "easel/document/Document.h"

#include <string_view>

/// A layer is a group that is a child of the document's root or of another layer. These functions
/// take and give the group; `isLayer` tells such groups from others.

namespace easel {

/// A new visible, editable layer.
Art& createLayer(Document& document, std::string title, Position position);
/// The handle by which the layer suite knows a layer; null for null.
[[nodiscard]] AILayerHandle layerHandle(const Art* layer) noexcept;

/// The first layer in front-to-back order from `art` on, `art` included; null when none is left
/// among its siblings.
[[nodiscard]] Art* layerFrom(Art* art) noexcept;
[[nodiscard]] Art* layerBackwardFrom(Art* art) noexcept;
[[nodiscard]] Art* firstSublayer(const Art& layer) noexcept;
/// Null for a top-level layer.
[[nodiscard]] Art* parentLayer(const Art& layer) noexcept;
/// Layers in pre-order over the whole document; null at the end.
[[nodiscard]] Art* nextLayerInPreorder(const Art& layer) noexcept;
/// Null when there is none of that title.
[[nodiscard]] Art* findLayer(const Document& document, std::string_view title);

/// Deletes the layer with all its art. The current layer, when it goes, is replaced by a neighbour.
/// Throws '!XLL' for the last top-level layer.
void deleteLayer(Art& layer);
void setCurrentLayer(Document& document, Art& layer);
/// Writes through `change`, which gets the properties of the layer.
template <typename Change> void changeLayer(Art& layer, Change change) {
    change(layer.write(Edit::Quiet).details.write().layer);
    layer.document().note(&DocumentChanges::layerOptions);
}

} // namespace easel
