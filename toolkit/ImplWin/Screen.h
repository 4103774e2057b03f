#pragma once

#include "toolkit/ImplCommon/Palette.h"
#include "toolkit/ImplCommon/Theme.h"
#include "toolkit/ImplWin/GdiPlus.h"
#include "toolkit/ImplWin/Look.h"
#include "toolkit/ImplWin/Pictures.h"
#include "toolkit/ImplWin/Scale.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace NRDM {

class NativeDialog;

/// What all windows of the toolkit share. Each of them keeps it: a modal loop may still be on its
/// way out when everything else has gone.
struct Screen : std::enable_shared_from_this<Screen> {
    Screen(const Themes& themes, PictureSource source)
        : palettes(themes), pictures(std::move(source)) {}

    struct Palettes {
        explicit Palettes(const Themes& themes) : dialogs(themes.dialogs), panels(themes.panels) {}
        Palette dialogs;
        Palette panels;
        [[nodiscard]] const Palette& of(bool panel) const { return panel ? panels : dialogs; }
    };

    GdiPlusSession gdiPlus;
    Palettes palettes;
    Pictures pictures;
    /// Instead of the display's own scale.
    std::optional<Scale> fixedScale;
    std::vector<NativeDialog*> dialogs; ///< all there are
    /// The cursor with an id of the plug-in's resources, or null.
    std::function<HCURSOR(int id)> cursorOf;
    /// Told, inside its handler, of an exception that reached a window procedure.
    std::function<void()> failed;

    [[nodiscard]] Scale scaleFor(HWND window) const {
        return fixedScale ? *fixedScale : scaleOf(window);
    }
};

} // namespace NRDM
