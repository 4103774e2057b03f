#pragma once

#include "host/Handles.h"
#include "toolkit/layout/Layout.h"

#include <optional>

namespace NRDM {

class CoADMDialog;

/// The layout that is resource `id` of `plugin`; nothing when there is no such resource. Throws
/// `layout::Error` for a text with a mistake in it.
[[nodiscard]] std::optional<layout::Layout> readLayout(SPPluginRef plugin, int id);

/// Creates the items of `layout` in `dialog`, sets them up and places them. The dialog takes title,
/// font and size from the layout too. It has no items and no window yet.
void fill(CoADMDialog& dialog, const layout::Layout& layout);

} // namespace NRDM
