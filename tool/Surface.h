#pragma once

#include "host/Handles.h"
#include "tool/Colours.h"
#include "tool/ViewMap.h"

namespace facetta {

/// What is drawn on for the length of one draw message.
struct Surface {
    AIAnnotatorDrawer* drawer;
    ViewMap view;
    const InterfaceColours& colours;
};

} // namespace facetta
