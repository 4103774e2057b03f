#pragma once

/// What the tool draws, as the host's recorder has it.

#include "tests/tool/Drawing.h"

#include "tool/ToolSession.h"

#include <algorithm>
#include <vector>

namespace facetta::tests {

using Kind = easel::DrawCommand::Kind;

/// The tool's functions called without a message: no key is held.
inline ToolSession toolSession() {
    static const platform::KeyState kNoKeys;
    return thePlugin->toolSession(kNoKeys);
}

/// A draw message for the plug-in's annotator.
inline AIAnnotatorMessage drawMessage(const Session& session, AIAnnotatorDrawer* drawer) {
    AIAnnotatorMessage message{};
    message.annotator = thePlugin->annotator;
    message.view = session.host.currentView();
    message.drawer = drawer;
    return message;
}

/// All that is drawn at this moment.
inline easel::DisplayList drawn(Session& session) { return session.host.drawAnnotations(nullptr); }

inline std::vector<easel::DrawCommand> ofKind(const easel::DisplayList& list, Kind kind) {
    std::vector<easel::DrawCommand> found;
    std::ranges::copy_if(list, std::back_inserter(found),
                         [kind](const easel::DrawCommand& each) { return each.kind == kind; });
    return found;
}

/// The axes: solid lines of one pixel, without the broader ground below them.
inline std::vector<easel::DrawCommand> axisLines(const easel::DisplayList& list) {
    std::vector<easel::DrawCommand> lines = ofKind(list, Kind::Line);
    std::erase_if(lines, [](const easel::DrawCommand& each) {
        return each.style.dashed || each.style.lineWidth != 1.0F;
    });
    return lines;
}

/// Filled polygons of an opacity below 1.
inline std::vector<easel::DrawCommand> masks(const easel::DisplayList& list) {
    std::vector<easel::DrawCommand> polygons = ofKind(list, Kind::Polygon);
    std::erase_if(polygons, [](const easel::DrawCommand& each) {
        return !each.fill || each.style.opacity == 1.0F;
    });
    return polygons;
}

/// The texts drawn, in order.
inline std::vector<std::u32string> textsIn(const easel::DisplayList& list) {
    std::vector<std::u32string> texts;
    for (const easel::DrawCommand& each : ofKind(list, Kind::Text))
        texts.push_back(each.text);
    return texts;
}

inline Point at(AIPoint pixel) {
    return {static_cast<double>(pixel.h), static_cast<double>(pixel.v)};
}

/// A place on the page as a pixel of the view, with the fractions that drawing rounds away. The
/// view shows the page's middle in its own.
inline Point pixelsOf(const Session& session, Point page) {
    const easel::DocumentView& view = session.host.view(nullptr);
    const auto zoom = static_cast<double>(view.zoom);
    return {(page.x - static_cast<double>(view.centre.h)) * zoom + view.width / 2.0,
            (static_cast<double>(view.centre.v) - page.y) * zoom + view.height / 2.0};
}

} // namespace facetta::tests
