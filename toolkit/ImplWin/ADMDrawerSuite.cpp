#include "toolkit/ImplWin/WinPeers.h"

#include "toolkit/ImplCommon/CoADMIcon.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

#include <algorithm>
#include <string>
#include <vector>

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMDrawerSuite", slot> stub{};

Place placeOf(const ADMPoint* point) {
    const auto& [h, v] = objectOf(point);
    return {h, v};
}

ADMDrawerRef create(ADMPortRef port, const ADMRect* rect, ADMFont font) {
    WinPeers& peers = WinPeers::current();
    const auto [left, top, right, bottom] = boundsOf(rect);
    if (port == nullptr) throw NRDMParameterException();
    CoADMDrawer* const drawer = peers.drawers().make(peers.screen(), static_cast<HDC>(port),
                                                     RECT{left, top, right, bottom});
    drawer->setFont(static_cast<int>(font));
    return drawer;
}
/// Of drawers that `create` made; the others are lent.
void destroy(CoADMDrawer& drawer) { WinPeers::current().drawers().drop(drawer); }

/// Whatever encoding it came in.
template <typename Unit> std::wstring wide(const Unit* text) { return toWide(textFrom(text)); }

std::vector<Place> placesOf(const ADMPoint* points, ADMInt32 count) {
    std::vector<Place> places;
    places.reserve(static_cast<std::size_t>(std::max<ADMInt32>(count, 0)));
    for (ADMInt32 i = 0; i < count; ++i)
        places.push_back(placeOf(points + i));
    return places;
}

/// `bounds` is a member function that answers with a rectangle.
template <auto bounds> void getBounds(ADMDrawerRef drawer, ADMRect* result) {
    objectOf(result) = rectOf((objectOf(drawer).*bounds)());
}

ADMPortRef port(CoADMDrawer& drawer) { return drawer.port(); }
void clear(CoADMDrawer& drawer) { drawer.clear(drawer.bounds()); }

void getOrigin(ADMDrawerRef drawer, ADMPoint* result) {
    const auto [x, y] = objectOf(drawer).origin();
    objectOf(result) = {x, y};
}
void setOrigin(ADMDrawerRef drawer, const ADMPoint* origin) {
    objectOf(drawer).setOrigin(placeOf(origin));
}

void getColour(ADMDrawerRef drawer, ADMRGBColor* result) {
    const auto whole = [](std::uint8_t channel) { return static_cast<ADMUInt16>(channel * 257); };
    const Colour colour = objectOf(drawer).colour();
    objectOf(result) = {whole(colour.red), whole(colour.green), whole(colour.blue)};
}
void setColour(ADMDrawerRef drawer, const ADMRGBColor* colour) {
    const auto part = [](ADMUInt16 channel) { return static_cast<std::uint8_t>(channel / 257); };
    const auto& [red, green, blue] = objectOf(colour);
    objectOf(drawer).setColour(Colour{part(red), part(green), part(blue)});
}
ADMColor colourNumber(CoADMDrawer& drawer) { return static_cast<ADMColor>(drawer.admColour()); }
void setADMColour(CoADMDrawer& drawer, ADMColor colour) {
    drawer.setColour(static_cast<int>(colour));
}
ADMFont font(CoADMDrawer& drawer) { return static_cast<ADMFont>(drawer.font()); }
void setFont(CoADMDrawer& drawer, ADMFont font) { drawer.setFont(static_cast<int>(font)); }

void drawLine(ADMDrawerRef drawer, const ADMPoint* from, const ADMPoint* to) {
    objectOf(drawer).drawLine(placeOf(from), placeOf(to));
}
void drawPolygon(ADMDrawerRef drawer, const ADMPoint* points, ADMInt32 count) {
    objectOf(drawer).drawPolygon(placesOf(points, count));
}
void fillPolygon(ADMDrawerRef drawer, const ADMPoint* points, ADMInt32 count) {
    objectOf(drawer).fillPolygon(placesOf(points, count));
}
template <Arrow arrow> void drawArrow(CoADMDrawer& drawer, const Bounds& rect) {
    drawer.drawArrow(rect, arrow);
}

void drawPicture(ADMDrawerRef drawer, SPPluginRef, ADMInt32 id, const ADMPoint* corner) {
    objectOf(drawer).drawPicture(id, placeOf(corner));
}
void drawPictureCentred(ADMDrawerRef drawer, SPPluginRef, ADMInt32 id, const ADMRect* rect) {
    objectOf(drawer).drawPictureCentred(id, boundsOf(rect));
}
void pictureBounds(ADMDrawerRef drawer, SPPluginRef, ADMInt32 id, ADMRect* result) {
    const auto [width, height] = objectOf(drawer).pictureSize(id);
    objectOf(result) = {0, 0, width, height};
}
void drawIcon(ADMDrawerRef drawer, ADMIconRef icon, const ADMPoint* corner) {
    objectOf(drawer).drawPicture(objectOf(icon).id(), placeOf(corner));
}
void drawIconCentred(ADMDrawerRef drawer, ADMIconRef icon, const ADMRect* rect) {
    objectOf(drawer).drawPictureCentred(objectOf(icon).id(), boundsOf(rect));
}

void drawImage(ADMDrawerRef drawer, ADMImageRef image, const ADMPoint* corner) {
    objectOf(drawer).drawImage(objectOf(image).surface(), placeOf(corner));
}
void drawImageCentred(ADMDrawerRef drawer, ADMImageRef image, const ADMRect* rect) {
    CoADMImage& known = objectOf(image);
    const auto [left, top, right, bottom] = boundsOf(rect);
    objectOf(drawer).drawImage(
        known.surface(), {(left + right - known.width()) / 2, (top + bottom - known.height()) / 2});
}

template <typename Unit> ADMInt32 textWidthOf(ADMDrawerRef drawer, const Unit* text) {
    return objectOf(drawer).textWidth(wide(text));
}
template <typename Unit>
void drawTextAt(ADMDrawerRef drawer, const Unit* text, const ADMPoint* start) {
    objectOf(drawer).drawText(wide(text), placeOf(start));
}
template <typename Unit, Justify justify>
void drawTextIn(ADMDrawerRef drawer, const Unit* text, const ADMRect* rect) {
    objectOf(drawer).drawText(wide(text), boundsOf(rect), justify);
}
void drawTextInBox(ADMDrawerRef drawer, const ADMRect* rect, const char* text) {
    objectOf(drawer).drawTextInBox(wide(text), boundsOf(rect));
}
ADMInt16 textHeight(ADMDrawerRef drawer, ADMInt16 width, const char* text) {
    return static_cast<ADMInt16>(objectOf(drawer).textHeight(wide(text), width));
}

ADMFontInfo infoOf(const FontInfo& info) {
    return {info.height, info.ascent, info.descent, info.leading, info.maximumWidth};
}
void getFontInfo(ADMDrawerRef drawer, ADMFontInfo* result) {
    const CoADMDrawer& known = objectOf(drawer);
    objectOf(result) = infoOf(known.fontInfo(known.font()));
}
void getThisFontInfo(ADMFont font, ADMFontInfo* result) {
    objectOf(result) = infoOf(fontInfo(static_cast<int>(font), /*inPanel*/ false));
}

} // namespace

// clang-format off
const ADMDrawerSuite kDrawerSuite = {
    .GetPortRef = call<&port>,
    .Clear = call<&clear>,
    .GetBoundsRect = getBounds<&CoADMDrawer::bounds>,
    .GetClipRect = getBounds<&CoADMDrawer::clip>,
    .SetClipRect = call<&CoADMDrawer::setClip>,
    .IntersectClipRect = call<&CoADMDrawer::intersectClip>,
    .UnionClipRect = stub<"UnionClipRect">,
    .SubtractClipRect = stub<"SubtractClipRect">,
    .SetClipPolygon = stub<"SetClipPolygon">,
    .IntersectClipPolygon = stub<"IntersectClipPolygon">,
    .UnionClipPolygon = stub<"UnionClipPolygon">,
    .SubtractClipPolygon = stub<"SubtractClipPolygon">,
    .GetOrigin = getOrigin,
    .SetOrigin = setOrigin,
    .GetRGBColor = getColour,
    .SetRGBColor = setColour,
    .GetADMColor = call<&colourNumber>,
    .SetADMColor = call<&setADMColour>,
    .GetDrawMode = stub<"GetDrawMode">,
    .SetDrawMode = stub<"SetDrawMode">,
    .GetFont = call<&font>,
    .SetFont = call<&setFont>,
    .GetUsePaletteBGColor = call<&CoADMDrawer::usesPanelBackground>,
    .SetUsePaletteBGColor = call<&CoADMDrawer::usePanelBackground>,
    .DrawLine = drawLine,
    .DrawPolygon = drawPolygon,
    .FillPolygon = fillPolygon,
    .DrawRect = call<&CoADMDrawer::drawRect>,
    .FillRect = call<&CoADMDrawer::fillRect>,
    .ClearRect = call<&CoADMDrawer::clear>,
    .DrawSunkenRect = call<&CoADMDrawer::drawSunkenRect>,
    .DrawRaisedRect = call<&CoADMDrawer::drawRaisedRect>,
    .InvertRect = stub<"InvertRect">,
    .DrawOval = call<&CoADMDrawer::drawOval>,
    .FillOval = call<&CoADMDrawer::fillOval>,
    .GetAGMPort = stub<"GetAGMPort">,
    .DrawAGMImage = stub<"DrawAGMImage">,
    .DrawResPicture = drawPicture,
    .DrawResPictureCentered = drawPictureCentred,
    .DrawRecoloredResPicture = stub<"DrawRecoloredResPicture">,
    .DrawRecoloredResPictureCentered = stub<"DrawRecoloredResPictureCentered">,
    .DrawIcon = drawIcon,
    .DrawIconCentered = drawIconCentred,
    .DrawRecoloredIcon = stub<"DrawRecoloredIcon">,
    .DrawRecoloredIconCentered = stub<"DrawRecoloredIconCentered">,
    .GetResPictureBounds = pictureBounds,
    .GetTextWidth = textWidthOf<char>,
    .GetTextWidthW = textWidthOf<ADMUnicode>,
    .GetFontInfo = getFontInfo,
    .DrawText = drawTextAt<char>,
    .DrawTextW = drawTextAt<ADMUnicode>,
    .DrawTextLeft = drawTextIn<char, Justify::Left>,
    .DrawTextLeftW = drawTextIn<ADMUnicode, Justify::Left>,
    .DrawTextCentered = drawTextIn<char, Justify::Centre>,
    .DrawTextCenteredW = drawTextIn<ADMUnicode, Justify::Centre>,
    .DrawTextRight = drawTextIn<char, Justify::Right>,
    .DrawTextRightW = drawTextIn<ADMUnicode, Justify::Right>,
    .DrawUpArrow = call<&drawArrow<Arrow::Up>>,
    .DrawDownArrow = call<&drawArrow<Arrow::Down>>,
    .DrawLeftArrow = call<&drawArrow<Arrow::Left>>,
    .DrawRightArrow = call<&drawArrow<Arrow::Right>>,
    .Create = create,
    .Destroy = call<&destroy>,
    .DrawADMImage = drawImage,
    .DrawADMImageCentered = drawImageCentred,
    .GetADMWindowPort = stub<"GetADMWindowPort">,
    .ReleaseADMWindowPort = stub<"ReleaseADMWindowPort">,
    .GetThisFontInfo = getThisFontInfo,
    .DrawTextInABox = drawTextInBox,
    .DrawTextInABoxW = stub<"DrawTextInABoxW">,
    .GetUpdateRect = getBounds<&CoADMDrawer::updateBounds>,
    .GetTextRectHeight = textHeight,
    .GetTextRectHeightW = stub<"GetTextRectHeightW">,
};
// clang-format on

} // namespace NRDM
