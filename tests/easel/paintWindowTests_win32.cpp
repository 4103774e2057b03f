#include "easel/paint/GdiplusPainter.h"
#include "easel/paint/RunningGdiplus.h"

#include <doctest/doctest.h>

using namespace easel;
using namespace easel::paint;

namespace {

constexpr int kSide = 40;
constexpr Ink kRed{{1, 0, 0, 1}, nullptr, {}};

Outline lineAt(double x, double y, double length) {
    return {{{svg::cornerAt({x, y}), svg::cornerAt({x + length, y})}, false}};
}

} // namespace

// Wine's GDI+ flattens by recursion, which does not end for some of these: the stack overruns.
TEST_CASE("round ends are painted wherever they lie") {
    const RunningGdiplus running;
    std::vector<std::uint32_t> pixels(std::size_t{kSide} * kSide);
    GdiplusPainter painter{pixels.data(), kSide, kSide};
    const Pen pen{3, svg::Cap::Round, svg::Join::Round, 4, {}, 0};
    for (int i = 0; i < 50'000; ++i)
        painter.stroke(lineAt(-700 - 0.0173 * i, -1850 + 1.371 * (i % 97), 0.7), pen, kRed);
    painter.stroke(lineAt(10, 20, 20), pen, kRed);
    constexpr std::uint32_t kOpaqueRed = 0xFFFF0000;
    CHECK(pixels[20 * kSide + 20] == kOpaqueRed);
    CHECK(pixels[20 * kSide + 9] != 0); // the end
    CHECK(pixels[20 * kSide + 7] == 0);
}
