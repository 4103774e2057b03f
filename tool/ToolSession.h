#pragma once

#include "platform/Platform.h"
#include "symmetry/MirrorEngine.h"
#include "tool/CurrentView.h"
#include "tool/Licensing.h"
#include "tool/ModalDialogs.h"
#include "tool/Preferences.h"
#include "tool/ToolState.h"

#include <functional>

namespace facetta {

/// What the tool's handlers work on for the length of one message: the state they own and what the
/// plug-in lends them.
struct ToolSession {
    SPPluginRef self;
    ToolState& state;
    Preferences& preferences; ///< angle and count of the next new axes follow the tool
    HostPreferences& host;    ///< the tool may set the host's constrain angle
    const CurrentView& view;
    const Licensing& licence;
    ModalDialogs& dialogs;
    const platform::KeyState& keys; ///< as they were when the message came
    MirrorEnvironment mirroring;
    // The plug-in's resources, which this room cannot reach by itself.
    std::function<void(ai::int32 id)> setCursor = [](ai::int32) {};
    std::function<std::u16string(ai::int32 id)> textOf = [](ai::int32) { return u""; };
    /// Tells whoever shows the axes' numbers that these, or what can be done with them, have
    /// changed.
    void (*updatePanel)() = [] {};
};

} // namespace facetta
