#pragma once

#include "toolkit/gallery/Page.h"

#include <span>

namespace NRDM::gallery {

struct PageRow {
    const char* name; ///< of its picture files
    std::unique_ptr<Page> (*make)();
};

/// Every kind of item in its states.
[[nodiscard]] std::span<const PageRow> pages();

} // namespace NRDM::gallery
