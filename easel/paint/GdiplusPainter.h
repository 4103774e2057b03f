#pragma once

#include "easel/paint/Painter.h"
#include "easel/paint/Raster.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace easel::paint {

/// Paints through GDI+, on pixels of its own.
///
/// Where GDI+ smooths no edges its picture is made larger and averaged down (`kSamples`), so that
/// outlines come in the coordinates of that larger picture. Gradients and the opacity of groups are
/// computed here, because GDI+ knows neither SVG's radial gradients nor groups.
class GdiplusPainter final : public Painter {
public:
    /// How many samples a pixel has across and down.
    static constexpr int kSamples = 4;

    /// Rows `firstRow` to `firstRow + rows` of a picture of that width.
    GdiplusPainter(int width, int firstRow, int rows);
    /// Straight on rows of pixels in Windows' order, multiplied by alpha, a sample to a pixel:
    /// quick enough for a window that follows the mouse. GDI+ must be running as long as the
    /// painter is.
    GdiplusPainter(std::uint32_t* pixels, int width, int height);

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

    /// The rows averaged down: red, green, blue, alpha, not multiplied.
    void readRows(std::uint8_t* target) const;

private:
    /// A picture of samples, and what GDI+ paints on it with. Colours are multiplied by alpha.
    struct Layer {
        Layer(int width, int height);
        Layer(std::uint32_t* pixels, int width, int height);
        std::vector<std::uint32_t> own; ///< Empty when the samples are somebody else's.
        std::uint32_t* samples;
        std::unique_ptr<Gdiplus::Bitmap> bitmap;
        std::unique_ptr<Gdiplus::Graphics> graphics;
    };
    struct State {
        Matrix matrix;
        std::unique_ptr<Gdiplus::Region> clip;
        std::vector<PixelRect> areas;
    };

    [[nodiscard]] Gdiplus::Graphics& graphics() { return *layers_.back()->graphics; }
    [[nodiscard]] std::unique_ptr<Gdiplus::GraphicsPath> pathOf(const Outline& outline,
                                                                FillRule rule) const;
    /// The outline's chords in samples, figure by figure.
    void eachFigure(const Outline& outline,
                    const std::function<void(const std::vector<Point>&, bool closed)>& use) const;
    void paintPlain(const Outline& outline, FillRule rule, double lineWidth, const Ink& ink);
    /// Of straight edges alone.
    void paintFlat(const Gdiplus::GraphicsPath& path, const Ink& ink);
    void readClip();
    void paint(const Gdiplus::GraphicsPath& path, const Gdiplus::Pen* pen, const Ink& ink);
    void paintGradient(const Gdiplus::GraphicsPath& path, const Gdiplus::Pen* pen, const Ink& ink);
    std::unique_ptr<Layer> newLayer();

    bool direct_ = false; ///< A sample to a pixel: letters are fitted to them.
    int width_;           ///< In samples.
    int height_;          ///< In samples.
    Matrix matrix_;
    std::vector<State> saved_;
    /// When painting straight on somebody's pixels, where GDI+ takes a picture as large as each
    /// shape.
    std::unique_ptr<Raster> raster_;
    std::vector<PixelRect> clip_;
    std::vector<std::unique_ptr<Layer>> layers_;
    /// The image last painted: copies of it tend to follow.
    std::shared_ptr<Gdiplus::Bitmap> image_;
    const std::byte* imageBytes_ = nullptr;
};

} // namespace easel::paint
