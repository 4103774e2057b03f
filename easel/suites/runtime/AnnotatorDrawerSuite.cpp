#include "host/suites/AIAnnotatorDrawerSuite.h"

#include "easel/core/Expose.h"
#include "easel/core/HostObjects.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"

#include <algorithm>

namespace easel {
namespace {

using Kind = DrawCommand::Kind;

constexpr ai::int32 kMostDashes = 12;
constexpr AIErr kDashTooBig = fourCharacterCode("DBIG");
constexpr ai::uint32 kSmoothOption = 1;

template <AIReal DrawStyle::*Member> void setReal(AIAnnotatorDrawer* drawer, AIReal value) {
    required(drawer).style.*Member = value;
}
void setOpacity(AIAnnotatorDrawer* drawer, AIReal opacity) {
    required(drawer).style.opacity = std::clamp(opacity, AIReal{0}, AIReal{1});
}

void setColour(AIAnnotatorDrawer* drawer, const AIRGBColor& colour) {
    required(drawer).style.colour = colour;
}

void setDashed(AIAnnotatorDrawer* drawer, AIBoolean dashed) {
    required(drawer).style.dashed = dashed != 0;
}

void add(AIAnnotatorDrawer* drawer, DrawCommand command) {
    required(drawer).add(std::move(command));
}

void drawLine(AIAnnotatorDrawer* drawer, const AIPoint& start, const AIPoint& end) {
    add(drawer, {.kind = Kind::Line, .style = {}, .points = {start, end}});
}

template <Kind Which> void drawIn(AIAnnotatorDrawer* drawer, const AIRect& rect, AIBoolean fill) {
    add(drawer, {.kind = Which,
                 .style = {},
                 .points = {{rect.left, rect.top}, {rect.right, rect.bottom}},
                 .fill = fill != 0});
}

void drawPolygon(AIAnnotatorDrawer* drawer, const AIPoint* points, ai::uint32 count,
                 AIBoolean fill) {
    add(drawer, {.kind = Kind::Polygon,
                 .style = {},
                 .points = {&required(points), points + count},
                 .fill = fill != 0});
}

void drawBezier(AIAnnotatorDrawer* drawer, const AIPoint& start, const AIPoint (*sets)[3],
                ai::uint32 count, AIBoolean fill) {
    std::vector<AIPoint> points{start};
    points.reserve(1 + 3 * std::size_t{count});
    const AIPoint* const first = &required(sets)[0];
    points.insert(points.end(), first, first + 3 * std::ptrdiff_t{count});
    add(drawer,
        {.kind = Kind::Bezier, .style = {}, .points = std::move(points), .fill = fill != 0});
}

void setDashes(AIAnnotatorDrawer* drawer, AIFloat* dashes, ai::int32 count) {
    if (count < 1) throw ai::Error{kBadParameterErr};
    if (count > kMostDashes) throw ai::Error{kDashTooBig};
    required(drawer).style.dashes.assign(&required(dashes), dashes + count);
    drawer->style.dashed = true;
}

void drawText(AIAnnotatorDrawer* drawer, const ai::UnicodeString& text, const AIPoint& bottomLeft) {
    add(drawer, {.kind = Kind::Text,
                 .style = {},
                 .points = {bottomLeft},
                 .text = readString(session().ledger, text)});
}

void getTextBounds(AIAnnotatorDrawer* drawer, const ai::UnicodeString& text, AIPoint* location,
                   AIBoolean /*useFallback*/, AIRect& bounds) {
    const DrawStyle& style = required(drawer).style;
    const std::u32string letters = readString(session().ledger, text);
    const auto& measured = host().annotators.textWidth;
    const double width =
        measured ? measured(letters, style) : estimatedWidth(letters, style.fontSize);
    AIRect size = textBounds(width, style.fontSize);
    if (location != nullptr) { // the bottom left of the text
        size = {location->h, location->v - size.bottom, location->h + size.right, location->v};
    }
    bounds = size;
}

template <Kind Which> void addMark(AIAnnotatorDrawer* drawer) {
    add(drawer, {.kind = Which, .style = {}});
}

void setPortOptions(AIAnnotatorDrawer* drawer, ai::uint32 mask, ai::uint32 options) {
    if ((mask & kSmoothOption) != 0) required(drawer).style.smooth = (options & kSmoothOption) != 0;
}

} // namespace

void installAnnotatorDrawerSuite(SuiteServer& server) {
    using Suite = AIAnnotatorDrawerSuite;
    expose<&Suite::SetColor, setColour>(server);
    expose<&Suite::SetLineWidth, setReal<&DrawStyle::lineWidth>>(server);
    expose<&Suite::SetLineDashed, setDashed>(server);
    expose<&Suite::DrawLine, drawLine>(server);
    expose<&Suite::DrawRect, drawIn<Kind::Rect>>(server);
    expose<&Suite::DrawPolygon, drawPolygon>(server);
    expose<&Suite::DrawEllipse, drawIn<Kind::Ellipse>>(server);
    expose<&Suite::DrawBezier, drawBezier>(server);
    expose<&Suite::SetLineDashedEx, setDashes>(server);
    expose<&Suite::DrawText, drawText>(server);
    expose<&Suite::GetTextBounds, getTextBounds>(server);
    expose<&Suite::SetFontSize, setReal<&DrawStyle::fontSize>>(server);
    expose<&Suite::DefineClipStart, addMark<Kind::ClipStart>>(server);
    expose<&Suite::DefineClipEnd, addMark<Kind::ClipEnd>>(server);
    expose<&Suite::ClearClip, addMark<Kind::ClipClear>>(server);
    expose<&Suite::SetPortOptions, setPortOptions>(server);
    expose<&Suite::SetOpacity, setOpacity>(server);
}

} // namespace easel
