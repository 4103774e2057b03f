#pragma once

/// Mirrored art as outlines that are quick to draw, for art of any size.
///
/// What is kept is the art of one sector, as it is and flattened, and the maps that make its
/// images. Few curves are drawn as curves, which are smooth at every density of the screen. When
/// all images together would be more lines than can be drawn while the mouse moves, detail goes:
/// first points that lie close together, then small paths.

#include "symmetry/geometry/MirrorPath.h"

#include <cstddef>
#include <span>
#include <vector>

namespace facetta {

/// One path of the preview and where it is drawn.
struct PreviewPath {
    std::size_t begin = 0; ///< its first point
    std::size_t count = 0;
    std::size_t controlsBegin = 0; ///< its first control point
    std::size_t curveCount = 0;
    bool closed = false;
    Images images = Images::All; ///< copies that are drawn
    bool isArt = false;          ///< the path itself lies in the drawing already: only its copies
    Point middle{};              ///< of its bounding box
    double radius = 0.0;         ///< of a circle round it, from the middle
};

class PreviewPaths {
public:
    /// Starts anew for `axes`; `tolerance` is how far a line may be off its curve, in points.
    void begin(const PageAxes& axes, double tolerance);

    void add(const PathShape& shape, Images images, bool isArt);

    /// Leaves out detail until all images are no more than `mostLines` lines.
    void limit(std::size_t mostLines);

    /// Lines of all images together.
    [[nodiscard]] std::size_t lineCount() const;
    /// Curves of all images together.
    [[nodiscard]] std::size_t curveCount() const;

    [[nodiscard]] std::span<const PreviewPath> paths() const { return paths_; }
    [[nodiscard]] std::span<const Point> pointsOf(const PreviewPath& path) const {
        return std::span(points_).subspan(path.begin, path.count);
    }
    /// The control points of its curves: the first anchor, then two handles and an anchor for each.
    [[nodiscard]] std::span<const Point> controlsOf(const PreviewPath& path) const {
        return std::span(controls_).subspan(path.controlsBegin, 1 + 3 * path.curveCount);
    }
    /// The maps under which `path` is drawn.
    [[nodiscard]] std::span<const Matrix> mapsOf(const PreviewPath& path) const;
    /// The most points of one path, and the most control points.
    [[nodiscard]] std::size_t mostPoints() const;
    [[nodiscard]] std::size_t mostControls() const;

private:
    void thinOut(double detail);
    void finish(PreviewPath& path) const;

    double tolerance_ = 0.0;
    std::vector<Point> points_;
    std::vector<Point> controls_;
    std::vector<PreviewPath> paths_;
    std::vector<Matrix> all_;       ///< the identity, then those of `Images::All`
    std::vector<Matrix> rotations_; ///< the identity, then those of `Images::Rotations`
};

} // namespace facetta
