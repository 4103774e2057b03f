#include "toolkit/ImplWin/CoADMDrawer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace NRDM {
namespace {

constexpr int kNotGiven = 254;
} // namespace

CoADMDrawer::CoADMDrawer(Screen& screen, Surface& surface, Scale scale, bool inPanel)
    : screen_(screen), palette_(screen.palettes.of(inPanel)), surface_(surface), scale_(scale),
      inPanel_(inPanel), panelBackground_(inPanel), update_(surface.clip()),
      colour_(palette_.text) {}

RECT CoADMDrawer::toPixels(const Bounds& bounds) const {
    return scale_.toPixels(RECT{bounds.left + origin_.x, bounds.top + origin_.y,
                                bounds.right + origin_.x, bounds.bottom + origin_.y});
}

Bounds CoADMDrawer::toUnits(const RECT& pixels) const {
    const RECT units = scale_.toUnits(pixels);
    return {static_cast<int>(units.left) - origin_.x, static_cast<int>(units.top) - origin_.y,
            static_cast<int>(units.right) - origin_.x, static_cast<int>(units.bottom) - origin_.y};
}

Spot CoADMDrawer::toPixels(Place place) const {
    return {(place.x + origin_.x) * scale_.factor, (place.y + origin_.y) * scale_.factor};
}

Bounds CoADMDrawer::bounds() const {
    const auto [width, height] = surface_.size();
    return {0, 0, scale_.toUnits(static_cast<int>(width)),
            scale_.toUnits(static_cast<int>(height))};
}

Bounds CoADMDrawer::updateBounds() const { return toUnits(update_); }

Bounds CoADMDrawer::clip() const { return toUnits(surface_.clip()); }

void CoADMDrawer::setClip(const Bounds& clip) {
    const RECT wanted = toPixels(clip);
    RECT allowed{};
    IntersectRect(&allowed, &wanted, &update_);
    surface_.setClip(allowed);
}

void CoADMDrawer::intersectClip(const Bounds& clip) {
    const RECT wanted = toPixels(clip);
    RECT allowed{};
    IntersectRect(&allowed, &wanted, &surface_.clip());
    surface_.setClip(allowed);
}

void CoADMDrawer::setColour(Colour colour) noexcept {
    colour_ = colour;
    admColour_ = kNotGiven;
}

void CoADMDrawer::setColour(int number) {
    colour_ = NRDM::admColour(number, palette_).value_or(Colour{});
    admColour_ = number;
}

void CoADMDrawer::clear(const Bounds& area) {
    NRDM::fillRect(surface_, toPixels(area), screen_.palettes.of(panelBackground_).background);
}

void CoADMDrawer::drawLine(Place from, Place to) {
    if (from.x == to.x || from.y == to.y) { // on whole pixels, both ends included
        const auto [left, right] = std::minmax(from.x, to.x);
        const auto [top, bottom] = std::minmax(from.y, to.y);
        RECT line = toPixels(Bounds{left, top, right + 1, bottom + 1});
        if (from.x == to.x) line.right = line.left + scale_.line();
        if (from.y == to.y) line.bottom = line.top + scale_.line();
        NRDM::fillRect(surface_, line, colour_);
        return;
    }
    const double half = scale_.factor / 2; // a line covers the units that it names
    const std::array points{Spot{toPixels(from).x + half, toPixels(from).y + half},
                            Spot{toPixels(to).x + half, toPixels(to).y + half}};
    strokeLines(surface_, points, scale_.factor, colour_);
}

void CoADMDrawer::drawRect(const Bounds& rect) {
    frameRect(surface_, toPixels(rect), scale_.line(), colour_);
}

void CoADMDrawer::fillRect(const Bounds& rect) {
    NRDM::fillRect(surface_, toPixels(rect), colour_);
}

void CoADMDrawer::edge(const RECT& area, Colour topLeft, Colour bottomRight) {
    const int line = scale_.line();
    NRDM::fillRect(surface_, area, bottomRight);
    NRDM::fillRect(surface_, {area.left, area.top, area.right - line, area.bottom - line}, topLeft);
    NRDM::fillRect(surface_,
                   {area.left + line, area.top + line, area.right - line, area.bottom - line},
                   palette_.background);
}

void CoADMDrawer::drawSunkenRect(const Bounds& rect) {
    edge(toPixels(rect), palette_.shadow, palette_.light);
}

void CoADMDrawer::drawRaisedRect(const Bounds& rect) {
    edge(toPixels(rect), palette_.light, palette_.shadow);
}

void CoADMDrawer::drawOval(const Bounds& rect) {
    const Box box = toBox(toPixels(rect));
    std::vector<Spot> points;
    constexpr int kSteps = 96; // a side of a large circle stays below a tenth of a pixel off it
    for (int i = 0; i <= kSteps; ++i) {
        const double angle = 2 * 3.14159265358979323846 * i / kSteps;
        const double half = scale_.factor / 2;
        points.push_back(
            {(box.left + box.right) / 2 + ((box.right - box.left) / 2 - half) * std::cos(angle),
             (box.top + box.bottom) / 2 + ((box.bottom - box.top) / 2 - half) * std::sin(angle)});
    }
    strokeLines(surface_, points, scale_.factor, colour_);
}

void CoADMDrawer::fillOval(const Bounds& rect) {
    const Box box = toBox(toPixels(rect));
    std::vector<Spot> points;
    constexpr int kSteps = 96;
    for (int i = 0; i < kSteps; ++i) {
        const double angle = 2 * 3.14159265358979323846 * i / kSteps;
        points.push_back(
            {(box.left + box.right) / 2 + (box.right - box.left) / 2 * std::cos(angle),
             (box.top + box.bottom) / 2 + (box.bottom - box.top) / 2 * std::sin(angle)});
    }
    fillConvex(surface_, points, colour_);
}

void CoADMDrawer::drawPolygon(std::span<const Place> points) {
    std::vector<Spot> spots;
    for (const Place& point : points)
        spots.push_back(toPixels(point));
    if (!spots.empty()) spots.push_back(spots.front());
    strokeLines(surface_, spots, scale_.factor, colour_);
}

void CoADMDrawer::fillPolygon(std::span<const Place> points) {
    if (!surface_ || points.size() < 3) return;
    std::vector<Gdiplus::PointF> corners;
    for (const Place& point : points) {
        const auto [x, y] = toPixels(point);
        corners.emplace_back(static_cast<Gdiplus::REAL>(x), static_cast<Gdiplus::REAL>(y));
    }
    const Gdiplus::SolidBrush brush(Gdiplus::Color(255, colour_.red, colour_.green, colour_.blue));
    surface_.graphics().FillPolygon(&brush, corners.data(), static_cast<INT>(corners.size()));
}

void CoADMDrawer::drawArrow(const Bounds& rect, Arrow arrow) {
    const RECT area = toPixels(rect);
    const double x = (area.left + area.right) / 2.0;
    const double y = (area.top + area.bottom) / 2.0;
    const double wide = 4 * scale_.factor;
    const double deep = 2 * scale_.factor;
    const bool vertical = arrow == Arrow::Up || arrow == Arrow::Down;
    const double tip = arrow == Arrow::Up || arrow == Arrow::Left ? -deep : deep;
    std::array points =
        vertical ? std::array{Spot{x, y + tip}, Spot{x - wide, y - tip}, Spot{x + wide, y - tip}}
                 : std::array{Spot{x + tip, y}, Spot{x - tip, y - wide}, Spot{x - tip, y + wide}};
    // Clockwise as seen: the order above is that for upward and right arrows' mirror images.
    if (arrow == Arrow::Up || arrow == Arrow::Right) std::swap(points[1], points[2]);
    fillConvex(surface_, points, colour_);
}

void CoADMDrawer::drawPicture(int id, Place corner) {
    const auto [x, y] = toPixels(corner);
    screen_.pictures.draw(surface_, id, palette_.dark, scale_, static_cast<int>(std::lround(x)),
                          static_cast<int>(std::lround(y)), Pictures::Tint::None);
}

void CoADMDrawer::drawPictureCentred(int id, const Bounds& rect) {
    const Extent size = pictureSize(id);
    drawPicture(id, {rect.left + (rect.right - rect.left - size.width) / 2,
                     rect.top + (rect.bottom - rect.top - size.height) / 2});
}

void CoADMDrawer::drawImage(Surface& image, Place corner) {
    if (!surface_ || !image) return;
    const auto [width, height] = image.size();
    const RECT place = toPixels(Bounds{corner.x, corner.y, corner.x + static_cast<int>(width),
                                       corner.y + static_cast<int>(height)});
    image.graphics().Flush(Gdiplus::FlushIntentionSync);
    Gdiplus::Bitmap pixels(width, height, width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(image.row(0).data()));
    Gdiplus::ImageAttributes edges; // or what lies around them would show at the edges
    edges.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
    surface_.graphics().DrawImage(
        &pixels,
        Gdiplus::Rect(place.left, place.top, place.right - place.left, place.bottom - place.top), 0,
        0, width, height, Gdiplus::UnitPixel, &edges);
}

Extent CoADMDrawer::pictureSize(int id) const {
    const SIZE size = screen_.pictures.size(id, palette_.dark);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

void CoADMDrawer::drawText(std::wstring_view text, Place start) {
    const auto [x, y] = toPixels(start);
    drawAt(surface_, x, y, text, style(), scale_, colour_);
}

void CoADMDrawer::drawText(std::wstring_view text, const Bounds& rect, Justify justify) {
    NRDM::drawLine(surface_, toPixels(rect),
                   {{std::wstring(text), -1}, style(), scale_, colour_, justify, Overflow::Clip});
}

void CoADMDrawer::drawTextInBox(std::wstring_view text, const Bounds& rect) {
    drawWrapped(surface_, toPixels(rect), {{std::wstring(text), -1}, style(), scale_, colour_});
}

int CoADMDrawer::textWidth(std::wstring_view text) const {
    return scale_.toUnits(static_cast<int>(std::ceil(NRDM::textWidth(text, style(), scale_))));
}

int CoADMDrawer::textHeight(std::wstring_view text, int width) const {
    return scale_.toUnits(wrappedHeight(text, style(), scale_, scale_.toPixels(width)));
}

FontInfo fontInfo(int font, bool inPanel) {
    const TextStyle known = textStyleOf(font, inPanel);
    const LineMetrics metrics = lineMetrics(known, {1.0});
    const int ascent = static_cast<int>(std::lround(metrics.ascent));
    const int height = static_cast<int>(std::lround(metrics.height));
    const int widest = static_cast<int>(std::ceil(NRDM::textWidth(L"W", known, {1.0})));
    return {height, ascent, height - ascent, 0, widest};
}

} // namespace NRDM
