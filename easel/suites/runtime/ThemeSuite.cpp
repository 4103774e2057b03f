#include "easel/core/Expose.h"
#include "easel/suites/runtime/RunningHost.h"
#include "easel/suites/runtime/RuntimeSuites.h"
#include "host/suites/AIUIThemeSuite.h"

#include <array>

namespace easel {
namespace {

/// Greys of background, text, focus ring, edit text and edit background, in the interface's order.
using Theme = std::array<AIReal, 5>;
constexpr Theme kLight = {0.84F, 0.1F, 0.3F, 0.1F, 1.0F};
constexpr Theme kDark = {0.325F, 0.86F, 0.4F, 0.9F, 0.27F};

constexpr ai::int32 kThemes = 2; ///< Dialogs and panels, alike here.

AIUIThemeColor getThemeColor(ai::int32 theme, ai::int32 component) {
    const Theme& greys = host().user.darkTheme ? kDark : kLight;
    const bool known = theme >= 0 && theme < kThemes && component >= 0 &&
                       component < static_cast<ai::int32>(greys.size());
    if (!known) throw ai::Error{kBadParameterErr};
    const AIReal grey = greys[static_cast<std::size_t>(component)];
    return {1, grey, grey, grey};
}

bool isThemeDark() { return host().user.darkTheme; }

} // namespace

void installThemeSuite(SuiteServer& server) {
    expose<&AIUIThemeSuite::GetUIThemeColor, getThemeColor>(server);
    expose<&AIUIThemeSuite::IsUIThemeDark, isThemeDark>(server);
}

} // namespace easel
