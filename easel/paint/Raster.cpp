#include "easel/paint/Raster.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::paint {
namespace {

/// All four channels times `part` / 255, rounded.
std::uint32_t scaled(std::uint32_t pixel, std::uint32_t part) {
    constexpr std::uint32_t kTwo = 0x00FF00FF;
    const auto two = [part](std::uint32_t channels) {
        const std::uint32_t product = channels * part + 0x00800080;
        return (product + (product >> 8 & kTwo)) >> 8 & kTwo;
    };
    return two(pixel & kTwo) | two(pixel >> 8 & kTwo) << 8;
}

/// The function of the library is called for each; this is not.
int ceiling(double value) {
    const int whole = static_cast<int>(value);
    return whole + (whole < value ? 1 : 0);
}

} // namespace

std::uint32_t composed(std::uint32_t under, std::uint32_t over, std::uint32_t part) {
    const std::uint32_t front = scaled(over, part);
    return front + scaled(under, 255 - (front >> 24));
}

Raster::Raster(int width, int height)
    : width_(width), height_(height), stride_(static_cast<std::size_t>(width) + 2),
      growth_(stride_ * static_cast<std::size_t>(height)),
      covered_(static_cast<std::size_t>(width)), touched_(static_cast<std::size_t>(height)),
      top_(height) {}

void Raster::addEdge(Point from, Point to) {
    const float turns = from.y < to.y ? 1.0F : -1.0F;
    if (from.y > to.y) std::swap(from, to);
    const double first = std::max(from.y, 0.0);
    const double last = std::min(to.y, static_cast<double>(height_));
    if (!(first < last) || std::isnan(from.x + to.x)) return;
    const double slope = (to.x - from.x) / (to.y - from.y);
    const double width = width_;
    double x = from.x + slope * (first - from.y);
    const int top = static_cast<int>(first);
    const int bottom = ceiling(last);
    top_ = std::min(top_, top);
    bottom_ = std::max(bottom_, bottom);
    for (int y = top; y < bottom; ++y) {
        const double height = std::min(y + 1.0, last) - std::max<double>(y, first);
        const double next = x + slope * height;
        const double left = std::min(std::max(std::min(x, next), 0.0), width);
        const double right = std::min(std::max(std::max(x, next), 0.0), width);
        x = next;
        const int column = static_cast<int>(left);
        const int end = std::max(ceiling(right), column + 1);
        Span& touched = touched_[static_cast<std::size_t>(y)];
        touched = {std::min(touched.left, column), std::max(touched.right, end + 1)};
        float* const cells = &growth_[static_cast<std::size_t>(y) * stride_];
        const float whole = turns * static_cast<float>(height);
        if (end == column + 1) { // within a pixel
            const auto beside = static_cast<float>((left + right) / 2 - column);
            cells[column] += whole * (1 - beside);
            cells[end] += whole * beside;
            continue;
        }
        // What lies right of the edge up to each pixel's right side, less that of the pixel before.
        const double steepness = 0.5 / (right - left);
        double before = 0;
        double formerGrowth = 0;
        for (int at = column; at <= end; ++at) {
            const double reached = std::min(at + 1.0, right) - left;
            const double covered = reached * reached * steepness + std::max(0.0, at + 1.0 - right);
            cells[at] += whole * static_cast<float>(covered - before - formerGrowth);
            formerGrowth = covered - before;
            before = covered;
        }
    }
}

void Raster::addLine(std::span<const Point> points, double width) {
    const auto normal = [&](std::size_t i) {
        const Point along = points[i + 1] - points[i];
        const double length = std::sqrt(along.x * along.x + along.y * along.y);
        return length > 0 ? Point{-along.y / length, along.x / length} : Point{0, 0};
    };
    if (points.size() < 2) return;
    Point former = normal(0);
    Point left;
    Point right;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point next = i + 1 < points.size() ? normal(i) : former;
        const Point both = former + next;
        // As far out as the sides of both pieces meet, unless they turn back.
        const double far = std::max(1.0, both.x * both.x + both.y * both.y);
        const Point aside = width / far * both;
        const Point nextLeft = points[i] + aside;
        const Point nextRight = points[i] - aside;
        if (i == 0) {
            addEdge(nextRight, nextLeft);
        } else {
            addEdge(left, nextLeft);
            addEdge(nextRight, right);
        }
        left = nextLeft;
        right = nextRight;
        former = next;
    }
    addEdge(left, right);
}

void Raster::paint(std::uint32_t* pixels, std::span<const PixelRect> clip, FillRule rule,
                   std::uint32_t colour) {
    for (int y = top_; y < bottom_; ++y) {
        const Span touched = std::exchange(touched_[static_cast<std::size_t>(y)], {});
        const int right = std::min(touched.right, width_);
        float* const cells = &growth_[static_cast<std::size_t>(y) * stride_];
        float turns = 0;
        for (int x = touched.left; x < right; ++x) {
            turns += std::exchange(cells[x], 0.0F);
            float part = std::abs(turns);
            if (rule == FillRule::EvenOdd) part = std::abs(part - 2 * std::round(part / 2));
            covered_[static_cast<std::size_t>(x)] =
                static_cast<std::uint8_t>(std::min(part, 1.0F) * 255 + 0.5F);
        }
        for (int x = right; x < touched.right; ++x)
            cells[x] = 0;
        std::uint32_t* const row = pixels + std::ptrdiff_t{y} * width_;
        auto each = std::ranges::partition_point(
            clip, [y](const PixelRect& area) { return area.bottom <= y; });
        for (; each != clip.end() && each->top <= y; ++each) {
            const int end = std::min(right, each->right);
            for (int x = std::max(touched.left, each->left); x < end; ++x)
                if (const std::uint32_t part = covered_[static_cast<std::size_t>(x)]; part != 0)
                    row[x] = composed(row[x], colour, part);
        }
    }
    top_ = height_;
    bottom_ = 0;
}

} // namespace easel::paint
