#pragma once

#include "host/suites/AIUIThemeSuite.h"

namespace NRDM {

/// The host's interface colours for one kind of window.
struct Theme {
    AIUIThemeColor background{1, 0.84F, 0.84F, 0.84F};
    AIUIThemeColor text{1, 0.1F, 0.1F, 0.1F};
    AIUIThemeColor focusRing{1, 0.3F, 0.3F, 0.3F};
    AIUIThemeColor editText{1, 0.1F, 0.1F, 0.1F};
    AIUIThemeColor editBackground{1, 1, 1, 1};
    bool dark = false; ///< Pictures are taken from their dark variants.
};

/// The host gives its panels colours of their own.
struct Themes {
    Theme dialogs;
    Theme panels;

    [[nodiscard]] const Theme& of(bool panel) const noexcept { return panel ? panels : dialogs; }
};

} // namespace NRDM
