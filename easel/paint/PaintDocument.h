#pragma once

#include "easel/paint/Picture.h"

#include <optional>

namespace easel::paint {

struct PaintOptions {
    double scale = 1.0; ///< Pixels to a point.
    std::optional<Colour> background;
    bool guides = false; ///< Guides as thin lines; otherwise they are not seen.
    /// Painted over the art, in soft coordinates.
    std::function<void(Painter&)> overlay;
};

/// Paints the visible art of the document, in soft coordinates, from back to front.
void paintArt(const Document& document, Painter& painter, const PaintOptions& options = {});

/// The artboard with everything on it. Throws std::length_error when it would be too large.
[[nodiscard]] Picture paintDocument(const Document& document, const PaintOptions& options = {});

} // namespace easel::paint
