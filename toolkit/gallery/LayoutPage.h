#pragma once

#include "toolkit/gallery/Exhibit.h"
#include "toolkit/layout/Messages.h"

#include <string>

namespace NRDM::gallery {

/// The text of a layout with what is wrong in it: each message below its line, pointing at its
/// column. Shows the part of the text where the first of them is.
[[nodiscard]] std::unique_ptr<Page> mistakesPage(const std::string& title, const std::string& text,
                                                 const layout::Messages& messages);

} // namespace NRDM::gallery
