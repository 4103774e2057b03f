#pragma once

#include "easel/paint/Painter.h"

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace easel::paint {

struct PixelRect {
    int left, top, right, bottom;
};

/// Fills shapes with one colour and smooth edges, in a time that goes with their size.
///
/// Each pixel holds by how much of it the shape grows from its left neighbour's; the sum along a
/// row is how often the shape goes round each pixel.
class Raster {
public:
    Raster(int width, int height);

    /// A straight edge of the shape. The edges together enclose something.
    void addEdge(Point from, Point to);
    /// The edges of a line from point to point, as wide as `width` pixels.
    void addLine(std::span<const Point> points, double width);
    /// Paints the shape on rows of pixels, multiplied by alpha, and forgets it. The rectangles of
    /// `clip` come from top to bottom, in bands that do not overlap.
    void paint(std::uint32_t* pixels, std::span<const PixelRect> clip, FillRule rule,
               std::uint32_t colour);

private:
    /// The cells of a row that edges have run through, and one more.
    struct Span {
        int left = std::numeric_limits<int>::max();
        int right = 0;
    };

    int width_;
    int height_;
    std::size_t stride_;
    std::vector<float> growth_;
    std::vector<std::uint8_t> covered_; ///< Of a row.
    std::vector<Span> touched_;         ///< Of each row,
    int top_;                           ///< and the rows
    int bottom_ = 0;                    ///< that any edge has.
};

/// `over`, made `part` / 255 as strong, over `under`; both multiplied by alpha.
[[nodiscard]] std::uint32_t composed(std::uint32_t under, std::uint32_t over, std::uint32_t part);

} // namespace easel::paint
