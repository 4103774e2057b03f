#include "toolkit/Toolkit.h"

#include "host/Error.h"
#include "host/MessageNames.h"

#include <algorithm>

namespace NRDM {
namespace {

/// What the host knows the toolkit's notifiers by.
constexpr char kUpdateNotifier[] = "NRDMUIUpdate";
constexpr char kShutdownNotifier[] = "NRDMAppShutdown";

struct NotifierRow {
    const char* name;
    const char* type;
};
/// In the order of `Toolkit::notifiers_`; `kShutdown` names a row.
constexpr NotifierRow kNotifiers[] = {
    {kUpdateNotifier, kUIBrightnessChangedNotifier},
    {kShutdownNotifier, kApplicationShutdownNotifier},
    {kUpdateNotifier, kAllPluginsStartedNotifier},
};
constexpr std::size_t kShutdown = 1;

// The host's numbers for its kinds of windows.
constexpr ai::int32 kDialogTheme = 0;
constexpr ai::int32 kPanelTheme = 1;
struct ColourRow {
    ai::int32 component;
    AIUIThemeColor Theme::*colour;
};
constexpr ColourRow kColours[] = {
    {0, &Theme::background}, {1, &Theme::text},           {2, &Theme::focusRing},
    {3, &Theme::editText},   {4, &Theme::editBackground},
};

} // namespace

std::unique_ptr<Peers> Toolkit::makePeers(void* toolkit) {
    const Toolkit& self = *static_cast<Toolkit*>(toolkit);
    return systemPeers({.themes = self.themes_, .plugin = self.self_, .fail = self.failed_});
}

Toolkit::Toolkit(SPPluginRef self, Failed failed)
    : self_(self), failed_(failed), cursors_(self), dialogs_(themes_, makePeers, this) {
    ai::check(notifierSuite_.acquire());
    if (themeSuite_.acquire() == kNoErr) readThemes();
    static_cast<void>(runtimeSuite_.acquire());
    static_assert(std::size(kNotifiers) == kNotifierCount);
    for (std::size_t i = 0; i < kNotifierCount; ++i)
        ai::check(notifierSuite_->AddNotifier(self, kNotifiers[i].name, kNotifiers[i].type,
                                              &notifiers_[i]));
}

bool Toolkit::serve(AINotifierHandle notifier) {
    const auto own = std::find(notifiers_.begin(), notifiers_.end(), notifier);
    if (notifier == nullptr || own == notifiers_.end()) return false;
    // When the host closes, windows go before the suites do: nothing is drawn from here on. At the
    // other two the colours may be new ones: other plug-ins set them while they start.
    if (own - notifiers_.begin() == kShutdown) {
        dialogs_.closeAll();
        cursors_.close();
        themeSuite_.release();
    } else if (themeSuite_) {
        readThemes();
        dialogs_.themeChanged();
    }
    return true;
}

void Toolkit::readThemes() noexcept {
    const auto read = [this](ai::int32 kind, Theme& theme) {
        theme.dark = themeSuite_->IsUIThemeDark() != 0;
        for (const auto& [component, colour] : kColours) {
            auto told = theme.*colour;
            if (themeSuite_->GetUIThemeColor(kind, component, told) == kNoErr) theme.*colour = told;
        }
    };
    read(kDialogTheme, themes_.dialogs);
    read(kPanelTheme, themes_.panels);
}

} // namespace NRDM
