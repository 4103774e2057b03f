#include "tests/symmetry/PathText.h"

#include <cmath>
#include <sstream>

namespace facetta::tests {

PathShape shapeOf(std::string_view text) {
    PathShape shape;
    std::istringstream words{std::string(text)};
    const auto nextPoint = [&words] {
        Point point;
        words >> point.x >> point.y;
        return rounded(point);
    };
    for (char command = 0; words >> command;) {
        if (command == 'Z') {
            shape.closed = true;
            PathSegment& first = shape.segments.front();
            if (shape.segments.size() > 1 && shape.segments.back().anchor == first.anchor) {
                first.in = shape.segments.back().in;
                shape.segments.pop_back();
            }
            continue;
        }
        Point in;
        if (command == 'C') {
            shape.segments.back().out = nextPoint();
            in = nextPoint();
        }
        const Point anchor = nextPoint();
        shape.segments.push_back({anchor, command == 'C' ? in : anchor, anchor});
    }
    return shape;
}

namespace {

void write(std::ostream& text, Point point) {
    for (const double value : {point.x, point.y})
        text << ' ' << std::round(value * 100.0) / 100.0 + 0.0; // no "-0"
}

void writeCurve(std::ostream& text, const Cubic& curve, bool closing) {
    const bool straight = curve.p0 == curve.p1 && curve.p2 == curve.p3;
    if (straight && closing) return;
    text << (straight ? " L" : " C");
    if (!straight) {
        write(text, curve.p1);
        write(text, curve.p2);
    }
    write(text, curve.p3);
}

} // namespace

std::string textOf(const PathShape& shape) {
    std::ostringstream text;
    text << "M";
    write(text, shape.segments.front().anchor);
    for (std::size_t i = 0; i < curveCount(shape); ++i)
        writeCurve(text, curveAt(shape, i), i + 1 == shape.segments.size());
    if (shape.closed) text << " Z";
    return text.str();
}

} // namespace facetta::tests
