#pragma once

#include "easel/document/Document.h"

/// Between soft (page, y up, from the ruler origin) and hard (canvas, y down, from its top left
/// corner) coordinates.

namespace easel {

[[nodiscard]] AIRealPoint harden(const Document& document, AIRealPoint soft) noexcept;
[[nodiscard]] AIRealPoint soften(const Document& document, AIRealPoint hard) noexcept;

} // namespace easel
