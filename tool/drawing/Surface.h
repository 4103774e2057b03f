#pragma once

#include "host/Handles.h"
#include "tool/drawing/Colours.h"
#include "tool/drawing/ViewMap.h"

#include <span>

namespace facetta {

/// What is drawn on for the length of one draw message.
struct Surface {
    AIAnnotatorDrawer* drawer;
    ViewMap view;
    const InterfaceColours& colours;
    /// What the host has erased, in pixels; empty: everything. What is opaque may be drawn again
    /// outside of it; what is not would grow denser there.
    std::span<const AIRealRect> erased{};
};

} // namespace facetta
