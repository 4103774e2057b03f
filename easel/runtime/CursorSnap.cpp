#include "easel/runtime/CursorSnap.h"

#include "easel/document/PathMeasure.h"

#include <array>
#include <optional>

namespace easel {
namespace {

/// The nearest place found so far, if it lies within reach.
class Nearest {
public:
    Nearest(AIRealPoint point, double reach) : point_(curvePoint(point)), distance_(reach) {}

    void offer(CurvePoint place, double distance) {
        if (distance > distance_) return;
        distance_ = distance;
        place_ = place;
    }
    void offerAnchor(CurvePoint anchor) { offer(anchor, length(anchor - point_)); }
    void offerCurve(const Curve& curve) {
        if (!mayReach(curve, point_, distance_)) return;
        const NearestPoint nearest = nearestPoint(curve, point_);
        offer(pointAt(curve, nearest.t), nearest.distance);
    }
    [[nodiscard]] std::optional<CurvePoint> found() const { return place_; }

private:
    CurvePoint point_;
    double distance_;
    std::optional<CurvePoint> place_;
};

/// What one small letter searches for.
enum class Search { Anchors, Lines };

void offerPath(const Art& path, Search search, Nearest& nearest) {
    if (search == Search::Anchors)
        for (const AIPathSegment& segment : path.segments())
            nearest.offerAnchor(curvePoint(segment.p));
    else
        for (std::size_t i = 0; i < curveCount(path); ++i)
            nearest.offerCurve(curveFrom(path, i));
}

void offerArt(const Document& document, Search search, Nearest& nearest) {
    const Art& root = document.root();
    const Art* art = nextInPreorder(root, root);
    while (art != nullptr) {
        const bool hidden = art->has(kArtHidden);
        if (!hidden && art->type() == kPathArt) offerPath(*art, search, nearest);
        art = hidden ? nextSkippingChildren(*art, root) : nextInPreorder(*art, root);
    }
}

void offerRectangle(const AIRealRect& rect, Search search, Nearest& nearest) {
    const std::array<CurvePoint, 4> corners = {{{rect.left, rect.top},
                                                {rect.right, rect.top},
                                                {rect.right, rect.bottom},
                                                {rect.left, rect.bottom}}};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const CurvePoint from = corners[i];
        const CurvePoint to = corners[(i + 1) % corners.size()];
        if (search == Search::Anchors)
            nearest.offerAnchor(from);
        else
            nearest.offerCurve({from, from, to, to});
    }
}

} // namespace

AIRealPoint snapTo(const DocumentView& view, AIRealPoint point, std::string_view control) {
    const double reach = static_cast<double>(kSnapPixels / view.zoom);
    bool art = false;
    bool page = false;
    Nearest nearest{point, reach};
    const auto search = [&](Search what) {
        if (art) offerArt(*view.document, what, nearest);
        if (page) offerRectangle(view.document->artboard(), what, nearest);
        if (page) offerRectangle(view.document->canvas(), what, nearest);
    };
    for (const char letter : control) {
        if (letter == 'A') art = true;
        if (letter == 'P') page = true;
        if (letter == 'v') search(Search::Anchors);
        if (letter == 'o') search(Search::Lines);
        if (letter == ' ' && nearest.found()) break;
    }
    const auto found = nearest.found();
    return found ? realPoint(*found) : point;
}

} // namespace easel
