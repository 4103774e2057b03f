#pragma once

#include "easel/document/Art.h"
#include "easel/document/Bezier.h"

namespace easel {

/// Curves of a path: one less than anchors when it is open, as many when it is closed; none for a
/// single anchor.
[[nodiscard]] std::size_t curveCount(const Art& path) noexcept;
/// The curve that starts at anchor `index`; at the last anchor of an open path four equal points.
[[nodiscard]] Curve curveFrom(const Art& path, std::size_t index) noexcept;
/// False only when the curve stays farther away than `reach`: it lies in the box around its
/// control points. Much quicker to tell than how near it comes.
[[nodiscard]] bool mayReach(const Curve& curve, CurvePoint point, double reach) noexcept;

} // namespace easel
