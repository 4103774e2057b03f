#pragma once

/// From words to meaning: which kinds, keys and values a layout may have.

#include "toolkit/layout/Parser.h"
#include "toolkit/layout/Tree.h"

namespace NRDM::layout {

/// The tree that `text` means. Adds an error to `messages` for what makes the layout unusable; a
/// warning for what is passed over: unknown kinds with all that is in them, unknown keys, elements
/// in the wrong place.
[[nodiscard]] Layout resolve(const syntax::Text& text, Messages& messages);

} // namespace NRDM::layout
