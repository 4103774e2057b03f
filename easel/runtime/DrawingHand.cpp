#include "easel/runtime/DrawingHand.h"

#include "easel/document/Attributes.h"
#include "easel/document/Bounds.h"
#include "easel/document/FitCurve.h"
#include "easel/document/HitTest.h"
#include "easel/document/Placement.h"
#include "easel/document/SelectedArt.h"
#include "easel/document/Session.h"
#include "host/Messages.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel {
namespace {

constexpr double kPixelsAround = 4;     ///< Of the mouse: what lies there is picked.
constexpr double kStrokePixels = 1.5;   ///< That a stroke may lie beside the mouse's way.
constexpr double kPixelsBeforeMove = 3; ///< Less is a click by an unsteady hand.

/// The handle length that makes four cubics a circle of radius 1: 4/3 (sqrt(2) - 1).
constexpr double kCircleHandle = 4.0 / 3.0 * (std::numbers::sqrt2 - 1.0);

double apart(AIRealPoint a, AIRealPoint b) { return std::hypot(a.h - b.h, a.v - b.v); }

AIPathSegment cornerAt(AIRealPoint at) { return {at, at, at, true}; }

/// `to` with as much across as up, or in the nearest of eight directions.
AIRealPoint regularised(AIRealPoint from, AIRealPoint to, bool isLine) {
    const double across = to.h - from.h;
    const double up = to.v - from.v;
    if (!isLine) {
        const double side = std::max(std::abs(across), std::abs(up));
        return {static_cast<AIReal>(from.h + std::copysign(side, across)),
                static_cast<AIReal>(from.v + std::copysign(side, up))};
    }
    constexpr double kStep = std::numbers::pi / 4;
    const double angle = kStep * std::round(std::atan2(up, across) / kStep);
    const double length = across * std::cos(angle) + up * std::sin(angle);
    return {static_cast<AIReal>(from.h + length * std::cos(angle)),
            static_cast<AIReal>(from.v + length * std::sin(angle))};
}

Segments ellipse(AIRealPoint from, AIRealPoint to) {
    const double x = (from.h + to.h) / 2.0;
    const double y = (from.v + to.v) / 2.0;
    const double rx = to.h - x;
    const double ry = to.v - y;
    Segments segments;
    for (int quarter = 0; quarter < 4; ++quarter) {
        const double c = quarter % 2 == 0 ? 1 - quarter : 0;
        const double s = quarter % 2 == 1 ? 2 - quarter : 0;
        const auto at = [&](double side) {
            return realPoint(
                {x + rx * (c - side * kCircleHandle * s), y + ry * (s + side * kCircleHandle * c)});
        };
        segments.push_back({at(0), at(-1), at(1), false});
    }
    return segments;
}

/// What is picked and moved as one: the outermost group around `art`, below the layers.
Art& wholeOf(Art& art) {
    Art* whole = &art;
    while (whole->parent() != nullptr && !whole->parent()->isLayer() &&
           whole->parent()->parent() != nullptr)
        whole = whole->parent();
    return *whole;
}

} // namespace

void DrawingHand::press(Kind kind, Document& document, AIRealPoint at, ai::uint16 modifiers) {
    kind_ = kind;
    document_ = &document;
    path_ = nullptr;
    start_ = last_ = at;
    moved_ = false;
    marquee_.reset();
    if (!isDrawing()) return pick((modifiers & aiEventModifiers_shiftKey) != 0);
    const Position place = placeFor(document, kPlaceDefault, nullptr);
    if (!isEditable(*place.parent)) return;
    Art& path = createArt(document, kPathArt, place);
    ArtContent& content = path.write();
    if (kind == Kind::Pencil || kind == Kind::Line) content.style.write().path.fillPaint = 0;
    content.closed = kind == Kind::Rectangle || kind == Kind::Ellipse;
    content.segments.write() = {cornerAt(at)};
    path_ = path.handle();
    stroke_.assign(1, curvePoint(at));
}

void DrawingHand::pick(bool adds) {
    const double reach = kPixelsAround / static_cast<double>(document_->viewZoom);
    const HitResult hit = hitTest(document_->root(), start_, reach, kAllHitRequest);
    if (hit.art == nullptr || !isEditable(*hit.art)) {
        if (!adds) deselectAll(*document_);
        marquee_ = AIRealRect{start_.h, start_.v, start_.h, start_.v};
        return;
    }
    Art& whole = wholeOf(*hit.art);
    const bool was = selectionOf(whole) != Selected::No;
    if (!adds && !was) deselectAll(*document_);
    if (adds || !was) select(whole, !(adds && was));
}

void DrawingHand::drag(AIRealPoint to, ai::uint16 modifiers) {
    if (document_ == nullptr) return;
    const bool shift = (modifiers & aiEventModifiers_shiftKey) != 0;
    if (marquee_) {
        marquee_->right = to.h;
        marquee_->bottom = to.v;
    } else if (!isDrawing()) {
        moveTo(to, (modifiers & aiEventModifiers_optionKey) != 0);
    } else if (Art* const path = session_.findArt(path_)) {
        drawOut(*path, to, shift);
    }
}

void DrawingHand::moveTo(AIRealPoint to, bool copies) {
    const double zoom = document_->viewZoom;
    if (!moved_ && apart(start_, to) * zoom < kPixelsBeforeMove) return;
    if (!moved_ && copies) duplicateSelected(*document_);
    moved_ = true;
    moveSelected(*document_, static_cast<double>(to.h) - static_cast<double>(last_.h),
                 static_cast<double>(to.v) - static_cast<double>(last_.v));
    last_ = to;
}

void DrawingHand::drawOut(Art& path, AIRealPoint to, bool regular) {
    Segments& segments = path.write().segments.write();
    if (kind_ == Kind::Pencil) {
        stroke_.push_back(curvePoint(to));
        segments.push_back(cornerAt(to));
        return;
    }
    if (regular) to = regularised(start_, to, kind_ == Kind::Line);
    if (kind_ == Kind::Line)
        segments = {cornerAt(start_), cornerAt(to)};
    else if (kind_ == Kind::Rectangle)
        segments = {cornerAt(start_), cornerAt({to.h, start_.v}), cornerAt(to),
                    cornerAt({start_.h, to.v})};
    else
        segments = ellipse(start_, to);
}

void DrawingHand::finishStroke(Art& path) {
    const double tolerance = kStrokePixels / static_cast<double>(document_->viewZoom);
    const std::vector<Curve> curves = fitCurves(stroke_, tolerance);
    if (curves.empty()) return;
    Segments segments{cornerAt(realPoint(curves.front()[0]))};
    for (const Curve& curve : curves) {
        segments.back().out = realPoint(curve[1]);
        const AIRealPoint end = realPoint(curve[3]);
        segments.push_back({end, realPoint(curve[2]), end, false});
    }
    segments.front().corner = segments.back().corner = true; // the ends
    path.write().segments.write() = std::move(segments);
}

void DrawingHand::selectInMarquee() {
    const AIRealRect& area = *marquee_;
    const double left = std::min(area.left, area.right);
    const double right = std::max(area.left, area.right);
    const double bottom = std::min(area.top, area.bottom);
    const double top = std::max(area.top, area.bottom);
    const Art& root = document_->root();
    for (Art* art = nextInPreorder(root, root); art != nullptr; art = nextInPreorder(*art, root)) {
        if (isContainer(*art) || !isEditable(*art)) continue;
        const auto bounds = boundsOf(*art, 0);
        const bool touches = bounds && bounds->left <= right && bounds->right >= left &&
                             bounds->bottom <= top && bounds->top >= bottom;
        if (touches) select(wholeOf(*art), true);
    }
}

void DrawingHand::release() {
    if (document_ == nullptr) return;
    if (marquee_) selectInMarquee();
    marquee_.reset();
    if (Art* const path = session_.findArt(path_)) {
        if (kind_ == Kind::Pencil) finishStroke(*path);
        deselectAll(*document_);
        if (path->segments().size() < 2)
            disposeArt(*path); // it was no more than a click
        else
            select(*path, true);
    }
    const bool changes = moved_ || path_ != nullptr;
    if (!changes) document_->undo().setKind(kSilentUndoContext);
    document_ = nullptr;
}

} // namespace easel
