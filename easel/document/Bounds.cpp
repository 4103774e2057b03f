#include "easel/document/Bounds.h"

#include "easel/document/ArtTree.h"
#include "easel/document/Bezier.h"

#include <algorithm>
#include <limits>

namespace easel {
namespace {

/// Grows with everything that is added; empty until then.
class Box {
public:
    void add(CurvePoint point, double margin = 0) {
        left_ = std::min(left_, point.x - margin);
        right_ = std::max(right_, point.x + margin);
        bottom_ = std::min(bottom_, point.y - margin);
        top_ = std::max(top_, point.y + margin);
    }
    void add(const Curve& curve, double margin) {
        const Extent x = extentOf(curve[0].x, curve[1].x, curve[2].x, curve[3].x);
        const Extent y = extentOf(curve[0].y, curve[1].y, curve[2].y, curve[3].y);
        add(CurvePoint{x.low, y.low}, margin);
        add(CurvePoint{x.high, y.high}, margin);
    }
    [[nodiscard]] std::optional<AIDoubleRect> result() const {
        if (left_ > right_) return std::nullopt;
        return AIDoubleRect{left_, top_, right_, bottom_};
    }

private:
    static constexpr double kInfinity = std::numeric_limits<double>::infinity();
    double left_ = kInfinity;
    double top_ = -kInfinity;
    double right_ = -kInfinity;
    double bottom_ = kInfinity;
};

CurvePoint through(const AIRealMatrix& m, AIRealPoint point) {
    const double x = point.h;
    const double y = point.v;
    return {m.a * x + m.c * y + m.tx, m.b * x + m.d * y + m.ty};
}

class BoundsWalk {
public:
    BoundsWalk(ai::int32 flags, const AIRealMatrix& matrix) : flags_(flags), matrix_(matrix) {}

    [[nodiscard]] bool leavesOut(const Art& art) const {
        if (asks(kExcludeHiddenBounds) && art.has(kArtHidden)) return true;
        if (art.type() != kPathArt) return false;
        const AIPathStyle& style = styleCarrier(art).style().path;
        const bool unpainted = style.fillPaint == 0 && style.strokePaint == 0;
        return (art.content().guide && asks(kExcludeGuideBounds)) ||
               (unpainted && asks(kExcludeUnpaintedObjectBounds));
    }

    void add(const Art& leaf) {
        if (leaf.type() == kPathArt)
            addPath(leaf);
        else
            addBox(leaf.details());
    }

    Box box;

private:
    [[nodiscard]] bool asks(ai::int32 flag) const { return (flags_ & flag) != 0; }

    [[nodiscard]] double margin(const Art& path) const {
        if (asks(kNoStrokeBounds | kNoExtendedBounds | kControlBounds) || path.content().guide)
            return 0;
        const AIPathStyle& style = styleCarrier(path).style().path;
        return style.strokePaint != 0 ? style.stroke.width / 2.0 : 0;
    }

    void addPath(const Art& path) {
        const auto segments = path.segments();
        const double around = margin(path);
        if (segments.size() == 1) box.add(through(matrix_, segments[0].p), around);
        const std::size_t curves = path.content().closed ? segments.size() : segments.size() - 1;
        for (std::size_t i = 0; !segments.empty() && i < curves; ++i) {
            const AIPathSegment& from = segments[i];
            const AIPathSegment& to = segments[(i + 1) % segments.size()];
            box.add(Curve{through(matrix_, from.p), through(matrix_, from.out),
                          through(matrix_, to.in), through(matrix_, to.p)},
                    around);
        }
        if (!asks(kControlBounds)) return;
        for (const AIPathSegment& segment : segments)
            for (const AIRealPoint point : {segment.p, segment.in, segment.out})
                box.add(through(matrix_, point));
    }

    void addBox(const ArtDetails& details) {
        const AIRealRect& rect = details.box;
        for (const AIRealPoint corner :
             {AIRealPoint{rect.left, rect.top}, AIRealPoint{rect.right, rect.top},
              AIRealPoint{rect.left, rect.bottom}, AIRealPoint{rect.right, rect.bottom}}) {
            const CurvePoint placed = through(details.matrix, corner);
            box.add({matrix_.a * placed.x + matrix_.c * placed.y + matrix_.tx,
                     matrix_.b * placed.x + matrix_.d * placed.y + matrix_.ty});
        }
    }

    ai::int32 flags_;
    AIRealMatrix matrix_;
};

} // namespace

std::optional<AIDoubleRect> boundsOf(const Art& art, ai::int32 flags, const AIRealMatrix& matrix) {
    BoundsWalk walk(flags, matrix);
    const Art* each = &art;
    while (each != nullptr) {
        const bool skip = walk.leavesOut(*each);
        if (!skip && !isContainer(*each)) walk.add(*each);
        each = skip ? nextSkippingChildren(*each, art) : nextInPreorder(*each, art);
    }
    return walk.box.result();
}

} // namespace easel
