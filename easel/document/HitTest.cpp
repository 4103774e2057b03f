#include "easel/document/HitTest.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Attributes.h"
#include "easel/document/PathMeasure.h"
#include "host/Error.h"

#include <algorithm>
#include <tuple>

namespace easel {
namespace {

/// How often the path turns around the point; its ends are joined.
int windingAround(const Art& path, CurvePoint point) {
    constexpr int kPieces = 32;
    int winding = 0;
    const auto cross = [&](CurvePoint a, CurvePoint b) {
        const bool upwards = a.y <= point.y && b.y > point.y;
        const bool downwards = b.y <= point.y && a.y > point.y;
        if (!upwards && !downwards) return;
        const double x = a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x);
        if (x > point.x) winding += upwards ? 1 : -1;
    };
    for (std::size_t i = 0; i < curveCount(path); ++i) {
        const Curve curve = curveFrom(path, i);
        CurvePoint from = curve[0];
        for (int piece = 1; piece <= kPieces; ++piece) {
            const CurvePoint to =
                piece == kPieces ? curve[3] : pointAt(curve, double(piece) / kPieces);
            cross(from, to);
            from = to;
        }
    }
    if (!path.segments().empty())
        cross(curvePoint(path.segments().back().p), curvePoint(path.segments().front().p));
    return winding;
}

class Search {
public:
    Search(CurvePoint point, double reach, ai::int32 request)
        : point_(point), reach_(reach), noFills_(request == kAllNoFillHitRequest),
          onlySelected_(request == kSelectionHitRequest) {}

    void visit(Art& art) {
        if (art.type() == kPathArt) return visitPath(art);
        if (art.type() == kCompoundPathArt) return visitCompound(art);
        if (!isContainer(art)) visitBox(art);
    }

    HitResult best;

private:
    /// The lower, the better; equal ones leave the first, which is in front.
    using Rank = std::tuple<AIHitType, double>;

    void offer(Art& art, AIHitType type, std::size_t segment, double t, CurvePoint point) {
        const double away = length(point - point_);
        const bool better =
            best.art == nullptr || Rank{type, away} < Rank{best.type, best.distance};
        if (better) best = {&art, type, static_cast<ai::int16>(segment), t, point, away};
    }

    [[nodiscard]] bool isWanted(const Art& art) const {
        return !onlySelected_ || (selectionOf(art) != Selected::No && isEditable(art));
    }

    void visitPath(Art& path) {
        if (!isWanted(path)) return;
        visitAnchors(path);
        if (path.has(kArtSelected)) visitHandles(path);
        visitCurves(path);
        const bool isMember = &styleCarrier(path) != &path;
        if (!path.content().guide && !isMember && isFilled(path) &&
            isInside(path, windingAround(path, point_)))
            offer(path, kFillHit, 0, 0, point_);
    }

    /// The members of a compound path are filled as one shape.
    void visitCompound(Art& compound) {
        const bool isWhole = &styleCarrier(compound) == &compound;
        if (!isWhole || !isWanted(compound) || !isFilled(compound)) return;
        int winding = 0;
        for (Art* each = &compound; each != nullptr; each = nextInPreorder(*each, compound))
            if (each->type() == kPathArt) winding += windingAround(*each, point_);
        if (isInside(compound, winding)) offer(compound, kFillHit, 0, 0, point_);
    }

    [[nodiscard]] bool isFilled(const Art& art) const {
        return !noFills_ && art.style().path.fillPaint != 0;
    }
    static bool isInside(const Art& art, int winding) {
        return art.style().path.evenodd != 0 ? winding % 2 != 0 : winding != 0;
    }

    void visitAnchors(Art& path) {
        const auto segments = path.segments();
        for (std::size_t i = 0; i < segments.size(); ++i) {
            const CurvePoint anchor = curvePoint(segments[i].p);
            if (length(anchor - point_) <= reach_) offer(path, kAnchorHit, i, 0, anchor);
        }
    }

    void visitHandles(Art& path) {
        const auto segments = path.segments();
        for (std::size_t i = 0; i < segments.size(); ++i) {
            const CurvePoint anchor = curvePoint(segments[i].p);
            const auto visit = [&](AIRealPoint handle, AIHitType type) {
                const CurvePoint point = curvePoint(handle);
                if (length(point - anchor) > 0 && length(point - point_) <= reach_)
                    offer(path, type, i, 0, point);
            };
            visit(segments[i].in, kInHandleHit);
            visit(segments[i].out, kOutHandleHit);
        }
    }

    void visitCurves(Art& path) {
        for (std::size_t i = 0; i < curveCount(path); ++i) {
            const Curve curve = curveFrom(path, i);
            if (!mayReach(curve, point_, reach_)) continue;
            const NearestPoint nearest = nearestPoint(curve, point_);
            if (nearest.distance <= reach_)
                offer(path, kSegmentHit, (i + 1) % path.segments().size(), nearest.t,
                      pointAt(curve, nearest.t));
        }
    }

    void visitBox(Art& art) {
        if (noFills_ || !isWanted(art)) return;
        const auto& [left, top, right, bottom] = art.details().box;
        const AIRealMatrix& m = art.details().matrix;
        const double det = double{m.a} * m.d - double{m.b} * m.c;
        if (det == 0) return;
        const double dx = point_.x - m.tx;
        const double dy = point_.y - m.ty;
        const double x = (dx * m.d - dy * m.c) / det;
        const double y = (dy * m.a - dx * m.b) / det;
        const bool inside = x >= std::min(left, right) && x <= std::max(left, right) &&
                            y >= std::min(top, bottom) && y <= std::max(top, bottom);
        if (inside) offer(art, kFillHit, 0, 0, point_);
    }

    CurvePoint point_;
    double reach_;
    bool noFills_;
    bool onlySelected_;
};

} // namespace

HitResult hitTest(Art& root, AIRealPoint point, double reach, ai::int32 request) {
    if (request != kAllHitRequest && request != kAllNoFillHitRequest &&
        request != kSelectionHitRequest)
        throw ai::Error{kNotImplementedErr};
    Search search(curvePoint(point), reach, request);
    if (!isVisible(root)) return search.best;
    Art* each = &root;
    while (each != nullptr) {
        const bool skip = each->has(kArtHidden) || isResultGroup(*each);
        if (!skip) search.visit(*each);
        each = skip ? nextSkippingChildren(*each, root) : nextInPreorder(*each, root);
    }
    return search.best;
}

} // namespace easel
