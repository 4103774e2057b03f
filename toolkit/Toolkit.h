#pragma once

#include "host/Handles.h"
#include "host/Messages.h"
#include "host/SuiteHolder.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIRuntimeSuite.h"
#include "host/suites/AIUIThemeSuite.h"
#include "toolkit/Cursors.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Theme.h"

#include <array>

namespace NRDM {

/// The dialog toolkit, from the start of the plug-in to its end. It starts before the plug-in's
/// suites are acquired and so holds those that it needs itself.
class Toolkit {
public:
    /// Called inside the handler of an exception that a client's procedure let out and that no
    /// caller can be told of.
    using Failed = void (*)() noexcept;

    /// Acquires the toolkit's suites and registers its notifiers. Throws `ai::Error`.
    Toolkit(SPPluginRef self, Failed failed);
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

    /// The library is about to go: nothing may be left that points into it.
    void unloading() noexcept { dialogs_.closeAll(); }

    /// The library has been loaded again, at another place: what its own variables held is lost.
    void reloaded(Failed failed) noexcept {
        failed_ = failed;
        dialogs_.announce(makePeers);
    }

    /// Serves a notification of the toolkit's own; the plug-in's handling goes on afterwards.
    /// False when `notifier` is none of the toolkit's.
    bool serve(AINotifierHandle notifier);

    /// Of the host's dialogs, which its whole interface follows.
    [[nodiscard]] const Theme& theme() const noexcept { return themes_.dialogs; }

    [[nodiscard]] Cursors& cursors() noexcept { return cursors_; }

    [[nodiscard]] Dialogs& dialogs() noexcept { return dialogs_; }

private:
    static constexpr std::size_t kNotifierCount = 3;

    void readThemes() noexcept;
    static std::unique_ptr<Peers> makePeers(void* toolkit);

    SPPluginRef self_;
    Failed failed_;

    ai::SuiteLease<AINotifierSuite> notifierSuite_;
    /// Without it the controls keep the light colours.
    ai::SuiteLease<AIUIThemeSuite> themeSuite_;
    std::array<AINotifierHandle, kNotifierCount> notifiers_{};
    /// Held as long as the toolkit lives, as are the host's other suites that it stands on.
    ai::SuiteLease<AIRuntimeSuite> runtimeSuite_;
    Themes themes_;
    Cursors cursors_;
    Dialogs dialogs_;
};

} // namespace NRDM
