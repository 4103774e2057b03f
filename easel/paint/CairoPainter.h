#pragma once

#include "easel/paint/Painter.h"

#include <cairo.h>

#include <memory>

namespace easel::paint {

/// Paints through Cairo.
class CairoPainter final : public Painter {
public:
    /// `context` must outlive the painter.
    explicit CairoPainter(cairo_t* context) : context_(context) {}

    void save() override;
    void restore() override;
    void transform(const Matrix& matrix) override;
    void clip(const Outline& outline, FillRule rule) override;
    void fill(const Outline& outline, FillRule rule, const Ink& ink) override;
    void stroke(const Outline& outline, const Pen& pen, const Ink& ink) override;
    void beginGroup() override;
    void endGroup(double opacity) override;
    void text(const std::string& text, const svg::Font& font, Point start, const Ink& ink) override;
    [[nodiscard]] double textWidth(const std::string& text, const svg::Font& font) override;
    void image(std::span<const std::byte> png, Point corner, Point size) override;

private:
    void trace(const Outline& outline);
    void choose(const Ink& ink);
    void choose(const svg::Font& font);

    cairo_t* context_;
    int groups_ = 0; ///< Open ones, each a picture of its own.
    /// The image last painted: copies of it tend to follow.
    std::shared_ptr<cairo_surface_t> image_;
    const std::byte* imageBytes_ = nullptr;
};

} // namespace easel::paint
