#pragma once

#include <cstddef>
#include <span>

namespace facetta {

/// The compiled resources of the plug-in as a native build carries them: a file of 32-bit
/// resources.
[[nodiscard]] std::span<const std::byte> embeddedResources() noexcept;

} // namespace facetta
