#pragma once

#include "easel/document/ArtTree.h"

#include <span>
#include <vector>

namespace easel {

/// The art of the document that matches any of `specs`, in pre-order. Edit groups of plug-in groups
/// are searched, result groups only when a spec asks for them. Takes time in proportion to the art.
[[nodiscard]] std::vector<Art*> matchingArt(const Document& document,
                                            std::span<const AIArtSpec> specs);
/// What is selected, by `matchingArt`; found anew only after a change.
[[nodiscard]] const std::vector<Art*>& selectedMatches(const Document& document);
/// The layer's group and everything in it, sublayers and edit groups included, in pre-order; no
/// result groups.
[[nodiscard]] std::vector<Art*> artOfLayer(Art& layer);

} // namespace easel
