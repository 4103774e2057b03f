#include "tool/drawing/Preview.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIAnnotatorDrawerSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/ViewScale.h"
#include "symmetry/geometry/CutMask.h"
#include "tool/ToolSession.h"

#include <algorithm>
#include <array>
#include <utility>

namespace facetta {
namespace {

/// A line may be this many pixels off its curve.
constexpr double kTolerance = 0.3;

/// Pixels. Lines reach over the edge of the view by their own width.
constexpr double kMargin = 2.0;

/// Pixels. Curves that reach farther over the edge of the view are drawn as lines and cut there:
/// hosts need not count beyond.
constexpr double kFarthest = 8192.0;

void addContours(PreviewPaths& paths, const MirroredPath& mirrored) {
    for (const Contour& contour : mirrored.contours)
        paths.add(contour.shape, contour.images, mirrored.unchanged);
}

void addParts(PreviewPaths& paths, const std::vector<SectorMask>& parts) {
    for (const SectorMask& part : parts)
        for (const PathShape& member : part.members)
            paths.add(member, Images::All, /*isArt*/ false);
}

void build(Preview& preview, const PageAxes& axes, double zoom) {
    preview.paths.begin(axes, kTolerance / zoom);
    const MirrorFrame frame{axes, kSnapPixels / zoom};
    MirrorScratch scratch;
    std::vector<PathShape> shapes(1);
    std::size_t room = kMostMirroredCurves / static_cast<std::size_t>(sectorCount(axes));
    for (const PreviewSource& source : preview.art.sources()) {
        const bool whole = source.pathCount == 0 || source.segments > room;
        if (whole) {
            preview.paths.add(boxOf(source), Images::All, /*isArt*/ true);
            continue;
        }
        room -= source.segments;
        shapes.resize(std::max(shapes.size(), source.pathCount));
        const std::span members = std::span(shapes).first(source.pathCount);
        for (std::size_t i = 0; i < members.size(); ++i)
            preview.art.copyPath(source.firstPath + i, members[i]);
        if (source.kind == UnitKind::Path)
            addContours(preview.paths, mirror(frame, members.front(), scratch));
        else if (source.kind == UnitKind::ClipGroup)
            addParts(preview.paths, cutMask(frame, members, FillRule::NonZero, scratch.cut));
        else
            addContours(preview.paths, mirrorCompound(frame, members, FillRule::NonZero, scratch));
    }
    preview.paths.limit(kMostPreviewLines);
    preview.asCurves = preview.paths.curveCount() <= kMostPreviewCurves;
    // Drawn open, each point has two handles.
    constexpr std::size_t kEnds = 2; // where it is cut by the edge of the view, and its closing
    preview.pixels.resize(
        std::max(3 * (preview.paths.mostPoints() + kEnds), preview.paths.mostControls()));
}

/// Draws one path after the other, point by point.
class PathDrawing {
public:
    PathDrawing(AIAnnotatorDrawer* drawer, std::span<AIPoint> pixels)
        : drawer_(drawer), pixels_(pixels) {}

    void curves(std::span<const Point> controls, const Matrix& map) {
        std::ranges::transform(controls, pixels_.begin(),
                               [&](Point control) { return nearestPixel(apply(map, control)); });
        drawCurves(controls.size());
    }

    // Pieces of a path as lines.

    void add(Point at) {
        const AIPoint pixel = nearestPixel(at);
        if (count_ > 0 && pixels_[count_ - 1].h == pixel.h && pixels_[count_ - 1].v == pixel.v)
            return;
        pixels_[count_++] = pixel;
    }

    /// The host closes every polygon, so an open line is curves with their handles on their
    /// anchors.
    void endOpen() {
        if (count_ > 1) {
            for (std::size_t i = count_ - 1; i > 0; --i) { // where they move to was read before
                const AIPoint from = pixels_[i - 1];
                const AIPoint to = pixels_[i];
                std::ranges::copy(std::array{from, to, to}, &pixels_[3 * i - 2]);
            }
            drawCurves(3 * count_ - 2);
        }
        count_ = 0;
    }

    void endClosed() {
        if (count_ > 1)
            ai::check(ai::suites.annotatorDrawer->DrawPolygon(drawer_, pixels_.data(),
                                                              static_cast<ai::uint32>(count_), 0));
        count_ = 0;
    }

private:
    void drawCurves(std::size_t controls) const {
        const auto* const sets = reinterpret_cast<const AIPoint(*)[3]>(pixels_.data() + 1);
        ai::check(ai::suites.annotatorDrawer->DrawBezier(drawer_, pixels_.front(), sets,
                                                         static_cast<ai::uint32>(controls / 3), 0));
    }

    AIAnnotatorDrawer* drawer_;
    std::span<AIPoint> pixels_;
    std::size_t count_ = 0;
};

/// The pieces of a line through `points` that lie in `area`.
void drawClipped(PathDrawing& drawing, std::span<const Point> points, const Matrix& map,
                 bool closed, const PixelRect& area) {
    Point previous = apply(map, points.front());
    const auto drawTo = [&](Point next) {
        const std::optional<LineSegment> piece = clipped({previous, next}, area);
        if (piece && piece->start != previous) drawing.endOpen();
        if (piece) {
            drawing.add(piece->start);
            drawing.add(piece->end);
        }
        if (!piece || piece->end != next) drawing.endOpen();
        previous = next;
    };
    for (const Point point : points.subspan(1))
        drawTo(apply(map, point));
    if (closed) drawTo(apply(map, points.front()));
    drawing.endOpen();
}

void drawImage(PathDrawing& drawing, const Preview& preview, const PreviewPath& path,
               const Matrix& map, const ViewMap& view) {
    const Point middle = apply(map, path.middle);
    const double radius = path.radius * view.zoom;
    const PixelRect area = grown(view.visible, kMargin);
    if (!contains(grown(area, radius), middle)) return;
    const bool fitsHost = contains(grown(area, kFarthest - radius), middle);
    if (preview.asCurves && path.curveCount > 0 && fitsHost)
        return drawing.curves(preview.paths.controlsOf(path), map);
    const std::span<const Point> points = preview.paths.pointsOf(path);
    if (!contains(grown(area, -radius), middle))
        return drawClipped(drawing, points, map, path.closed, area);
    for (const Point point : points)
        drawing.add(apply(map, point));
    if (path.closed)
        drawing.endClosed();
    else
        drawing.endOpen();
}

} // namespace

void refreshPreview(ToolSession& session) {
    ToolState& state = session.state;
    if (state.preview.captured || !documentIsOpen()) return;
    const bool ofLayer = axesOnLayer(state) || layerEditInProgress(state);
    std::vector<Unit> units = ofLayer ? std::vector<Unit>{} : unitsOfSelection();
    const AILayerHandle layer = units.empty() ? topLevelLayer(nullptr) : nullptr;
    if (layer != nullptr) units = sourcesOnLayer(layer);
    state.preview.art.read(units);
    state.preview.captured = true;
    state.preview.zoom = 0.0;
}

void clearPreview(ToolState& state) { state.preview = {}; }

void drawPreview(const Surface& surface, ToolSession& session) {
    Preview& preview = session.state.preview;
    const PageAxes axes = pageAxes(session.state.axes);
    if (preview.zoom != surface.view.zoom || preview.axes != axes) {
        build(preview, axes, surface.view.zoom);
        preview.axes = axes;
        preview.zoom = surface.view.zoom;
    }
    ai::suites.annotatorDrawer->SetColor(surface.drawer, surface.colours.preview);
    ai::suites.annotatorDrawer->SetLineWidth(surface.drawer, 1.0F);
    PathDrawing drawing{surface.drawer, preview.pixels};
    for (const PreviewPath& path : preview.paths.paths())
        for (const Matrix& map : preview.paths.mapsOf(path))
            drawImage(drawing, preview, path, compose(map, surface.view.toPixels), surface.view);
}

} // namespace facetta
