#include "toolkit/ImplWin/Text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace NRDM {
namespace {

constexpr wchar_t kFamily[] = L"Tahoma";
constexpr wchar_t kFixedFamily[] = L"Courier New";
constexpr double kDialogSize = 12;
constexpr double kPanelSize = 11;
constexpr double kTipSize = 11;

struct StyleRow {
    double size;
    bool bold;
    bool italic;
    bool fixedWidth;
};

/// By ADM's numbers, from 1.
constexpr StyleRow kStyles[] = {
    {kDialogSize, false, false, false}, {kPanelSize, false, false, false},
    {kDialogSize, false, true, false},  {kPanelSize, false, true, false},
    {kDialogSize, true, false, false},  {kPanelSize, true, false, false},
    {kDialogSize, true, true, false},   {kPanelSize, true, true, false},
    {kDialogSize, false, false, true},  {kDialogSize, false, true, true},
    {kDialogSize, true, false, true},   {kDialogSize, true, true, true},
    {kTipSize, false, false, false},
};

/// A font, and a context to measure with when there are no pixels to draw on.
class Face {
public:
    Face(TextStyle style, int pixels)
        : font_(style.fixedWidth ? kFixedFamily : kFamily, static_cast<Gdiplus::REAL>(pixels),
                (style.bold ? Gdiplus::FontStyleBold : 0) |
                    (style.italic ? Gdiplus::FontStyleItalic : 0),
                Gdiplus::UnitPixel) {}
    Face(TextStyle style, Scale scale) : Face(style, fontPixels(style, scale)) {}

    [[nodiscard]] const Gdiplus::Font& font() const { return font_; }

    [[nodiscard]] LineMetrics metrics() const {
        Gdiplus::FontFamily family;
        font_.GetFamily(&family);
        const int style = font_.GetStyle();
        const double em = family.GetEmHeight(style);
        if (em <= 0) return {};
        const double pixels = font_.GetSize() / em;
        constexpr double kTahomaCapital = 0.727; // of the em, from the font's OS/2 table
        return {family.GetCellAscent(style) * pixels,
                (family.GetCellAscent(style) + family.GetCellDescent(style)) * pixels,
                font_.GetSize() * kTahomaCapital};
    }

private:
    Gdiplus::Font font_;
};

Gdiplus::StringFormat& asOneLine(Gdiplus::StringFormat& format) {
    format.SetFormatFlags(Gdiplus::StringFormatFlagsNoWrap | Gdiplus::StringFormatFlagsNoClip |
                          Gdiplus::StringFormatFlagsMeasureTrailingSpaces);
    return format;
}

/// Something to measure text with: a surface of one pixel.
class Ruler {
public:
    Ruler() : bitmap_(1, 1, PixelFormat32bppRGB), graphics_(&bitmap_) {
        graphics_.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    }

    [[nodiscard]] double width(std::wstring_view text, const Face& face) const {
        if (text.empty()) return 0;
        Gdiplus::StringFormat format(Gdiplus::StringFormat::GenericTypographic());
        Gdiplus::RectF box;
        graphics_.MeasureString(text.data(), static_cast<INT>(text.size()), &face.font(),
                                Gdiplus::PointF(0, 0), &asOneLine(format), &box);
        return box.Width;
    }

    [[nodiscard]] double height(std::wstring_view text, const Face& face, int width) const {
        Gdiplus::RectF box;
        graphics_.MeasureString(text.data(), static_cast<INT>(text.size()), &face.font(),
                                Gdiplus::RectF(0, 0, static_cast<Gdiplus::REAL>(width), 32000),
                                Gdiplus::StringFormat::GenericTypographic(), &box);
        return box.Height;
    }

private:
    Gdiplus::Bitmap bitmap_;
    Gdiplus::Graphics graphics_;
};

Gdiplus::Color toGdiPlus(Colour colour) {
    return Gdiplus::Color(255, colour.red, colour.green, colour.blue);
}

void drawText(Surface& surface, double x, double baseline, std::wstring_view text, const Face& face,
              Colour colour) {
    if (!surface || text.empty()) return;
    const Gdiplus::SolidBrush brush(toGdiPlus(colour));
    Gdiplus::StringFormat format(Gdiplus::StringFormat::GenericTypographic());
    const Gdiplus::PointF corner(static_cast<Gdiplus::REAL>(x),
                                 static_cast<Gdiplus::REAL>(baseline - face.metrics().ascent));
    surface.graphics().DrawString(text.data(), static_cast<INT>(text.size()), &face.font(), corner,
                                  &asOneLine(format), &brush);
}

constexpr wchar_t kEllipsis = L'\u2026';

/// `text` with as few letters replaced by an ellipsis as make it fit.
std::wstring shortened(const std::wstring& text, double room, const Face& face, bool middle) {
    const Ruler ruler;
    for (std::size_t kept = text.size(); kept-- > 0;) {
        const std::size_t head = middle ? (kept + 1) / 2 : kept;
        std::wstring candidate =
            text.substr(0, head) + kEllipsis + text.substr(text.size() - (kept - head));
        if (ruler.width(candidate, face) <= room) return candidate;
    }
    return {};
}

/// How much closer each letter of `text` comes to the one before, so that all fit into `room`.
double tightening(std::wstring_view text, double width, double room) {
    return text.size() > 1 ? (width - room) / static_cast<double>(text.size() - 1) : 0;
}

void drawTightened(Surface& surface, double x, double baseline, std::wstring_view text,
                   const Face& face, Colour colour, double tighter) {
    const Ruler ruler;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const double before = ruler.width(text.substr(0, i), face);
        drawText(surface, x + before - tighter * static_cast<double>(i), baseline,
                 text.substr(i, 1), face, colour);
    }
}

} // namespace

TextStyle textStyleOf(int font, bool inPanel) {
    const int known = font >= 1 && font <= static_cast<int>(std::size(kStyles)) ? font
                      : inPanel                                                 ? 2
                                                                                : 1;
    const auto& [size, bold, italic, fixedWidth] = kStyles[known - 1];
    return {size, bold, italic, fixedWidth};
}

Caption captionOf(std::wstring_view marked) {
    Caption caption;
    for (std::size_t i = 0; i < marked.size(); ++i) {
        if (marked[i] == L'&' && i + 1 < marked.size()) {
            ++i;
            if (marked[i] != L'&' && caption.accessKey < 0)
                caption.accessKey = static_cast<int>(caption.text.size());
        }
        caption.text += marked[i];
    }
    return caption;
}

std::wstring toWide(std::string_view utf8) {
    const int size = static_cast<int>(utf8.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string toUtf8(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string utf8(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size,
                                                                  nullptr, 0, nullptr, nullptr)),
                     '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), static_cast<int>(utf8.size()),
                        nullptr, nullptr);
    return utf8;
}

int fontPixels(TextStyle style, Scale scale) {
    constexpr double kJustBelow = 1e-6; // a product that is whole but for its rounding
    return static_cast<int>(std::floor(style.size * scale.factor + kJustBelow));
}

LineMetrics lineMetrics(TextStyle style, Scale scale) { return Face(style, scale).metrics(); }

double textWidth(std::wstring_view text, TextStyle style, Scale scale) {
    return Ruler().width(text, Face(style, scale));
}

int wrappedHeight(std::wstring_view text, TextStyle style, Scale scale, int width) {
    return static_cast<int>(std::ceil(Ruler().height(text, Face(style, scale), width)));
}

int baselineOf(int top, int bottom, TextStyle style, Scale scale) {
    // Rounded in units: neighbours whose middles are half a unit apart would part at other scales.
    const int capital = static_cast<int>(std::lround(lineMetrics(style, {1.0}).capHeight));
    return top + scale.heightToPixels((scale.toUnits(bottom - top) + capital + 1) / 2);
}

void drawLine(Surface& surface, const RECT& place, const TextLine& line) {
    if (!surface || place.right <= place.left) return;
    const double room = place.right - place.left + 0.5; // measured widths end between pixels
    const auto& [caption, style, scale, colour, justify, overflow, showAccessKey] = line;
    const Face face(style, scale);
    const Ruler ruler;
    double width = ruler.width(caption.text, face);
    std::wstring text = caption.text;
    double tighter = 0;
    if (overflow == Overflow::Tighten && width > room) {
        const double narrower = room - scale.toPixels(1); // clear of what comes after it
        tighter = tightening(text, width, narrower);
        if (tighter > fontPixels(style, scale) / 16.0)
            tighter = 0;
        else
            width = narrower;
    }
    if (width > room && overflow != Overflow::Clip) {
        text = shortened(text, room, face, overflow == Overflow::MiddleEllipsis);
        width = ruler.width(text, face);
    }
    const double spare = place.right - place.left - width;
    const double x = justify == Justify::Left     ? place.left
                     : justify == Justify::Centre ? place.left + std::floor(spare / 2)
                                                  : place.right - std::ceil(width);
    const int baseline = baselineOf(place.top, place.bottom, style, scale);
    Gdiplus::Graphics& graphics = surface.graphics();
    const Gdiplus::GraphicsState state = graphics.Save();
    graphics.SetClip(Gdiplus::Rect(place.left, place.top, place.right - place.left + 1,
                                   place.bottom - place.top),
                     Gdiplus::CombineModeIntersect);
    if (tighter > 0)
        drawTightened(surface, x, baseline, text, face, colour, tighter);
    else
        drawText(surface, x, baseline, text, face, colour);
    if (showAccessKey && caption.accessKey >= 0 && text == caption.text) {
        const auto index = static_cast<std::size_t>(caption.accessKey);
        const double shift = x - tighter * static_cast<double>(index);
        const double left = shift + ruler.width(text.substr(0, index), face);
        const double right = shift + ruler.width(text.substr(0, index + 1), face);
        const Gdiplus::SolidBrush brush(toGdiPlus(colour));
        const int thickness = scale.line();
        graphics.FillRectangle(&brush, static_cast<INT>(std::lround(left)), baseline + thickness,
                               static_cast<INT>(std::lround(right - left)), thickness);
    }
    graphics.Restore(state);
}

void drawWrapped(Surface& surface, const RECT& place, const TextLine& line) {
    if (!surface || line.caption.text.empty()) return;
    const Face face(line.style, line.scale);
    Gdiplus::StringFormat format(Gdiplus::StringFormat::GenericTypographic());
    format.SetFormatFlags(0);
    format.SetAlignment(line.justify == Justify::Left     ? Gdiplus::StringAlignmentNear
                        : line.justify == Justify::Centre ? Gdiplus::StringAlignmentCenter
                                                          : Gdiplus::StringAlignmentFar);
    format.SetTrimming(Gdiplus::StringTrimmingEllipsisWord);
    const Gdiplus::SolidBrush brush(toGdiPlus(line.colour));
    const Gdiplus::RectF box(static_cast<Gdiplus::REAL>(place.left),
                             static_cast<Gdiplus::REAL>(place.top),
                             static_cast<Gdiplus::REAL>(place.right - place.left),
                             static_cast<Gdiplus::REAL>(place.bottom - place.top));
    surface.graphics().DrawString(line.caption.text.data(),
                                  static_cast<INT>(line.caption.text.size()), &face.font(), box,
                                  &format, &brush);
}

void drawAt(Surface& surface, double x, double baseline, std::wstring_view text, TextStyle style,
            Scale scale, Colour colour) {
    drawText(surface, x, baseline, text, Face(style, scale), colour);
}

HFONT makeGdiFont(TextStyle style, Scale scale) {
    return CreateFontW(-fontPixels(style, scale), 0, 0, 0, style.bold ? FW_BOLD : FW_NORMAL,
                       style.italic ? TRUE : FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                       DEFAULT_PITCH | FF_DONTCARE, style.fixedWidth ? kFixedFamily : kFamily);
}

} // namespace NRDM
