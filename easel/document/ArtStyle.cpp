#include "easel/document/ArtStyle.h"

namespace easel {
namespace {

constexpr AIReal kDefaultResolution = 800;
constexpr AIReal kDefaultMiterLimit = 4;

AIColor noColor() noexcept {
    AIColor color{};
    color.kind = kNoneColor;
    return color;
}

AIColor grayColor(AIReal gray) noexcept {
    AIColor color{};
    color.kind = kGrayColor;
    color.c.g.gray = gray;
    return color;
}

} // namespace

AIPathStyle unpaintedStyle() noexcept {
    AIPathStyle style{};
    style.fill.color = noColor();
    style.stroke.color = noColor();
    style.stroke.width = 1;
    style.stroke.miterLimit = kDefaultMiterLimit;
    style.resolution = kDefaultResolution;
    return style;
}

AIPathStyle initialPathStyle() noexcept {
    AIPathStyle style = unpaintedStyle();
    style.fillPaint = 1;
    style.fill.color = grayColor(0);
    style.strokePaint = 1;
    style.stroke.color = grayColor(1);
    return style;
}

AIColor rgbColor(AIReal red, AIReal green, AIReal blue) noexcept {
    AIColor color{};
    color.kind = kThreeColor;
    color.c.rgb = {red, green, blue};
    return color;
}

} // namespace easel
