#pragma once

#include <cstddef>

namespace easel {

/// What this process has made of the system's objects and not given back. Zeros where there are
/// none.
struct SystemObjects {
    std::size_t gdi = 0;  ///< Pens, fonts, pictures and the like.
    std::size_t user = 0; ///< Windows and menus; on Windows itself the other objects of USER, too.
};
[[nodiscard]] SystemObjects systemObjects();

} // namespace easel
