#pragma once

#include "host/Handles.h"
#include "host/Types.h"

#include <string>
#include <vector>

namespace easel {

/// The state of an annotator's pen. Its points are pixels of the view, as the coordinates are:
/// an annotation is as wide and its letters as tall at every zoom. Each draw message starts with
/// this one: nothing carries over from one annotator to the next.
struct DrawStyle {
    AIRGBColor colour{0, 0, 0};
    AIReal lineWidth = 1;
    bool dashed = false;
    std::vector<AIFloat> dashes{4, 4}; ///< On and off in turn.
    AIReal opacity = 1;
    bool smooth = false; ///< Anti-aliased.
    AIReal fontSize = 11;
    std::u32string fontName = U"Tahoma";
};

/// One call of an annotator, with all that is needed to paint it. Points are pixels of the view.
struct DrawCommand {
    enum class Kind { Line, Rect, Polygon, Ellipse, Bezier, Text, ClipStart, ClipEnd, ClipClear };
    Kind kind;
    DrawStyle style;
    /// Line: both ends. Bezier: an anchor, then handle, handle and anchor in turns. Rect, Ellipse:
    /// top left and bottom right. Text: its bottom left.
    std::vector<AIPoint> points = {};
    bool fill = false;
    std::u32string text = {};
};

using DisplayList = std::vector<DrawCommand>;

/// A line for each command, for tests: "line 10,20 30,40 #ff0000".
[[nodiscard]] std::string dump(const DisplayList& list);

/// The rectangle, from 0, 0, of a line of text that is `width` wide.
[[nodiscard]] AIRect textBounds(double width, AIReal fontSize);
/// Without a font at hand: every character is half as wide as the font is tall.
[[nodiscard]] double estimatedWidth(const std::u32string& text, AIReal fontSize);

} // namespace easel

/// What the annotator suite's draw message lends: it records the calls as a display list.
class AIAnnotatorDrawer {
public:
    easel::DrawStyle style;
    easel::DisplayList list;

    /// Adds a command in the present style.
    void add(easel::DrawCommand command);
    /// Clears the clip if there is one, so that it does not reach the next annotator.
    void endClip();
};
