#include "easel/svg/Outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace easel::svg {
namespace {

void addCurve(Box& box, const Anchor& from, const Anchor& to) {
    const Extent across = extentOf(from.p.x, from.out.x, to.in.x, to.p.x);
    const Extent down = extentOf(from.p.y, from.out.y, to.in.y, to.p.y);
    box.add({across.low, down.low});
    box.add({across.high, down.high});
}

/// One piece of an ellipse that `place` makes of the unit circle, from angle `from` by `step`.
void appendArcPiece(Subpath& subpath, const Matrix& place, double from, double step) {
    const double handle = 4.0 / 3.0 * std::tan(step / 4.0);
    const Point start{std::cos(from), std::sin(from)};
    const Point end{std::cos(from + step), std::sin(from + step)};
    appendCurve(subpath, place * Point{start.x - handle * start.y, start.y + handle * start.x},
                place * Point{end.x + handle * end.y, end.y - handle * end.x}, place * end);
}

} // namespace

void appendLine(Subpath& subpath, Point end) { subpath.anchors.push_back(cornerAt(end)); }

void appendCurve(Subpath& subpath, Point control1, Point control2, Point end) {
    subpath.anchors.back().out = control1;
    subpath.anchors.push_back({end, control2, end});
}

/// On the unit circle that the ellipse is an image of, the two ends are `from` and `to`; the centre
/// lies on the bisector of the chord between them.
void appendArc(Subpath& subpath, Point radii, double rotationDegrees, bool largeArc, bool sweep,
               Point end) {
    const Point start = subpath.anchors.back().p;
    if (start == end) return;
    if (radii.x == 0 || radii.y == 0) return appendLine(subpath, end);

    const double angle = std::remainder(rotationDegrees, 360.0) * std::numbers::pi / 180.0;
    Matrix place =
        Matrix{std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0} *
        Matrix{std::abs(radii.x), 0, 0, std::abs(radii.y), 0, 0};
    const std::optional<Matrix> toUnit = inverse(place);
    if (!toUnit) return appendLine(subpath, end);
    const Point from = *toUnit * start;
    const Point to = *toUnit * end;
    const Point halfChord = 0.5 * (to - from);
    const double halfLength = std::hypot(halfChord.x, halfChord.y);
    // An ellipse too small to reach is drawn as large as need be: the chord is its diameter then.
    const double scale = std::max(1.0, halfLength);
    const double height = std::sqrt(std::max(0.0, scale * scale - halfLength * halfLength));
    const double side = (largeArc == sweep ? -1.0 : 1.0) * height / halfLength;
    const Point centre = 0.5 * (from + to) + Point{-side * halfChord.y, side * halfChord.x};

    const double first = std::atan2(from.y - centre.y, from.x - centre.x);
    double extent = std::atan2(to.y - centre.y, to.x - centre.x) - first;
    if (sweep && extent < 0) extent += 2 * std::numbers::pi;
    if (!sweep && extent > 0) extent -= 2 * std::numbers::pi;
    place = place * Matrix{scale, 0, 0, scale, centre.x, centre.y};
    const double quarters = std::abs(extent) / (std::numbers::pi / 2);
    const int pieces = std::max(1, static_cast<int>(std::ceil(quarters - 1e-9)));
    for (int piece = 0; piece < pieces; ++piece)
        appendArcPiece(subpath, place, first + piece * extent / pieces, extent / pieces);
    subpath.anchors.back() = {end, subpath.anchors.back().in, end};
}

Outline rectangle(Point from, Point to) {
    return {
        {{cornerAt(from), cornerAt({to.x, from.y}), cornerAt(to), cornerAt({from.x, to.y})}, true}};
}

void close(Subpath& subpath) {
    subpath.closed = true;
    Anchor& first = subpath.anchors.front();
    const Anchor& last = subpath.anchors.back();
    const Point gap = last.p - first.p;
    if (subpath.anchors.size() < 2 || std::hypot(gap.x, gap.y) > kSamePoint) return;
    first.in = last.in == last.p ? first.p : last.in;
    subpath.anchors.pop_back();
}

Outline transformed(Outline outline, const Matrix& matrix) {
    for (Subpath& subpath : outline)
        for (Anchor& anchor : subpath.anchors)
            anchor = {matrix * anchor.p, matrix * anchor.in, matrix * anchor.out};
    return outline;
}

void Box::add(Point point) {
    if (empty) {
        min = max = point;
        empty = false;
        return;
    }
    min = {std::min(min.x, point.x), std::min(min.y, point.y)};
    max = {std::max(max.x, point.x), std::max(max.y, point.y)};
}

Matrix fromUnitSquare(const Box& box) {
    return {box.max.x - box.min.x, 0, 0, box.max.y - box.min.y, box.min.x, box.min.y};
}

Box boundsOf(const Outline& outline) {
    Box box;
    for (const Subpath& subpath : outline) {
        const std::vector<Anchor>& anchors = subpath.anchors;
        if (anchors.empty()) continue;
        box.add(anchors.front().p);
        for (std::size_t i = 1; i < anchors.size(); ++i)
            addCurve(box, anchors[i - 1], anchors[i]);
        if (subpath.closed) addCurve(box, anchors.back(), anchors.front());
    }
    return box;
}

} // namespace easel::svg
