#pragma once

#include "easel/document/Document.h"

/// Between soft (page, y up, from the ruler origin) and hard (canvas, y down, from its top left
/// corner) coordinates.

namespace easel {

[[nodiscard]] AIRealPoint harden(const Document& document, AIRealPoint soft) noexcept;
[[nodiscard]] AIRealPoint soften(const Document& document, AIRealPoint hard) noexcept;
/// A matrix that maps soft points becomes the one that maps hard points the same way, as far as
/// the flip of y goes: b and c change sign, the translation is converted as a point.
[[nodiscard]] AIRealMatrix hardMatrix(const Document& document, AIRealMatrix soft) noexcept;
[[nodiscard]] AIRealMatrix softMatrix(const Document& document, AIRealMatrix hard) noexcept;

} // namespace easel
