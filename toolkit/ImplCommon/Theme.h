#pragma once

#include "host/suites/AIUIThemeSuite.h"
#include "toolkit/suites/ADMTypes.h"

#include <optional>

namespace NRDM {

/// The host's interface colours, as the toolkit's controls are drawn in them.
struct Theme {
    AIUIThemeColor background{1, 0.84F, 0.84F, 0.84F};
    AIUIThemeColor text{1, 0.1F, 0.1F, 0.1F};
    AIUIThemeColor focusRing{1, 0.3F, 0.3F, 0.3F};
    AIUIThemeColor editText{1, 0.1F, 0.1F, 0.1F};
    AIUIThemeColor editBackground{1, 1, 1, 1};
    bool dark = false; ///< Pictures are taken from their dark variants.
};

/// One of ADM's numbered colours in `theme`; nothing for numbers without a colour.
[[nodiscard]] std::optional<ADMRGBColor> colourOf(ADMColor colour, const Theme& theme);

} // namespace NRDM
