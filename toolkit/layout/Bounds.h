#pragma once

namespace NRDM {

struct Extent {
    int width = 0;
    int height = 0;

    bool operator==(const Extent&) const = default;
};

/// Of an item: from the top left of the dialog's client area; right and bottom exclusive.
struct Bounds {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const Bounds&) const = default;
};

[[nodiscard]] constexpr Extent sizeOf(const Bounds& bounds) {
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

} // namespace NRDM
