#include "symmetry/geometry/MirrorPath.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace facetta {

PathMirror::PathMirror(const PageAxes& axes, double snapDistance)
    : axes_(axes), wedge_(axes), snapDistance_(std::max(snapDistance, kOnAxisDistance)),
      cutter_(wedge_), joiner_(axes) {
    for (int sector = 0; sector < sectorCount(axes); ++sector)
        folds_.push_back(foldMatrix(axes, sector));
}

MirroredPath& PathMirror::mirror(PathShape&& source) {
    std::swap(folded_, source);
    begin();
    addMirrored(kOnAxisDistance);
    // Moving an end can take a short path out of the sector in which it was drawn. Then it belongs
    // to the sector beyond. Asking for ever clearer samples ends any going to and fro.
    double clear = kOnAxisDistance;
    for (; contourCount_ == 0 && !folded_.segments.empty() && clear < kRayLength; clear *= 4.0)
        addMirrored(clear);
    if (contourCount_ == 0) keepAsDrawn();
    result_.compound = folded_.closed && contourCount_ > 1;
    result_.carried = !endsMoved_ && !cut_;
    const auto joinedAsBefore = [this] {
        return !endsMoved_ && contourCount_ == 1 &&
               sameShape(result_.contours.front().shape, folded_);
    };
    result_.unchanged = result_.sector == 0 && (result_.carried || joinedAsBefore());
    if (result_.compound) agreeInImages();
    result_.contours.resize(contourCount_);
    return result_;
}

void PathMirror::addMirrored(double clear) {
    const Start start = findStart(folded_, clear);
    // An odd sector was turned over when it was folded: beyond it the sectors count downwards.
    const int turn = result_.sector % 2 == 0 ? start.sector : sectorCount(axes_) - start.sector;
    result_.sector = (result_.sector + turn) % sectorCount(axes_);
    foldSource(start.sector);
    if (!folded_.closed) snapEnds();
    addContours(start.position);
}

MirroredPath& PathMirror::mirrorCompound(std::span<const PathShape> members) {
    begin();
    const Start start = members.empty() ? Start{} : findStart(members.front(), kOnAxisDistance);
    result_.sector = start.sector;
    for (const PathShape& member : members) {
        folded_ = member;
        foldSource(start.sector);
        if (!folded_.closed) snapEnds();
        addContours(start.position);
    }
    if (contourCount_ == 0)
        for (const PathShape& member : members) {
            folded_ = member;
            foldSource(start.sector);
            keepAsDrawn();
        }
    result_.compound = true;
    const std::size_t kept = contourCount_;
    agreeInImages();
    result_.contours.resize(contourCount_);
    result_.carried = !endsMoved_ && !cut_ && kept == members.size() && contourCount_ == kept;
    result_.unchanged = std::ranges::equal(
        result_.contours, members,
        [](const PathShape& one, const PathShape& other) { return sameShape(one, other); },
        &Contour::shape);
    return result_;
}

/// Takes the source as the one contour, whose storage it gets in exchange.
void PathMirror::keepWhole(Images images) {
    Contour& contour = nextContour();
    std::swap(contour.shape, folded_);
    contour = {std::move(contour.shape), images};
}

/// The last resort when nothing would be left, which takes art that lies within a few hundredths of
/// a point of the origin or the axes: no path is ever lost.
void PathMirror::keepAsDrawn() {
    if (folded_.segments.empty()) return;
    cut_ = false;
    keepWhole(Images::All);
}

/// The sample that tells the sector must be clear of the axes to mean anything: a shape drawn
/// against an axis may well start with an edge on it. So samples are taken along the path until one
/// is clear of them by the distance `clear`, or else just clear of them.
PathMirror::Start PathMirror::findStart(const PathShape& path, double clear) const {
    constexpr double kSamples[] = {kSampleParameter, 1.0 - kSampleParameter, 0.5};
    for (const double distance : {clear, 0.5 * kOnAxisDistance})
        for (std::size_t i = 0; i < curveCount(path); ++i)
            for (const double t : kSamples) {
                const Point sample = evaluate(curveAt(path, i), t);
                const double place = static_cast<double>(i) + t;
                if (wedge_.margin(sample) > distance) return {0, place};
                if (wedge_.margin(foldIntoSector0(axes_, sample)) > distance)
                    return {sectorIndexOf(axes_, sample), place};
            }
    if (path.segments.empty()) return {};
    // The path lies on axes throughout, or is a single anchor. One on a ray of sector 0 is at home.
    const Point sample = curveCount(path) > 0 ? evaluate(curveAt(path, 0), kSampleParameter)
                                              : path.segments.front().anchor;
    const bool atHome = wedge_.margin(sample) >= -kOnAxisDistance;
    return {atHome ? 0 : sectorIndexOf(axes_, sample), kSampleParameter};
}

/// Carries the source, or what it has become, from `sector` into sector 0.
void PathMirror::foldSource(int sector) {
    if (sector == 0) return;
    for (PathSegment& segment : folded_.segments)
        segment = transformed(segment, fold(sector));
}

void PathMirror::snapEnds() {
    if (folded_.segments.empty()) return;
    snapEnd(folded_.segments.front());
    if (folded_.segments.size() > 1) snapEnd(folded_.segments.back());
}

/// Moves an end onto the nearer of the two rays when one is near enough. Otherwise the end is free
/// and loses both handles, so that the path runs straight into it; that is the rule, not an
/// oversight.
void PathMirror::snapEnd(PathSegment& end) {
    Ray nearest = Ray::None;
    double reach = snapDistance_;
    for (const Ray ray : {Ray::First, Ray::Last}) {
        if (wedge_.along(ray, end.anchor) < 0.0) continue;
        const double away = wedge_.distanceFrom(ray, end.anchor);
        if (away < reach) {
            nearest = ray;
            reach = away;
        }
    }
    const PathSegment drawn = end;
    if (nearest != Ray::None)
        moveOnto(nearest, end);
    else if (wedge_.rayAt(end.anchor) == Ray::None)
        end.in = end.out = end.anchor;
    endsMoved_ = endsMoved_ || !sameShape(drawn, end);
}

/// Moves a segment so that its anchor lies on `ray`. An anchor that is as near to it as stored
/// coordinates can be stays: moving it again would only shift its rounding along the ray.
void PathMirror::moveOnto(Ray ray, PathSegment& segment) const {
    const Point target = wedge_.onto(ray, segment.anchor);
    const Vector offset = target - segment.anchor;
    const double spacing =
        kStorageSpacing * std::max(std::abs(segment.anchor.x), std::abs(segment.anchor.y));
    if (length(offset) <= spacing) return;
    const Point anchor = rounded(target);
    for (Point* handle : {&segment.in, &segment.out}) // one that is on the anchor stays on it
        *handle = *handle == segment.anchor ? anchor : rounded(*handle + offset);
    segment.anchor = anchor;
}

void PathMirror::begin() {
    result_.sector = 0;
    endsMoved_ = cut_ = false;
    contourCount_ = 0;
}

Contour& PathMirror::nextContour() {
    if (contourCount_ == result_.contours.size()) result_.contours.emplace_back();
    return result_.contours[contourCount_++];
}

/// Adds what is kept of the folded path.
void PathMirror::addContours(double start) {
    if (folded_.segments.empty()) return;
    cutter_.cut(folded_, start);
    if (cutter_.keepsWhole()) {
        keepWhole(cutter_.wholeAlongRay() ? Images::Rotations : Images::All);
        return;
    }
    cut_ = true;
    for (const Stretch& stretch : cutter_.kept()) {
        if (stretch.alongRay) {
            addAlongRay(stretch);
            continue;
        }
        extract(folded_, stretch, piece_.segments);
        piece_.start = stretch.from.ray;
        piece_.end = stretch.to.ray;
        Contour& contour = nextContour();
        joiner_.join(piece_, contour);
        if (contour.shape.closed) startWithSource(stretch, contour);
    }
}

/// Lets a closed contour begin where its source does, when the curve that starts there is kept, so
/// that the active sector is found by the same curve again.
void PathMirror::startWithSource(const Stretch& stretch, Contour& contour) const {
    const bool runsPastStart = folded_.closed && stretch.to.position() > 0.0 &&
                               stretch.to.position() <= stretch.from.position();
    if (!runsPastStart) return;
    const std::size_t turn =
        folded_.segments.size() - static_cast<std::size_t>(stretch.from.segment);
    std::vector<PathSegment>& segments = contour.shape.segments;
    std::rotate(segments.begin(), segments.begin() + static_cast<std::ptrdiff_t>(turn),
                segments.end());
    contour.firstJoint =
        (contour.jointSpacing - turn % contour.jointSpacing) % contour.jointSpacing;
}

/// Adds a stretch that lies on a ray as an open path of its own. Handles that led into the curves
/// beside it go.
void PathMirror::addAlongRay(const Stretch& stretch) {
    Contour& contour = nextContour();
    std::vector<PathSegment>& run = contour.shape.segments;
    extract(folded_, stretch, run);
    moveOnto(stretch.from.ray, run.front());
    moveOnto(stretch.to.ray, run.back());
    const double lastPosition = static_cast<double>(folded_.segments.size() - 1);
    if (folded_.closed || stretch.from.position() > 0.0) run.front().in = run.front().anchor;
    if (folded_.closed || stretch.to.position() < lastPosition) run.back().out = run.back().anchor;
    contour = {std::move(contour.shape), Images::Rotations};
    contour.shape.closed = false;
}

namespace {

/// The image of a contour under `map`, which needs no copies. That of a reflection runs backwards,
/// so that it winds around its inside as the original does.
Contour imageOf(const Contour& contour, const Matrix& map) {
    Contour image = contour;
    image.images = Images::None;
    for (PathSegment& segment : image.shape.segments)
        segment = transformed(segment, map);
    if (!mirrors(map)) return image;
    const std::size_t fixed = contour.shape.closed ? 1 : 0; // it begins as before
    reverseRun(std::span(image.shape.segments).subspan(fixed));
    if (contour.jointSpacing > 0)
        image.firstJoint = (contour.jointSpacing - contour.firstJoint) % contour.jointSpacing;
    return image;
}

} // namespace

/// Contours painted as one path can only be copied together. When they need different copies, each
/// gets its own right here.
void PathMirror::agreeInImages() {
    const std::span<Contour> contours = std::span(result_.contours).first(contourCount_);
    if (std::ranges::adjacent_find(contours, std::ranges::not_equal_to{}, &Contour::images) ==
        contours.end())
        return;
    std::vector<Contour> complete;
    for (const Contour& contour : contours) {
        complete.push_back(imageOf(contour, {}));
        for (const Matrix& map : imageTransforms(axes_, contour.images))
            complete.push_back(imageOf(contour, map));
    }
    result_.contours = std::move(complete);
    contourCount_ = result_.contours.size();
}

} // namespace facetta
