#include "easel/paint/PaintAnnotations.h"

#include "easel/core/Text.h"
#include "easel/paint/Picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel::paint {
namespace {

using Kind = DrawCommand::Kind;

constexpr double kPixelMiddle = 0.5;

/// The handle length that makes four cubics a circle of radius 1: 4/3 (sqrt(2) - 1).
constexpr double kCircleHandle = 4.0 / 3.0 * (std::numbers::sqrt2 - 1.0);

Point middleOf(AIPoint pixel) { return {pixel.h + kPixelMiddle, pixel.v + kPixelMiddle}; }

Outline polygon(const std::vector<AIPoint>& points, bool closed) {
    svg::Subpath subpath;
    subpath.anchors.reserve(points.size());
    for (const AIPoint point : points)
        subpath.anchors.push_back(svg::cornerAt(middleOf(point)));
    subpath.closed = closed;
    return {std::move(subpath)};
}

Outline ellipse(AIPoint from, AIPoint to) {
    const Point a = middleOf(from);
    const Point b = middleOf(to);
    const Point centre = 0.5 * (a + b);
    const Point radius = 0.5 * (b - a);
    const auto at = [&](double x, double y) {
        return Point{centre.x + radius.x * x, centre.y + radius.y * y};
    };
    constexpr double k = kCircleHandle;
    return {{{{at(1, 0), at(1, -k), at(1, k)},
              {at(0, 1), at(k, 1), at(-k, 1)},
              {at(-1, 0), at(-1, k), at(-1, -k)},
              {at(0, -1), at(-k, -1), at(k, -1)}},
             true}};
}

Outline bezier(const std::vector<AIPoint>& points) {
    svg::Subpath subpath;
    subpath.anchors.reserve(1 + points.size() / 3);
    subpath.anchors.push_back(svg::cornerAt(middleOf(points.front())));
    for (std::size_t i = 1; i + 2 < points.size(); i += 3)
        svg::appendCurve(subpath, middleOf(points[i]), middleOf(points[i + 1]),
                         middleOf(points[i + 2]));
    return {std::move(subpath)};
}

/// Nothing for what is no shape.
Outline outlineOf(const DrawCommand& command) {
    switch (command.kind) {
    case Kind::Line:
        return polygon(command.points, false);
    case Kind::Rect:
        return rectangle(middleOf(command.points[0]), middleOf(command.points[1]));
    case Kind::Polygon:
        return polygon(command.points, true);
    case Kind::Ellipse:
        return ellipse(command.points[0], command.points[1]);
    case Kind::Bezier:
        return bezier(command.points);
    default:
        return {};
    }
}

/// Twice the area that the anchors enclose, with a sign for the sense in which they go round.
double turningSense(const svg::Subpath& subpath) {
    double sum = 0;
    for (std::size_t i = 0; i < subpath.anchors.size(); ++i) {
        const Point a = subpath.anchors[i].p;
        const Point b = subpath.anchors[(i + 1) % subpath.anchors.size()].p;
        sum += a.x * b.y - a.y * b.x;
    }
    return sum;
}

/// Goes round as its neighbours in a clip do, so that together they cover what each covers.
svg::Subpath turnedAlike(svg::Subpath subpath) {
    if (turningSense(subpath) >= 0) return subpath;
    std::reverse(subpath.anchors.begin(), subpath.anchors.end());
    for (svg::Anchor& anchor : subpath.anchors)
        std::swap(anchor.in, anchor.out);
    return subpath;
}

Ink inkOf(const DrawStyle& style) {
    const auto channel = [](ai::uint16 value) { return static_cast<float>(value) / 65535.0F; };
    return {{channel(style.colour.red), channel(style.colour.green), channel(style.colour.blue),
             static_cast<float>(style.opacity)},
            nullptr,
            {}};
}

Pen penOf(const DrawStyle& style) {
    Pen pen;
    pen.width = static_cast<double>(style.lineWidth);
    if (style.dashed) pen.dashes.assign(style.dashes.begin(), style.dashes.end());
    return pen;
}

svg::Font fontOf(const DrawStyle& style) {
    return {utf8FromUtf32(style.fontName), static_cast<double>(style.fontSize), false, false};
}

/// Walks over the list with the clip that it has defined so far.
class AnnotationPainter {
public:
    explicit AnnotationPainter(Painter& painter) : painter_(painter) {}
    ~AnnotationPainter() { endClip(); }
    AnnotationPainter(const AnnotationPainter&) = delete;
    AnnotationPainter& operator=(const AnnotationPainter&) = delete;

    void paint(const DrawCommand& command) {
        switch (command.kind) {
        case Kind::ClipStart:
            endClip();
            defining_ = true;
            return;
        case Kind::ClipEnd:
            return beginClip();
        case Kind::ClipClear:
            return endClip();
        case Kind::Text:
            return paintText(command, middleOf(command.points[0]));
        default:
            return paintShape(command);
        }
    }

private:
    void paintShape(const DrawCommand& command) {
        const Outline outline = outlineOf(command);
        if (defining_) {
            for (const svg::Subpath& subpath : outline)
                clip_.push_back(turnedAlike(subpath));
            return;
        }
        const Ink ink = inkOf(command.style);
        if (command.fill)
            painter_.fill(outline, FillRule::NonZero, ink);
        else
            painter_.stroke(outline, penOf(command.style), ink);
    }

    void beginClip() {
        if (!defining_) return;
        defining_ = false;
        painter_.save();
        painter_.clip(clip_, FillRule::NonZero);
        clip_.clear();
        clipped_ = true;
    }

    void endClip() {
        defining_ = false;
        clip_.clear();
        if (clipped_) painter_.restore();
        clipped_ = false;
    }

    /// The baseline stands on whole pixels: letters are sharpest there.
    void paintText(const DrawCommand& command, Point start) {
        painter_.text(utf8FromUtf32(command.text), fontOf(command.style),
                      {start.x, std::round(start.y)}, inkOf(command.style));
    }

    Painter& painter_;
    Outline clip_;
    bool defining_ = false;
    bool clipped_ = false;
};

} // namespace

void paintAnnotations(const DisplayList& list, Painter& painter) {
    AnnotationPainter annotations{painter};
    for (const DrawCommand& command : list)
        annotations.paint(command);
}

double annotationWidth(const std::u32string& text, const DrawStyle& style) {
    double width = 0;
    static_cast<void>(render(1, 1, [&](Painter& painter) {
        width = painter.textWidth(utf8FromUtf32(text), fontOf(style));
    }));
    return width;
}

} // namespace easel::paint
