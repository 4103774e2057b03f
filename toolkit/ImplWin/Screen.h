#pragma once

#include "toolkit/ImplWin/GdiPlus.h"
#include "toolkit/ImplWin/Look.h"
#include "toolkit/ImplWin/Palette.h"
#include "toolkit/ImplWin/Pictures.h"
#include "toolkit/ImplWin/Scale.h"
#include "toolkit/ImplWin/WindowClass.h"

#include <functional>
#include <optional>
#include <vector>

namespace NRDM {

/// What all windows of the toolkit share.
struct Screen {
    Screen(const Theme& theme, PictureSource source);

    GdiPlusSession gdiPlus;
    WindowClass windowClass;
    Palette palette;
    Pictures pictures;
    /// Instead of the display's own scale.
    std::optional<Scale> fixedScale;
    std::vector<HWND> dialogs; ///< all there are
    /// The cursor with an id of the plug-in's resources, or null.
    std::function<HCURSOR(int id)> cursorOf;
    /// Told, inside its handler, of an exception that reached a window procedure.
    std::function<void()> failed;

    [[nodiscard]] Scale scaleFor(HWND window) const {
        return fixedScale ? *fixedScale : scaleOf(window);
    }
};

} // namespace NRDM
