#pragma once

#include "tests/shell/Session.h"

#include "symmetry/ArtSpace.h"

#include <cmath>

namespace facetta::tests {

/// The tool in hand over an open document, with snapping off.
class ToolInHand : public Session {
public:
    explicit ToolInHand(TestLicence terms = {}) : Session(std::move(terms)) {
        host.start();
        openDocument();
        host.cursorSnap.enabled = false;
        host.selectTool(thePlugin->toolHandle);
    }
    void press(AIReal x, AIReal y) { host.press({.at = {x, y}}); }
    void drag(AIReal x, AIReal y, ai::uint16 modifiers = 0) {
        host.drag({.at = {x, y}, .modifiers = modifiers});
    }
    void release(AIReal x, AIReal y) { host.release({.at = {x, y}}); }

    /// One whole gesture along a straight line, with a message half-way.
    void dragFrom(AIRealPoint from, AIRealPoint to) {
        press(from.h, from.v);
        drag((from.h + to.h) / 2, (from.v + to.v) / 2);
        drag(to.h, to.v);
        release(to.h, to.v);
    }
    void click(AIRealPoint point) {
        press(point.h, point.v);
        release(point.h, point.v);
    }

    /// A place `sectors` sectors counter-clockwise of the first axis.
    [[nodiscard]] AIRealPoint onRay(double sectors, double radius) const {
        const double angle = axes().angle + sectors * sectorAngle(axes().axisCount);
        return narrow(origin() + radius * direction(angle));
    }
    /// The middle of a button of the on-canvas dialog.
    [[nodiscard]] AIRealPoint onButton(DialogItem item) const {
        const DialogPosition& dialog = thePlugin->tool.dialog;
        const int y = 30 * static_cast<int>(item) - 30;
        return easel::toArtwork(host.view(nullptr), {static_cast<AIReal>(dialog.x + 96),
                                                     static_cast<AIReal>(dialog.y + y)});
    }

    [[nodiscard]] ToolState& tool() const { return thePlugin->tool; }
    [[nodiscard]] const SymmetryAxes& axes() const { return thePlugin->tool.axes; }
    [[nodiscard]] Point origin() const { return soften(hardOriginOf(axes())); }
};

inline bool near(double a, double b) { return std::abs(a - b) < 1e-3; }

inline bool near(Point a, Point b) { return distance(a, b) < 1e-2; }

} // namespace facetta::tests
