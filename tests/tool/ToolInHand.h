#pragma once

#include "tests/shell/Session.h"

#include "symmetry/ArtSpace.h"

#include <cmath>

namespace facetta::tests {

/// The tool in hand over an open document, with snapping off.
class ToolInHand : public Session {
public:
    explicit ToolInHand(const Licensing& licence = {}) : Session(licence) {
        host.start();
        openDocument();
        host.cursorSnap.enabled = false;
        host.selectTool(thePlugin->toolHandle);
    }
    void press(AIReal x, AIReal y) {
        host.track({.at = {x, y}});
        host.press({.at = {x, y}});
    }
    void drag(AIReal x, AIReal y, ai::uint16 modifiers = 0) {
        host.drag({.at = {x, y}, .modifiers = modifiers});
    }
    void release(AIReal x, AIReal y) { host.release({.at = {x, y}}); }

    [[nodiscard]] const SymmetryAxes& axes() const { return thePlugin->tool.axes; }
    [[nodiscard]] Point origin() const { return soften(originOf(axes())); }
};

inline bool near(double a, double b) { return std::abs(a - b) < 1e-3; }

inline bool near(Point a, Point b) { return distance(a, b) < 1e-2; }

} // namespace facetta::tests
