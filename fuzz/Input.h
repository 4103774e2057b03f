#pragma once

/// The bytes of a fuzzer as numbers, points and paths.

#include "symmetry/geometry/PageAxes.h"
#include "symmetry/geometry/PathShape.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>

namespace facetta::fuzz {

/// How wild coordinates are.
enum class Tier : std::uint8_t { Artboard, FarOut, AnyBits };

/// Takes values off the front of the input; zeros follow its end.
class Input {
public:
    explicit Input(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    [[nodiscard]] bool empty() const { return bytes_.empty(); }

    template <typename T> T take() {
        T value{};
        const std::size_t size = std::min(sizeof value, bytes_.size());
        std::memcpy(&value, bytes_.data(), size);
        bytes_ = bytes_.subspan(size);
        return value;
    }
    std::uint8_t byte() { return take<std::uint8_t>(); }

    /// From 0 to 1.
    double part() { return take<std::uint16_t>() / 65535.0; }

    double coordinate(Tier tier) {
        if (tier == Tier::AnyBits) return std::bit_cast<float>(take<std::uint32_t>());
        const double along = part();
        return narrow(tier == Tier::Artboard ? along * 16383.0 : (along - 0.5) * 2e6);
    }

    /// Small numbers make anchors meet, so one byte may stand for a point near the one before.
    Point point(Tier tier, Point near) {
        const auto choice = byte();
        if (choice < 64) return near;
        if (choice < 128) return rounded({near.x + choice - 96.0, near.y});
        if (choice < 192) return rounded({near.x, near.y + choice - 160.0});
        const double x = coordinate(tier);
        return {x, coordinate(tier)};
    }

    PathShape path(Tier tier, Point near) {
        PathShape shape;
        const auto header = byte();
        shape.closed = (header & 1) != 0;
        for (int anchors = header >> 3; anchors > 0; --anchors) {
            const Point anchor = point(tier, near);
            const Point in = point(tier, anchor);
            const Point out = point(tier, anchor);
            shape.segments.push_back(
                {anchor, in, out, (header & 2) != 0, static_cast<std::int16_t>(byte() % 5)});
            near = anchor;
        }
        return shape;
    }

    PageAxes axes(Tier tier) {
        PageAxes axes;
        axes.axisCount = 1 + byte() % kMostAxes;
        axes.angle =
            normaliseAngle(tier == Tier::AnyBits ? std::bit_cast<double>(take<std::uint64_t>())
                                                 : take<std::uint16_t>() * kPi / 180.0);
        axes.origin.x = coordinate(tier);
        axes.origin.y = coordinate(tier);
        return axes;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

} // namespace facetta::fuzz
