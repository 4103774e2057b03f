#pragma once

#include "easel/svg/Content.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace easel::paint {

using svg::Colour;
using svg::Matrix;
using svg::Outline;
using svg::Point;
using svg::rectangle;

enum class FillRule { NonZero, EvenOdd };

/// What a shape is painted with: a plain colour, or a gradient.
struct Ink {
    Colour colour;
    /// Null: the colour. Otherwise its alpha counts alone.
    const svg::GradientContent* gradient = nullptr;
    Matrix gradientMatrix; ///< From the gradient's coordinates to the current ones.
};

struct Pen {
    double width = 1.0;
    svg::Cap cap = svg::Cap::Butt;
    svg::Join join = svg::Join::Miter;
    double miterLimit = 4.0;
    std::vector<double> dashes; ///< Lengths on and off, in turns; empty: not dashed.
    double dashOffset = 0.0;
};

/// Paints on a picture. Coordinates are the current ones: those of the picture's pixels, y
/// downwards, until `transform` changes them.
class Painter {
public:
    Painter() = default;
    virtual ~Painter() = default;
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// `restore` brings back the coordinates and the clip of the matching `save`.
    virtual void save() = 0;
    virtual void restore() = 0;
    /// From now on coordinates are those that `matrix` takes to the ones before.
    virtual void transform(const Matrix& matrix) = 0;
    /// From now on only what lies inside `outline` is painted, too.
    virtual void clip(const Outline& outline, FillRule rule) = 0;

    virtual void fill(const Outline& outline, FillRule rule, const Ink& ink) = 0;
    virtual void stroke(const Outline& outline, const Pen& pen, const Ink& ink) = 0;

    /// What is painted between the two appears as one, at this opacity. Groups nest.
    virtual void beginGroup() = 0;
    virtual void endGroup(double opacity) = 0;

    /// One line of UTF-8 text, its baseline beginning at `start`.
    virtual void text(const std::string& text, const svg::Font& font, Point start,
                      const Ink& ink) = 0;
    [[nodiscard]] virtual double textWidth(const std::string& text, const svg::Font& font) = 0;

    /// A PNG file's picture, stretched over the rectangle; nothing when it is none.
    virtual void image(std::span<const std::byte> png, Point corner, Point size) = 0;
};

} // namespace easel::paint
