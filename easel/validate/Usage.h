#pragma once

#include <cstddef>

namespace easel::validate {

/// What this process holds of the system's.
struct Usage {
    std::size_t bytes = 0;   ///< 0 where it cannot be told, as with a sanitizer's own heap.
    std::size_t objects = 0; ///< Windows, menus, fonts, pictures and the like.
};
[[nodiscard]] Usage usage();

} // namespace easel::validate
