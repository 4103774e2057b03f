#pragma once

/// Text as all controls draw it: Tahoma, through GDI+, one line on a common baseline.

#include "toolkit/ImplCommon/Colour.h"
#include "toolkit/ImplWin/Scale.h"
#include "toolkit/ImplWin/Surface.h"

#include <string>
#include <string_view>

namespace NRDM {

/// A size of Tahoma (in units, see Scale.h) and how it is cut.
struct TextStyle {
    double size = 12;
    bool bold = false;
    bool italic = false;
    bool fixedWidth = false;
};

/// The style of ADM's font number `font`, 0..13. Zero means dialogs' font in a dialog and palettes'
/// in a panel, as does any number unknown.
[[nodiscard]] TextStyle textStyleOf(int font, bool inPanel);

/// The size of the letters, in pixels: whole, since fonts are hinted for whole sizes, and rounded
/// down, so that a text that fits its item at 1x fits it at every scale.
[[nodiscard]] int fontPixels(TextStyle style, Scale scale);

/// A text and the letter that Alt chooses it with.
struct Caption {
    std::wstring text;  ///< without marks; "&&" is one ampersand
    int accessKey = -1; ///< index of the letter, or -1
};

[[nodiscard]] Caption captionOf(std::wstring_view marked);

[[nodiscard]] std::wstring toWide(std::string_view utf8);
[[nodiscard]] std::string toUtf8(std::wstring_view text);

/// In pixels, from the top of the line.
struct LineMetrics {
    double ascent = 0;
    double height = 0;
    double capHeight = 0;
};

[[nodiscard]] LineMetrics lineMetrics(TextStyle style, Scale scale);

/// How wide `text` is in one line, in pixels.
[[nodiscard]] double textWidth(std::wstring_view text, TextStyle style, Scale scale);

/// How high `text` is when wrapped to `width` pixels.
[[nodiscard]] int wrappedHeight(std::wstring_view text, TextStyle style, Scale scale, int width);

/// The baseline that centres capitals between `top` and `bottom`. Everything with one line of text
/// uses it, so that a label and the field beside it agree.
[[nodiscard]] int baselineOf(int top, int bottom, TextStyle style, Scale scale);

enum class Justify { Left, Centre, Right };

/// What becomes of a text too wide for its place.
enum class Overflow { Tighten, EndEllipsis, MiddleEllipsis, Clip };

struct TextLine {
    Caption caption;
    TextStyle style;
    Scale scale;
    Colour colour;
    Justify justify = Justify::Left;
    Overflow overflow = Overflow::EndEllipsis;
    bool showAccessKey = false;
};

/// Draws `line` into `place`, vertically centred. `Tighten` moves the letters closer, each by up to
/// a sixteenth of their size, before it shortens: a label keeps the size of its neighbours.
void drawLine(Surface& surface, const RECT& place, const TextLine& line);

/// Draws `line` wrapped at the sides of `place` from its top; what does not fit is not drawn.
void drawWrapped(Surface& surface, const RECT& place, const TextLine& line);

/// Draws `text` with its first letter starting at `x` and its baseline at `baseline`.
void drawAt(Surface& surface, double x, double baseline, std::wstring_view text, TextStyle style,
            Scale scale, Colour colour);

/// The same font for system classes; owned by the caller.
[[nodiscard]] HFONT makeGdiFont(TextStyle style, Scale scale);

} // namespace NRDM
