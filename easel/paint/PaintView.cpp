#include "easel/paint/PaintView.h"

#include "easel/paint/PaintAnnotations.h"
#include "easel/paint/PaintDocument.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {
namespace {

constexpr Colour kLightPasteboard{0.80F, 0.80F, 0.80F, 1.0F};
constexpr Colour kDarkPasteboard{0.26F, 0.26F, 0.26F, 1.0F};
constexpr Colour kPaper{1.0F, 1.0F, 1.0F, 1.0F};
constexpr Colour kPaperEdge{0.0F, 0.0F, 0.0F, 1.0F};

/// From soft coordinates to pixels of the view, whose whole numbers lie in the middles of pixels.
Matrix toPixels(const DocumentView& view) {
    const AIRealPoint corner = toView(view, {0, 0});
    const auto zoom = static_cast<double>(view.zoom);
    return {zoom,
            0,
            0,
            -zoom,
            static_cast<double>(corner.h) + 0.5,
            static_cast<double>(corner.v) + 0.5};
}

/// Edges of the paper lie between pixels, the line around it on them.
void paintPaper(const DocumentView& view, Painter& painter) {
    const AIRealRect board = view.document->artboard();
    const AIPoint from = toViewPixel(view, {board.left, board.top});
    const AIPoint to = toViewPixel(view, {board.right, board.bottom});
    const auto between = [](AIPoint pixel, double shift) {
        return Point{pixel.h + shift, pixel.v + shift};
    };
    painter.fill(rectangle(between(from, 0), between(to, 0)), FillRule::NonZero,
                 {kPaper, nullptr, {}});
    painter.stroke(rectangle(between(from, -0.5), between(to, 0.5)), Pen{},
                   {kPaperEdge, nullptr, {}});
}

} // namespace

void paintPage(const DocumentView& view, Painter& painter, const ViewPictureOptions& options) {
    PaintOptions art;
    art.guides = true;
    art.scale = static_cast<double>(view.zoom) * options.scale;
    const Point far{static_cast<double>(view.width), static_cast<double>(view.height)};
    painter.fill(rectangle({0, 0}, far), FillRule::NonZero,
                 {options.darkTheme ? kDarkPasteboard : kLightPasteboard, nullptr, {}});
    paintPaper(view, painter);
    painter.save();
    painter.transform(toPixels(view));
    paintArt(*view.document, painter, art);
    painter.restore();
}

Picture paintView(const DocumentView& view, const DisplayList& annotations,
                  const ViewPictureOptions& options) {
    const double width = std::ceil(view.width * options.scale - 1e-6);
    const double height = std::ceil(view.height * options.scale - 1e-6);
    checkPictureSize(std::max(1.0, width), std::max(1.0, height));
    const auto all = [&](Painter& painter) {
        painter.transform({options.scale, 0, 0, options.scale, 0, 0});
        paintPage(view, painter, options);
        paintAnnotations(annotations, painter);
    };
    return render(static_cast<int>(width), static_cast<int>(height), all);
}

} // namespace easel::paint
