#include "easel/svg/PathText.h"

#include "easel/svg/Numbers.h"
#include "easel/svg/Outline.h"

#include <cmath>

namespace easel::svg {
namespace {

bool same(AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; }

bool isStraight(const AIPathSegment& from, const AIPathSegment& to) {
    return same(from.out, from.p) && same(to.in, to.p);
}

/// Without an offset the stored reals themselves are written, with their few digits.
void appendX(std::string& text, AIRealPoint point, Point offset) {
    if (offset.x == 0)
        appendNumber(text, point.h);
    else
        appendNumber(text, static_cast<double>(point.h) + offset.x);
}

void appendY(std::string& text, AIRealPoint point, Point offset) {
    if (offset.y == 0)
        appendNumber(text, -point.v);
    else
        appendNumber(text, offset.y - static_cast<double>(point.v));
}

void appendPiece(std::string& text, const AIPathSegment& from, const AIPathSegment& to,
                 Point offset) {
    if (!isStraight(from, to)) {
        text += 'C';
        appendPoint(text, from.out, offset);
        text += ' ';
        appendPoint(text, to.in, offset);
        text += ' ';
        appendPoint(text, to.p, offset);
    } else if (from.p.v == to.p.v) {
        text += 'H';
        appendX(text, to.p, offset);
    } else if (from.p.h == to.p.h) {
        text += 'V';
        appendY(text, to.p, offset);
    } else {
        text += 'L';
        appendPoint(text, to.p, offset);
    }
}

/// Z alone would lose the curve, and an anchor on top of the first would be taken for the first.
bool needsClosingPiece(const AIPathSegment& last, const AIPathSegment& first) {
    if (!isStraight(last, first)) return true;
    return std::hypot(last.p.h - first.p.h, last.p.v - first.p.v) <= 2 * kSamePoint;
}

} // namespace

void appendPoint(std::string& text, AIRealPoint point, Point offset) {
    appendX(text, point, offset);
    text += ' ';
    appendY(text, point, offset);
}

std::string transformText(const AIRealMatrix& m, Point offset) {
    std::string text = "matrix(";
    for (const AIReal entry : {m.a, -m.b, m.c, -m.d}) {
        appendNumber(text, entry);
        text += ' ';
    }
    appendPoint(text, {m.tx, m.ty}, offset);
    return text += ')';
}

void appendPathText(std::string& text, std::span<const AIPathSegment> segments, bool closed,
                    Point offset) {
    if (segments.empty()) return;
    text += 'M';
    appendPoint(text, segments.front().p, offset);
    for (std::size_t i = 1; i < segments.size(); ++i)
        appendPiece(text, segments[i - 1], segments[i], offset);
    if (!closed) return;
    const bool alone = segments.size() == 1 && isStraight(segments.back(), segments.front());
    if (!alone && needsClosingPiece(segments.back(), segments.front()))
        appendPiece(text, segments.back(), segments.front(), offset);
    text += 'Z';
}

} // namespace easel::svg
