#pragma once

#include "toolkit/ImplWin/Pictures.h"
#include "toolkit/ImplWin/Screen.h"
#include "toolkit/ImplWin/Text.h"

#include "toolkit/ImplCommon/Peers.h"

#include <optional>
#include <span>

namespace NRDM {

/// In units; `font` is ADM's number.
struct FontInfo {
    int height;
    int ascent;
    int descent;
    int leading;
    int maximumWidth;
};
[[nodiscard]] FontInfo fontInfo(int font, bool inPanel);

/// What stands behind a drawer reference: pixels, and how the next call draws on them. It is lent
/// to a draw procedure and is good for the length of that call.
///
/// Coordinates are units from the drawer's origin, at first the top left of what is drawn; y runs
/// downwards, right and bottom are exclusive. Lines are one unit wide.
class CoADMDrawer {
public:
    CoADMDrawer(Screen& screen, Surface& surface, Scale scale, bool inPanel);
    virtual ~CoADMDrawer() = default;
    CoADMDrawer(const CoADMDrawer&) = delete;
    CoADMDrawer& operator=(const CoADMDrawer&) = delete;

    /// An HDC; what GDI+ has drawn is on it.
    [[nodiscard]] HDC port() { return surface_.dc(); }

    [[nodiscard]] Bounds bounds() const;
    [[nodiscard]] Bounds updateBounds() const;
    [[nodiscard]] Bounds clip() const;
    void setClip(const Bounds& clip);
    void intersectClip(const Bounds& clip);
    [[nodiscard]] Place origin() const noexcept { return origin_; }
    void setOrigin(Place origin) noexcept { origin_ = origin; }

    void setColour(Colour colour) noexcept;
    [[nodiscard]] Colour colour() const noexcept { return colour_; }

    /// One of ADM's colours, 0..16, as the interface has it now; others are black.
    void setColour(int number);
    /// 254, "not given", after a colour of the caller's own.
    [[nodiscard]] int admColour() const noexcept { return admColour_; }

    void setFont(int font) noexcept { font_ = font; }
    [[nodiscard]] int font() const noexcept { return font_; }

    /// Which background `clear` leaves: at first that of the window drawn in.
    void usePanelBackground(bool used) noexcept { panelBackground_ = used; }
    [[nodiscard]] bool usesPanelBackground() const noexcept { return panelBackground_; }

    void clear(const Bounds& area);
    void drawLine(Place from, Place to);
    void drawRect(const Bounds& rect);
    void fillRect(const Bounds& rect);
    void drawSunkenRect(const Bounds& rect);
    void drawRaisedRect(const Bounds& rect);
    void drawOval(const Bounds& rect);
    void fillOval(const Bounds& rect);
    void drawPolygon(std::span<const Place> points);
    void fillPolygon(std::span<const Place> points);
    void drawArrow(const Bounds& rect, Arrow arrow);

    void drawPicture(int id, Place corner);
    void drawPictureCentred(int id, const Bounds& rect);
    [[nodiscard]] Extent pictureSize(int id) const;

    /// The pixels of `image` take up as many units.
    void drawImage(Surface& image, Place corner);

    /// `start` is on the baseline.
    void drawText(std::wstring_view text, Place start);
    /// One line, vertically centred, clipped.
    void drawText(std::wstring_view text, const Bounds& rect, Justify justify);
    void drawTextInBox(std::wstring_view text, const Bounds& rect);
    [[nodiscard]] int textWidth(std::wstring_view text) const;
    [[nodiscard]] int textHeight(std::wstring_view text, int width) const;

    [[nodiscard]] FontInfo fontInfo(int font) const { return NRDM::fontInfo(font, inPanel_); }

private:
    [[nodiscard]] RECT toPixels(const Bounds& bounds) const;
    [[nodiscard]] Bounds toUnits(const RECT& pixels) const;
    [[nodiscard]] Spot toPixels(Place place) const;
    [[nodiscard]] TextStyle style() const { return textStyleOf(font_, inPanel_); }
    void edge(const RECT& area, Colour topLeft, Colour bottomRight);

    Screen& screen_;
    const Palette& palette_;
    Surface& surface_;
    Scale scale_;
    bool inPanel_;
    bool panelBackground_;
    RECT update_;
    Place origin_;
    Colour colour_;
    int admColour_ = 0;
    int font_ = 0;
};

} // namespace NRDM
