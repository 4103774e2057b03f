#include "easel/svg/PathText.h"

#include "easel/svg/Content.h"
#include "easel/svg/Numbers.h"

#include <cmath>
#include <vector>

namespace easel::svg {
namespace {

/// The number that the few digits of a single-precision real stand for.
double brief(double value) {
    return parseNumber(formatNumber(static_cast<AIReal>(value))).value_or(value);
}

struct Placed {
    Point in;
    Point p;
    Point out;
};

bool isStraight(const Placed& from, const Placed& to) {
    return from.out == from.p && to.in == to.p;
}

/// Z alone would lose the curve, and an anchor on top of the first would be taken for the first.
bool needsClosingPiece(const Placed& last, const Placed& first) {
    if (!isStraight(last, first)) return true;
    return std::hypot(last.p.x - first.p.x, last.p.y - first.p.y) <= 2 * kSamePoint;
}

} // namespace

UserSpace::UserSpace(const Matrix& toDrawing, Point offset)
    : toDrawing_(toDrawing), offset_(offset),
      isDrawing_(toDrawing == Matrix{} && offset == Point{}) {
    const auto back = inverse(toDrawing);
    isPlane_ = back.has_value();
    back_ = back.value_or(Matrix{});
}

Matrix UserSpace::transformTo(const Matrix& soft) const {
    const Matrix exact = back_ * drawingMatrix(soft, offset_);
    const Matrix few{brief(exact.a), brief(exact.b), brief(exact.c),
                     brief(exact.d), brief(exact.e), brief(exact.f)};
    const AIRealMatrix one = toSoft(toDrawing_ * few, offset_);
    const AIRealMatrix other = toSoft(drawingMatrix(soft, offset_), offset_);
    return matrixOf(one) == matrixOf(other) ? few : exact;
}

std::string UserSpace::length(AIReal soft) const {
    const double scale = meanScale(toDrawing_);
    if (scale == 1 || !(scale > 0)) return formatNumber(soft);
    const double exact = soft / scale;
    const double few = brief(exact);
    return formatNumber(static_cast<AIReal>(few * scale) == soft ? few : exact);
}

/// Points that are the same in the model are the same here.
Point UserSpace::placed(AIRealPoint soft) const {
    if (isDrawing_) return {soft.h, -static_cast<double>(soft.v)};
    const Point exact = back_ * Point{soft.h + offset_.x, offset_.y - static_cast<double>(soft.v)};
    const Point few{brief(exact.x), brief(exact.y)};
    return same(toSoft(toDrawing_ * few, offset_), soft) ? few : exact;
}

void UserSpace::append(std::string& text, double value) const {
    if (isDrawing_)
        appendNumber(text, static_cast<AIReal>(value));
    else
        appendNumber(text, value);
}

std::string UserSpace::point(AIRealPoint soft) const {
    const Point at = placed(soft);
    std::string text;
    append(text, at.x);
    text += ' ';
    append(text, at.y);
    return text;
}

std::string UserSpace::path(std::span<const AIPathSegment> segments, bool closed) const {
    std::string text;
    if (segments.empty()) return text;
    std::vector<Placed> anchors;
    anchors.reserve(segments.size());
    for (const AIPathSegment& segment : segments) {
        const Point p = placed(segment.p);
        anchors.push_back({same(segment.in, segment.p) ? p : placed(segment.in), p,
                           same(segment.out, segment.p) ? p : placed(segment.out)});
    }
    const auto add = [&](Point at) {
        append(text, at.x);
        text += ' ';
        append(text, at.y);
    };
    const auto addPiece = [&](const Placed& from, const Placed& to) {
        if (!isStraight(from, to)) {
            text += 'C';
            add(from.out);
            text += ' ';
            add(to.in);
            text += ' ';
            add(to.p);
        } else if (from.p.y == to.p.y) {
            text += 'H';
            append(text, to.p.x);
        } else if (from.p.x == to.p.x) {
            text += 'V';
            append(text, to.p.y);
        } else {
            text += 'L';
            add(to.p);
        }
    };
    text += 'M';
    add(anchors.front().p);
    for (std::size_t i = 1; i < anchors.size(); ++i)
        addPiece(anchors[i - 1], anchors[i]);
    if (!closed) return text;
    const bool alone = anchors.size() == 1 && isStraight(anchors.back(), anchors.front());
    if (!alone && needsClosingPiece(anchors.back(), anchors.front()))
        addPiece(anchors.back(), anchors.front());
    return text += 'Z';
}

} // namespace easel::svg
