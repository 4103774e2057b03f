#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

[[nodiscard]] std::string encodeBase64(std::span<const std::byte> bytes);

/// Blanks and line ends in between are skipped. Nothing when the text holds anything else.
[[nodiscard]] std::optional<std::vector<std::byte>> decodeBase64(std::string_view text);

} // namespace easel::svg
