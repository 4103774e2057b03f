#pragma once

#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/gallery/Page.h"
#include "toolkit/layout/Layout.h"

#include <string>

namespace NRDM::gallery {

/// The text of a layout with what is wrong in it: each message below its line, pointing at its
/// column. Shows the part of the text where the first of them is.
[[nodiscard]] std::unique_ptr<Page> mistakesPage(const std::string& title, const std::string& text,
                                                 const layout::Messages& messages);

/// The dialog that `layout` describes, as the product makes it; what its owner would draw is
/// outlined. Throws `layout::Error` when it does not fit into windows.
[[nodiscard]] std::unique_ptr<Page> layoutPage(const layout::Layout& layout, Dialogs& dialogs);

} // namespace NRDM::gallery
