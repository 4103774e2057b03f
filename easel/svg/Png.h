#pragma once

#include "easel/svg/Transform.h"

#include <cstddef>
#include <span>

namespace easel::svg {

/// How many pixels a PNG file has across and down, from its head alone; 0, 0: it is none.
[[nodiscard]] Point pngSize(std::span<const std::byte> png);

} // namespace easel::svg
