#include "tool/drawing/PreviewPaths.h"

#include <algorithm>
#include <cmath>

namespace facetta {
namespace {

/// More lines than this a single curve never becomes.
constexpr double kMostPieces = 256.0;

/// Lines that stay within `tolerance` of `curve`. A curve lies inside the hull of its control
/// points: handles on the chord make one line. Otherwise the error of a chord falls with the square
/// of their number, and is at most 1/8 of the second derivative, which the second differences of
/// the control points bound (Wang's formula).
int piecesOf(const Cubic& curve, double tolerance) {
    const LineSegment chord{curve.p0, curve.p3};
    const auto isNearChord = [&](Point handle) {
        return distance(handle, nearestPoint(chord, handle)) <= tolerance;
    };
    if (isNearChord(curve.p1) && isNearChord(curve.p2)) return 1;
    const Vector first = (curve.p0 - curve.p1) + (curve.p2 - curve.p1);
    const Vector second = (curve.p1 - curve.p2) + (curve.p3 - curve.p2);
    const double bend = std::max(length(first), length(second));
    constexpr double kCubic = 6.0 / 8.0;
    const double pieces = std::ceil(std::sqrt(kCubic * bend / tolerance));
    return static_cast<int>(std::clamp(pieces, 1.0, kMostPieces));
}

std::vector<Matrix> withIdentity(const PageAxes& axes, Images images) {
    std::vector<Matrix> maps = imageTransforms(axes, images);
    maps.insert(maps.begin(), Matrix{});
    return maps;
}

} // namespace

void PreviewPaths::begin(const PageAxes& axes, double tolerance) {
    tolerance_ = tolerance;
    points_.clear();
    controls_.clear();
    paths_.clear();
    all_ = withIdentity(axes, Images::All);
    rotations_ = withIdentity(axes, Images::Rotations);
}

void PreviewPaths::add(const PathShape& shape, Images images, bool isArt) {
    if (shape.segments.empty()) return;
    PreviewPath path{.begin = points_.size(),
                     .controlsBegin = controls_.size(),
                     .curveCount = facetta::curveCount(shape),
                     .closed = shape.closed,
                     .images = images,
                     .isArt = isArt};
    points_.push_back(shape.segments.front().anchor);
    controls_.push_back(shape.segments.front().anchor);
    for (std::size_t i = 0; i < path.curveCount; ++i) {
        const Cubic curve = curveAt(shape, i);
        controls_.insert(controls_.end(), {curve.p1, curve.p2, curve.p3});
        const int pieces = piecesOf(curve, tolerance_);
        for (int piece = 1; piece < pieces; ++piece)
            points_.push_back(evaluate(curve, piece / static_cast<double>(pieces)));
        points_.push_back(curve.p3);
    }
    path.count = points_.size() - path.begin;
    finish(path);
    paths_.push_back(path);
}

void PreviewPaths::limit(std::size_t mostLines) {
    constexpr double kCoarser = 1.5;
    // Ends: once the detail is wider than everything there is, nothing is left.
    for (double detail = tolerance_; lineCount() > mostLines; detail *= kCoarser)
        thinOut(detail);
}

std::size_t PreviewPaths::lineCount() const {
    std::size_t lines = 0;
    for (const PreviewPath& path : paths_)
        lines += path.count * mapsOf(path).size();
    return lines;
}

std::size_t PreviewPaths::curveCount() const {
    std::size_t curves = 0;
    for (const PreviewPath& path : paths_)
        curves += path.curveCount * mapsOf(path).size();
    return curves;
}

std::span<const Matrix> PreviewPaths::mapsOf(const PreviewPath& path) const {
    std::span<const Matrix> maps = path.images == Images::All         ? std::span(all_)
                                   : path.images == Images::Rotations ? std::span(rotations_)
                                                                      : std::span(all_).first(1);
    return path.isArt ? maps.subspan(1) : maps;
}

std::size_t PreviewPaths::mostPoints() const {
    std::size_t most = 0;
    for (const PreviewPath& path : paths_)
        most = std::max(most, path.count);
    return most;
}

std::size_t PreviewPaths::mostControls() const {
    std::size_t most = 0;
    for (const PreviewPath& path : paths_)
        most = std::max(most, 1 + 3 * path.curveCount);
    return most;
}

void PreviewPaths::finish(PreviewPath& path) const {
    const std::span<const Point> points = pointsOf(path);
    Point least = points.front();
    Point most = least;
    for (const Point point : points) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        most = {std::max(most.x, point.x), std::max(most.y, point.y)};
    }
    path.middle = lerp(least, most, 0.5);
    path.radius = distance(least, most) / 2;
}

void PreviewPaths::thinOut(double detail) {
    std::size_t end = 0; // of the points that stay
    const auto thinned = [&](PreviewPath& path) {
        if (path.radius < detail) return true;
        const std::span<const Point> points = pointsOf(path); // lies at or behind `end`
        const std::size_t begin = end;
        points_[end++] = points.front();
        for (const Point point :
             points.subspan(1, points.size() - std::min<std::size_t>(points.size(), 2)))
            if (distance(point, points_[end - 1]) >= detail) points_[end++] = point;
        if (points.size() > 1) points_[end++] = points.back();
        path.begin = begin;
        path.count = end - begin;
        return false;
    };
    std::vector<PreviewPath> kept;
    for (PreviewPath& path : paths_)
        if (!thinned(path)) kept.push_back(path);
    paths_ = std::move(kept);
    points_.resize(end);
}

} // namespace facetta
