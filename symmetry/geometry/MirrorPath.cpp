#include "symmetry/geometry/MirrorPath.h"

#include "symmetry/geometry/Tolerances.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace facetta {
namespace {

/// Moves a segment so that its anchor lies on `ray`. An anchor that is as near to it as stored
/// coordinates can be stays: moving it again would only shift its rounding along the ray.
void moveOnto(const Wedge& wedge, Ray ray, PathSegment& segment) {
    const Point target = wedge.onto(ray, segment.anchor);
    const Vector offset = target - segment.anchor;
    const double spacing =
        kStorageSpacing * std::max(std::abs(segment.anchor.x), std::abs(segment.anchor.y));
    if (length(offset) <= spacing) return;
    const Point anchor = rounded(target);
    for (Point* handle : {&segment.in, &segment.out}) // one that is on the anchor stays on it
        *handle = *handle == segment.anchor ? anchor : rounded(*handle + offset);
    segment.anchor = anchor;
}

/// The ray onto which an end is to be moved: the nearer of the two within reach.
Ray rayNear(const MirrorFrame& frame, Point end) {
    Ray nearest = Ray::None;
    double reach = frame.snapDistance;
    for (const Ray ray : {Ray::First, Ray::Last}) {
        if (frame.wedge.along(ray, end) < 0.0) continue;
        const double away = frame.wedge.distanceFrom(ray, end);
        if (away < reach) {
            nearest = ray;
            reach = away;
        }
    }
    return nearest;
}

/// Lets a closed contour of `stretch` begin where its source does, when the curve that starts there
/// is kept, so that the active sector is found by the same curve again.
void startWithSource(const PathShape& source, const Stretch& stretch, Contour& contour) {
    const bool runsPastStart = source.closed && stretch.to.position() > 0.0 &&
                               stretch.to.position() <= stretch.from.position();
    if (!runsPastStart || !contour.shape.closed) return;
    const std::size_t turn =
        source.segments.size() - static_cast<std::size_t>(stretch.from.segment);
    std::vector<PathSegment>& segments = contour.shape.segments;
    std::rotate(segments.begin(), segments.begin() + static_cast<std::ptrdiff_t>(turn),
                segments.end());
    contour.firstJoint =
        (contour.jointSpacing - turn % contour.jointSpacing) % contour.jointSpacing;
}

/// A stretch that lies on a ray as an open path of its own. Handles that led into the curves beside
/// it go.
Contour alongRay(const Wedge& wedge, const PathShape& source, const Stretch& stretch) {
    std::vector<PathSegment> run = extract(source, stretch);
    moveOnto(wedge, stretch.from.ray, run.front());
    moveOnto(wedge, stretch.to.ray, run.back());
    const double lastPosition = static_cast<double>(source.segments.size() - 1);
    if (source.closed || stretch.from.position() > 0.0) run.front().in = run.front().anchor;
    if (source.closed || stretch.to.position() < lastPosition) run.back().out = run.back().anchor;
    return {.shape = {std::move(run), false}, .images = Images::Rotations};
}

/// The image of a contour under `map`, which needs no copies. That of a reflection runs backwards,
/// so that it winds around its inside as the original does.
Contour imageOf(const Contour& contour, const Matrix& map) {
    Contour image = contour;
    image.images = Images::None;
    for (PathSegment& segment : image.shape.segments)
        segment = transformed(segment, map);
    if (!mirrors(map)) return image;
    reverseRun(image.shape.segments);
    if (contour.shape.closed) // it begins as before
        std::rotate(image.shape.segments.begin(), image.shape.segments.end() - 1,
                    image.shape.segments.end());
    if (contour.jointSpacing > 0)
        image.firstJoint = (contour.jointSpacing - contour.firstJoint) % contour.jointSpacing;
    return image;
}

/// Contours painted as one path can only be copied together. When they need different copies, each
/// gets its own right here.
void agreeInImages(const PageAxes& axes, std::vector<Contour>& contours) {
    if (std::ranges::adjacent_find(contours, std::ranges::not_equal_to{}, &Contour::images) ==
        contours.end())
        return;
    std::vector<Contour> complete;
    for (const Contour& contour : contours) {
        complete.push_back(imageOf(contour, {}));
        for (const Matrix& map : imageTransforms(axes, contour.images))
            complete.push_back(imageOf(contour, map));
    }
    contours = std::move(complete);
}

/// Places along a path: each anchor, and so many of each curve in all.
constexpr std::size_t kPlacesPerCurve = 4;

std::vector<Point> placesAlong(const PathShape& path) {
    std::vector<Point> places;
    for (std::size_t i = 0; i < curveCount(path); ++i)
        for (std::size_t part = 0; part < kPlacesPerCurve; ++part)
            places.push_back(
                evaluate(curveAt(path, i), static_cast<double>(part) / kPlacesPerCurve));
    if (!path.segments.empty() && (!path.closed || places.empty()))
        places.push_back(path.segments.back().anchor);
    return places;
}

/// Whether `path` is the image of `source` under `map` to within `apart` points, wherever and in
/// whichever direction it begins.
bool isImage(const PathShape& path, const PathShape& source, const Matrix& map, double apart) {
    if (path.closed != source.closed || path.segments.size() != source.segments.size())
        return false;
    if (source.segments.empty()) return true;
    const Point start = apply(map, source.segments.front().anchor);
    if (std::ranges::none_of(path.segments, [&](const PathSegment& segment) {
            return distance(segment.anchor, start) <= apart;
        }))
        return false;

    const std::vector<Point> found = placesAlong(path);
    const std::vector<Point> wanted = placesAlong(source);
    const std::size_t count = wanted.size();
    const auto runsAlike = [&](std::size_t begin, bool backwards) {
        for (std::size_t i = 0; i < count; ++i) {
            const Point at = found[(backwards ? begin + count - i : begin + i) % count];
            if (distance(apply(map, wanted[i]), at) > apart) return false;
        }
        return true;
    };
    if (!path.closed) return runsAlike(0, false) || runsAlike(count - 1, true);
    for (std::size_t begin = 0; begin < count; begin += kPlacesPerCurve)
        if (runsAlike(begin, false) || runsAlike(begin, true)) return true;
    return false;
}

/// Whether paths together are their own image under `map`.
bool areOwnImage(std::span<const PathShape> paths, const Matrix& map, double apart) {
    return std::ranges::all_of(paths, [&](const PathShape& path) {
        return std::ranges::any_of(
            paths, [&](const PathShape& other) { return isImage(other, path, map, apart); });
    });
}

/// The copies that a path needs which is not cut. It may be what mirroring has joined before.
Images imagesAsDrawn(const MirrorFrame& frame, const PathShape& path) {
    const auto isOnRay = [&](Point place) { return frame.wedge.rayAt(place) != Ray::None; };
    if (std::ranges::all_of(placesAlong(path), isOnRay)) return Images::Rotations;
    const bool acrossFirst = isImage(path, path, frame.chains.acrossFirst[1], kImagesApart);
    const bool acrossLast = isImage(path, path, frame.chains.acrossLast[1], kImagesApart);
    if (acrossFirst && acrossLast) return Images::None;
    return acrossFirst || acrossLast ? Images::Rotations : Images::All;
}

/// Whether mirroring has put the images of all members into the compound path itself. A member that
/// counted as its own image then may be as far off, and all have been rounded since.
bool haveTheirImages(const MirrorFrame& frame, std::span<const PathShape> members) {
    constexpr double kApart = 2.0 * kImagesApart;
    return areOwnImage(members, frame.chains.acrossFirst[1], kApart) &&
           areOwnImage(members, frame.chains.acrossLast[1], kApart);
}

/// The members as they are, but for those without an anchor.
MirroredPath unchangedCompound(std::span<const PathShape> members, Images images) {
    MirroredPath result;
    result.compound = result.unchanged = true;
    for (const PathShape& member : members)
        if (!member.segments.empty())
            result.contours.push_back({.shape = member, .images = images});
    return result;
}

/// The mirroring of one path or compound path.
class Mirroring {
public:
    Mirroring(const MirrorFrame& frame, MirrorScratch& scratch)
        : frame_(frame), scratch_(scratch), contours_(scratch.contours.take()) {
        contours_.clear();
    }
    ~Mirroring() { scratch_.runs.giveBack(std::move(folded_.segments)); }
    Mirroring(const Mirroring&) = delete;
    Mirroring& operator=(const Mirroring&) = delete;

    MirroredPath path(const PathShape& source);
    MirroredPath compound(std::span<const PathShape> members, FillRule rule);

private:
    [[nodiscard]] Contour asDrawn(const PathShape& source) const;
    void takeUp(const PathShape& source);
    void addContours(double start);
    void addPieces(const Cut& cut);
    void dropContoursFrom(std::size_t first);
    void keepWhole(Images images);
    Cut cutOpen(double start);
    bool moveEnds();
    bool moveEnd(PathSegment& end);
    [[nodiscard]] bool runsAcross() const;
    bool dropFreeHandles();
    bool dropHandles(PathSegment& end);

    const MirrorFrame& frame_;
    MirrorScratch& scratch_;
    PathShape folded_; ///< the source in sector 0, prepared for cutting
    std::vector<Contour> contours_;
    bool endsChanged_ = false;
    bool cut_ = false;     ///< anything was
    bool changed_ = false; ///< and what came of it is not as it was
};

MirroredPath Mirroring::path(const PathShape& source) {
    MirroredPath result;
    if (source.segments.empty()) return result;
    takeUp(source);
    // Moving an end can take a short path out of the sector in which it was drawn. Then it belongs
    // to the sector beyond. Asking for ever clearer samples ends any going to and fro.
    double clear = isTooSmallToCut(frame_, source) ? kRayLength : kOnAxisDistance;
    for (; contours_.empty() && clear < kRayLength; clear *= 4.0) {
        const ActiveSector start = activeSectorOf(frame_, folded_, clear);
        foldInto0(frame_, start.sector, folded_);
        // An odd sector was turned over when it was folded: beyond it the sectors count downwards.
        const int sectors = sectorCount(frame_.axes);
        const int turn = result.sector % 2 == 0 ? start.sector : sectors - start.sector;
        result.sector = (result.sector + turn) % sectors;
        addContours(start.position);
    }
    if (contours_.empty()) return {.contours = {asDrawn(source)}, .unchanged = true};
    result.compound = source.closed && contours_.size() > 1;
    if (result.compound) agreeInImages(frame_.axes, contours_);
    result.carried = !endsChanged_ && !cut_;
    result.unchanged = result.sector == 0 && !endsChanged_ && !changed_;
    result.contours = std::move(contours_);
    return result;
}

MirroredPath Mirroring::compound(std::span<const PathShape> members, FillRule rule) {
    const std::vector<std::size_t> islandOf = islandsOf(members, rule);
    std::vector<DrawnIsland> islands = drawnIslands(frame_, members, islandOf);
    std::vector<bool> isKept(islands.size(), false);
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (members[i].segments.empty()) continue;
        const DrawnIsland& island = islands[islandOf[i]];
        const std::size_t before = contours_.size();
        if (island.asDrawn) {
            contours_.push_back(asDrawn(members[i]));
        } else {
            takeUp(members[i]);
            foldInto0(frame_, island.start.sector, folded_);
            addContours(&members[i] == island.leader ? island.start.position : kSampleParameter);
        }
        if (contours_.size() > before) isKept[islandOf[i]] = true;
    }
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (isKept[islandOf[i]] || members[i].segments.empty()) continue;
        islands[islandOf[i]].asDrawn = true;
        contours_.push_back(asDrawn(members[i]));
    }

    MirroredPath result;
    result.compound = true;
    if (!islands.empty()) result.sector = islands.front().start.sector;
    const bool fromOneSector = std::ranges::all_of(islands, [&](const DrawnIsland& island) {
        return !island.asDrawn && island.start.sector == result.sector;
    });
    result.carried = !endsChanged_ && !cut_ && fromOneSector && contours_.size() == members.size();
    const std::size_t kept = contours_.size();
    agreeInImages(frame_.axes, contours_);
    result.carried = result.carried && contours_.size() == kept;
    result.unchanged = std::ranges::equal(
        contours_, members,
        [](const PathShape& one, const PathShape& other) { return sameShape(one, other); },
        &Contour::shape);
    if (haveTheirImages(frame_, members)) return unchangedCompound(members, Images::None);
    result.contours = std::move(contours_);
    return result;
}

Contour Mirroring::asDrawn(const PathShape& source) const {
    return {.shape = source, .images = imagesAsDrawn(frame_, source)};
}

void Mirroring::takeUp(const PathShape& source) {
    if (folded_.segments.capacity() == 0) folded_.segments = scratch_.runs.take();
    folded_ = source;
}

/// Adds what is kept of the folded path.
void Mirroring::addContours(double start) {
    Cut cut =
        folded_.closed ? cutAtEdge(frame_.wedge, folded_, start, scratch_.cut) : cutOpen(start);
    const std::size_t before = contours_.size();
    addPieces(cut);
    scratch_.cut.kept.giveBack(std::move(cut.kept));
    if (cut.whole) return keepWhole(cut.wholeAlongRay ? Images::Rotations : Images::All);
    const bool asItWas =
        contours_.size() == before + 1 && sameShape(contours_.back().shape, folded_);
    // What mirroring has made before differs by no more than rounding from what it would make now.
    const Images own = asItWas ? Images::All : ownImages(frame_, folded_);
    if (own != Images::All) {
        dropContoursFrom(before);
        return keepWhole(own);
    }
    cut_ = true;
    changed_ = changed_ || !asItWas;
}

void Mirroring::addPieces(const Cut& cut) {
    for (const Stretch& stretch : cut.kept) {
        if (stretch.alongRay) {
            contours_.push_back(alongRay(frame_.wedge, folded_, stretch));
            continue;
        }
        const Ray start = stretch.from.ray;
        const Ray end = stretch.to.ray;
        const std::size_t images = joinedImages(frame_.chains, start, end);
        std::vector<PathSegment> run = extract(folded_, stretch, images, scratch_.runs.take());
        contours_.push_back(join(frame_.chains, {std::move(run), start, end}));
        startWithSource(folded_, stretch, contours_.back());
    }
}

void Mirroring::dropContoursFrom(std::size_t first) {
    for (std::size_t i = first; i < contours_.size(); ++i)
        scratch_.runs.giveBack(std::move(contours_[i].shape.segments));
    contours_.resize(first);
}

void Mirroring::keepWhole(Images images) {
    contours_.push_back({.shape = std::move(folded_), .images = images});
}

/// Prepares an open path and cuts it. Only what is cut or joined is prepared: a curve that meets no
/// axis stays as it was drawn.
Cut Mirroring::cutOpen(double start) {
    const bool joins = moveEnds();
    const bool isCut = joins || runsAcross();
    if (isCut) dropFreeHandles();
    Cut cut = cutAtEdge(frame_.wedge, folded_, start, scratch_.cut);
    if (isCut || cut.whole || !dropFreeHandles()) return cut;
    scratch_.cut.kept.giveBack(std::move(cut.kept));
    return cutAtEdge(frame_.wedge, folded_, start, scratch_.cut);
}

/// Whether the ends lie on different sides of the edge, so that an axis is crossed however the path
/// runs between them.
bool Mirroring::runsAcross() const {
    const double start = frame_.wedge.margin(folded_.segments.front().anchor);
    const double end = frame_.wedge.margin(folded_.segments.back().anchor);
    return std::min(start, end) < -kOnAxisDistance && std::max(start, end) > kOnAxisDistance;
}

/// Moves ends onto rays; whether any lies on one then.
bool Mirroring::moveEnds() {
    if (folded_.segments.empty()) return false;
    const bool startJoins = moveEnd(folded_.segments.front());
    return (folded_.segments.size() > 1 && moveEnd(folded_.segments.back())) || startJoins;
}

bool Mirroring::moveEnd(PathSegment& end) {
    const Ray ray = rayNear(frame_, end.anchor);
    if (ray != Ray::None) {
        const PathSegment drawn = end;
        moveOnto(frame_.wedge, ray, end);
        endsChanged_ = endsChanged_ || !sameShape(drawn, end);
    }
    return frame_.wedge.rayAt(end.anchor) != Ray::None;
}

/// A free end loses both handles, so that the path runs straight into it. Whether any did.
bool Mirroring::dropFreeHandles() {
    const bool startChanged = dropHandles(folded_.segments.front());
    const bool endChanged = dropHandles(folded_.segments.back());
    endsChanged_ = endsChanged_ || startChanged || endChanged;
    return startChanged || endChanged;
}

/// Not of an end outside, which goes with a part that is cut away: its handles still shape where
/// the cut falls.
bool Mirroring::dropHandles(PathSegment& end) {
    if (end.in == end.anchor && end.out == end.anchor) return false;
    const bool isOutside = frame_.wedge.margin(end.anchor) < 0.0;
    if (isOutside || frame_.wedge.rayAt(end.anchor) != Ray::None) return false;
    end.in = end.out = end.anchor;
    return true;
}

} // namespace

void MirrorScratch::giveBack(std::vector<Contour>&& done) {
    for (Contour& contour : done)
        runs.giveBack(std::move(contour.shape.segments));
    contours.giveBack(std::move(done));
}

MirroredPath mirror(const MirrorFrame& frame, const PathShape& source, MirrorScratch& scratch) {
    return Mirroring{frame, scratch}.path(source);
}

MirroredPath mirrorCompound(const MirrorFrame& frame, std::span<const PathShape> members,
                            FillRule rule, MirrorScratch& scratch) {
    return Mirroring{frame, scratch}.compound(members, rule);
}

} // namespace facetta
