#include "easel/window/Canvas.h"

#include "easel/document/Attributes.h"
#include "easel/paint/GdiplusPainter.h"
#include "easel/paint/PaintAnnotations.h"
#include "easel/svg/Numbers.h"
#include "easel/window/Keys.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

namespace easel::window {
namespace {

constexpr double kWheelStep = 1.25;
constexpr int kMarginAround = 24; ///< Of the artboard, when all of it is shown.

bool same(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }

svg::Point corner(LONG x, LONG y) { return {static_cast<double>(x), static_cast<double>(y)}; }

svg::Point viewPoint(const DocumentView& view, AIRealPoint at) {
    const AIRealPoint exact = toView(view, at);
    return {static_cast<double>(exact.h) + 0.5, static_cast<double>(exact.v) + 0.5};
}

paint::Ink inkOf(const AIRGBColor& colour) {
    const auto part = [](auto value) { return static_cast<float>(value) / 65535.0F; };
    return {{part(colour.red), part(colour.green), part(colour.blue), 1.0F}, nullptr, {}};
}

} // namespace

void Canvas::open(HWND parent) { create({.className = L"EaselCanvas", .parent = parent}); }

void Canvas::follow() {
    Host& host = hand_.host();
    if (!host.needsRedraw()) return;
    if (host.isStale()) {
        InvalidateRect(handle(), nullptr, FALSE);
        return;
    }
    for (const AIRect& area : host.annotators.invalid) {
        const RECT pixels{area.left, area.top, area.right + 1, area.bottom + 1};
        InvalidateRect(handle(), &pixels, FALSE);
    }
}

void Canvas::fitView() {
    const SIZE area = size();
    if (!hand_.hasDocument() || area.cx < 1 || area.cy < 1) return;
    const DocumentView& view = hand_.player.view();
    if (view.width != area.cx || view.height != area.cy)
        hand_.act("window " + std::to_string(area.cx) + ' ' + std::to_string(area.cy));
}

void Canvas::showAll() {
    if (!hand_.hasDocument()) return;
    fitView();
    const DocumentView& view = hand_.player.view();
    const AIRealRect board = view.document->artboard();
    const auto fit = [](ai::int32 pixels, AIReal points) {
        return std::max(1, pixels - 2 * kMarginAround) / std::max(1.0, static_cast<double>(points));
    };
    const double zoom = std::min(fit(view.width, board.right - board.left),
                                 fit(view.height, board.top - board.bottom));
    hand_.act("zoom " + svg::formatNumber(std::clamp(zoom, static_cast<double>(kLeastZoom),
                                                     static_cast<double>(kMostZoom))));
    const AIRealPoint middle =
        toView(view, {(board.left + board.right) / 2, (board.top + board.bottom) / 2});
    hand_.act("centre " + pixelPlace(middle.h, middle.v));
}

void Canvas::zoomAt(POINT place, double zoom) {
    if (!hand_.hasDocument() || isBlocked()) return;
    const DocumentView& view = hand_.player.view();
    const auto former = static_cast<double>(view.zoom);
    const double wanted =
        std::clamp(zoom, static_cast<double>(kLeastZoom), static_cast<double>(kMostZoom));
    hand_.act("zoom " + svg::formatNumber(wanted));
    // What lay at `place` has moved away from the middle, or towards it.
    const double grown = static_cast<double>(view.zoom) / former - 1;
    const double x = view.width / 2.0 + (place.x - view.width / 2.0) * grown;
    const double y = view.height / 2.0 + (place.y - view.height / 2.0) * grown;
    hand_.act("centre " + pixelPlace(x, y));
}

void Canvas::zoomBy(double factor) {
    if (!hand_.hasDocument()) return;
    const SIZE area = size();
    zoomAt({area.cx / 2, area.cy / 2}, static_cast<double>(hand_.player.view().zoom) * factor);
}

bool Canvas::isBlocked() const { return hand_.script.isBusy() || !hand_.hasDocument(); }

void Canvas::sendKeys(const char* command, POINT at) {
    hand_.act(std::string(command) + ' ' +
              pixelPlace(static_cast<double>(at.x), static_cast<double>(at.y)) + heldKeys());
}

void Canvas::press(POINT at) {
    if (isBlocked() || held_ != Held::Nothing) return;
    SetFocus(handle());
    SetCapture(handle());
    mouse_ = at;
    held_ = isDown(VK_SPACE) ? Held::Paper : Held::Tool;
    if (held_ == Held::Tool) sendKeys("press", at);
}

void Canvas::move(POINT at) {
    if (isBlocked() || same(at, mouse_)) return;
    const POINT from = std::exchange(mouse_, at);
    if (held_ == Held::Paper) {
        const SIZE area = size();
        hand_.act("centre " +
                  pixelPlace(area.cx / 2.0 - (at.x - from.x), area.cy / 2.0 - (at.y - from.y)));
        return;
    }
    sendKeys(held_ == Held::Tool ? "drag" : "move", at);
}

void Canvas::release() {
    const Held former = std::exchange(held_, Held::Nothing);
    if (GetCapture() == handle()) ReleaseCapture();
    if (former == Held::Tool) sendKeys("release", mouse_);
}

void Canvas::tellKeys() {
    if (isBlocked() || held_ == Held::Paper) return;
    sendKeys(held_ == Held::Tool ? "drag" : "move", mouse_);
}

LRESULT Canvas::handleMessage(UINT message, WPARAM first, LPARAM second) {
    const POINT at{GET_X_LPARAM(second), GET_Y_LPARAM(second)};
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_SIZE:
        fitView();
        InvalidateRect(handle(), nullptr, FALSE);
        return 0;
    case WM_SETCURSOR:
        if (LOWORD(second) != HTCLIENT) break;
        SetCursor(cursors_.current(hand_.host()));
        return TRUE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press(at);
        return 0;
    case WM_MOUSEMOVE:
        figures_.heard();
        move(at);
        return 0;
    case WM_LBUTTONUP:
        if (held_ != Held::Nothing && !isBlocked()) {
            move(at);
            release();
        }
        return 0;
    case WM_CAPTURECHANGED:
        if (held_ != Held::Nothing) release();
        return 0;
    case WM_MOUSEWHEEL: {
        POINT place = at; // of the screen
        ScreenToClient(handle(), &place);
        const double notches = GET_WHEEL_DELTA_WPARAM(first) / static_cast<double>(WHEEL_DELTA);
        if (!isBlocked())
            zoomAt(place,
                   static_cast<double>(hand_.player.view().zoom) * std::pow(kWheelStep, notches));
        return 0;
    }
    default:
        break;
    }
    return unhandled(message, first, second);
}

void Canvas::paint() {
    const Figures::Clock::time_point since = Figures::Clock::now();
    bool withPage = false;
    PAINTSTRUCT request{};
    const HDC dc = BeginPaint(handle(), &request);
    const SIZE area = size();
    const RECT all{0, 0, area.cx, area.cy};
    RECT part{};
    IntersectRect(&part, &request.rcPaint, &all);
    if (!hand_.hasDocument()) {
        FillRect(dc, &part, GetSysColorBrush(COLOR_APPWORKSPACE));
    } else if (!IsRectEmpty(&part)) {
        if (screen_.width() != area.cx || screen_.height() != area.cy) {
            screen_ = Pixels(area.cx, area.cy);
            page_ = Pixels(area.cx, area.cy);
            paintedVersion_ = 0;
            part = all;
        }
        try {
            hand_.player.redraw();
            const DocumentView& view = hand_.player.view();
            withPage = paintPage();
            screen_.copyFrom(page_, part);
            paint::GdiplusPainter painter(screen_.data(), area.cx, area.cy);
            painter.clip(
                paint::rectangle(corner(part.left, part.top), corner(part.right, part.bottom)),
                paint::FillRule::NonZero);
            paintMarquee(view, painter);
            paint::paintAnnotations(hand_.player.shown(), painter);
        } catch (const std::exception& error) {
            hand_.complain(error.what());
        }
        GdiFlush();
        screen_.show(dc, part);
    }
    EndPaint(handle(), &request);
    figures_.painted(since, withPage);
}

bool Canvas::paintPage() {
    const std::uint64_t version = hand_.host().pageVersion() + 1;
    if (paintedVersion_ == version) return false;
    paintedVersion_ = version;
    paint::GdiplusPainter painter(page_.data(), page_.width(), page_.height());
    const DocumentView& view = hand_.player.view();
    paint::paintPage(view, painter, {.darkTheme = hand_.host().user.darkTheme});
    paintSelection(view, painter);
    return true;
}

/// Outlines and anchors of what is selected, in the colour of its layer.
void Canvas::paintSelection(const DocumentView& view, paint::Painter& painter) {
    constexpr svg::Point kAnchor{2, 2}; // from the middle
    const Art& root = view.document->root();
    for (const Art* art = nextInPreorder(root, root); art != nullptr;
         art = nextInPreorder(*art, root)) {
        if (art->type() != kPathArt || selectionOf(*art) == Selected::No) continue;
        svg::Subpath path;
        path.closed = art->content().closed;
        svg::Outline anchors;
        for (const AIPathSegment& segment : art->segments()) {
            const svg::Anchor anchor{viewPoint(view, segment.p), viewPoint(view, segment.in),
                                     viewPoint(view, segment.out)};
            path.anchors.push_back(anchor);
            anchors.push_back(paint::rectangle(anchor.p - kAnchor, anchor.p + kAnchor).front());
        }
        const Art* const layer = layerOf(*art);
        const paint::Ink ink =
            inkOf(layer != nullptr ? layer->details().layer.color : LayerProperties{}.color);
        painter.stroke({path}, paint::Pen{}, ink);
        painter.fill(anchors, paint::FillRule::NonZero, ink);
    }
}

void Canvas::paintMarquee(const DocumentView& view, paint::Painter& painter) {
    const auto& area = hand_.host().tools.marquee();
    if (!area) return;
    const AIPoint from = toViewPixel(view, {area->left, area->top});
    const AIPoint to = toViewPixel(view, {area->right, area->bottom});
    paint::Pen dashed;
    dashed.dashes = {3, 3};
    painter.stroke(paint::rectangle(corner(from.h, from.v), corner(to.h, to.v)), dashed,
                   inkOf(LayerProperties{}.color));
}

} // namespace easel::window
