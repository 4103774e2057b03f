#pragma once

#include "easel/svg/Transform.h"

#include <vector>

/// Curves as every shape of SVG comes down to them.
namespace easel::svg {

/// The curve from anchor i to i + 1 is the cubic (p[i], out[i], in[i + 1], p[i + 1]); a straight
/// piece has its handles exactly on its anchors.
struct Anchor {
    Point p;
    Point in;
    Point out;
    bool operator==(const Anchor&) const = default;
};

struct Subpath {
    std::vector<Anchor> anchors;
    /// A closed subpath's last curve leads from the last anchor back to the first.
    bool closed = false;
    bool operator==(const Subpath&) const = default;
};

/// Anchors of a closed subpath nearer than this to its start are the start: what is left of
/// relative coordinates that add up to nothing.
constexpr double kSamePoint = 1e-6;

using Outline = std::vector<Subpath>;

[[nodiscard]] constexpr Anchor cornerAt(Point p) { return {p, p, p}; }

/// A quarter ellipse or less is drawn by one cubic; `sweep` is SVG's flag: towards growing angles.
void appendArc(Subpath& subpath, Point radii, double rotationDegrees, bool largeArc, bool sweep,
               Point end);

/// Draws a straight piece or a curve on from the last anchor.
void appendLine(Subpath& subpath, Point end);
void appendCurve(Subpath& subpath, Point control1, Point control2, Point end);

[[nodiscard]] Outline rectangle(Point from, Point to);

/// Closes a subpath; where it ends on its first anchor, the two become one.
void close(Subpath& subpath);

[[nodiscard]] Outline transformed(Outline outline, const Matrix& matrix);

struct Box {
    Point min;
    Point max;
    bool empty = true;
    void add(Point point);
};

/// What brings the unit square over the box, as units of "objectBoundingBox" ask.
[[nodiscard]] Matrix fromUnitSquare(const Box& box);

/// The exact extremes of the curves, without stroke.
[[nodiscard]] Box boundsOf(const Outline& outline);

} // namespace easel::svg
