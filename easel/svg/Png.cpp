#include "easel/svg/Png.h"

#include <string_view>

namespace easel::svg {

Point pngSize(std::span<const std::byte> png) {
    constexpr std::size_t kHead = 24;
    constexpr std::string_view kMark = "\x89PNG\r\n\x1A\n";
    const auto byteAt = [&](std::size_t i) { return std::to_integer<unsigned char>(png[i]); };
    if (png.size() < kHead) return {};
    for (std::size_t i = 0; i < kMark.size(); ++i)
        if (byteAt(i) != static_cast<unsigned char>(kMark[i])) return {};
    const auto number = [&](std::size_t at) {
        double value = 0.0;
        for (std::size_t i = at; i < at + 4; ++i)
            value = 256.0 * value + byteAt(i);
        return value;
    };
    return {number(16), number(20)};
}

} // namespace easel::svg
