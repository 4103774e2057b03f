#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace NRDM {

/// Reads little-endian numbers and texts from the front of some bytes. Past their end everything is
/// nothing, and stays so: a caller may read on and ask once.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    [[nodiscard]] bool failed() const noexcept { return failed_; }
    [[nodiscard]] std::size_t position() const noexcept { return position_; }
    [[nodiscard]] bool atEnd() const noexcept { return position_ >= bytes_.size(); }

    /// The next `count` bytes; none of them when there are not that many.
    std::span<const std::byte> take(std::size_t count) {
        if (count > bytes_.size() - position_) {
            failed_ = true;
            position_ = bytes_.size();
            return {};
        }
        position_ += count;
        return bytes_.subspan(position_ - count, count);
    }
    std::uint16_t word() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t doubleWord() { return number(4); }

    /// UTF-16 up to a zero, which is passed over.
    std::u16string text() {
        std::u16string units;
        while (const char16_t unit = word())
            units.push_back(unit);
        return units;
    }
    /// `count` units of UTF-16.
    std::u16string text(std::size_t count) {
        std::u16string units;
        for (std::size_t i = 0; i < count && !failed_; ++i)
            units.push_back(word());
        return failed_ ? std::u16string{} : units;
    }

private:
    std::uint32_t number(std::size_t count) {
        std::uint32_t value = 0;
        unsigned shift = 0;
        for (const std::byte byte : take(count)) {
            value |= std::to_integer<std::uint32_t>(byte) << shift;
            shift += 8;
        }
        return value;
    }

    std::span<const std::byte> bytes_;
    std::size_t position_ = 0;
    bool failed_ = false;
};

} // namespace NRDM
