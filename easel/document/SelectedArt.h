#pragma once

#include "easel/document/Document.h"

#include <functional>

/// What the host's own commands do with the selection. All of it can be edited: what is locked or
/// hidden is never selected.

namespace easel {

/// Leaves of which anything is selected, and containers of which all is; back to front, none inside
/// another. Layers are not among them.
[[nodiscard]] std::vector<Art*> selectedArt(const Document& document);
void deleteSelected(Document& document);
/// By soft coordinates; paths that are selected in part move whole.
void moveSelected(Document& document, double right, double up);
/// Copies take the place of the originals in front of them, and the selection.
void duplicateSelected(Document& document);
/// Changes how the selected paths are painted, and what is drawn from now on.
void restyleSelected(Document& document, const std::function<void(ArtStyle&)>& change);

} // namespace easel
