#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteHolder.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIUIThemeSuite.h"
#include "toolkit/ImplCommon/Cursors.h"

#include <array>

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

/// The dialog toolkit, from the start of the plug-in to its end. It starts before the plug-in's
/// suites are acquired and so holds those that it needs itself.
class Toolkit {
public:
    /// Acquires the toolkit's suites and registers its notifiers. Throws `ai::Error`.
    explicit Toolkit(SPPluginRef self);

    /// Serves a notification of the toolkit's own; the plug-in's handling goes on afterwards.
    /// False when `notifier` is none of the toolkit's.
    bool serve(AINotifierHandle notifier);

    [[nodiscard]] const Theme& theme() const noexcept { return theme_; }

    [[nodiscard]] Cursors& cursors() noexcept { return cursors_; }

private:
    static constexpr std::size_t kNotifierCount = 3;

    void readTheme() noexcept;

    ai::SuiteLease<AINotifierSuite, kAINotifierSuite, kAINotifierSuiteVersion> notifierSuite_;
    /// Without it the controls keep the light colours.
    ai::SuiteLease<AIUIThemeSuite, kAIUIThemeSuite, kAIUIThemeSuiteVersion> themeSuite_;
    std::array<AINotifierHandle, kNotifierCount> notifiers_{};
    Theme theme_;
    Cursors cursors_;
};

} // namespace NRDM
