#pragma once

/// How elements are strung and aligned; the numbers are those the named constants stand for.

namespace NRDM::layout {

/// x runs left to right, y top to bottom.
enum class Axis { X, Y };

/// How a container strings its children. A leaf is no container: it never looks at children.
enum class Stringing { Leaf, Column, Row, Overlay };

/// Where an element stands on one axis of its parent. Near is left or top, far right or bottom.
/// Default takes what the parent says for its children.
enum class Alignment { Near, Far, Center, Proportional, NearFill, FarFill, Default };

[[nodiscard]] constexpr bool isFar(Alignment alignment) {
    return alignment == Alignment::Far || alignment == Alignment::FarFill;
}

/// Whether children follow one another on `axis`; otherwise each stands on it by itself.
[[nodiscard]] constexpr bool runsAlong(Stringing stringing, Axis axis) {
    return stringing == (axis == Axis::X ? Stringing::Row : Stringing::Column);
}

} // namespace NRDM::layout
