#pragma once

#include "toolkit/gallery/Exhibit.h"
#include "toolkit/layout/Layout.h"

#include <string>

namespace NRDM::gallery {

/// The text of a layout with what is wrong in it: each message below its line, pointing at its
/// column. Shows the part of the text where the first of them is.
[[nodiscard]] std::unique_ptr<Page> mistakesPage(const std::string& title, const std::string& text,
                                                 const layout::Messages& messages);

/// The dialog that `layout` describes, its items placed as they are in the product. Throws
/// `layout::Error` when it does not fit into windows.
[[nodiscard]] std::unique_ptr<Page> layoutPage(const layout::Layout& layout, const Peers& peers);

} // namespace NRDM::gallery
