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
    ToolState& state;
    Preferences& preferences; ///< angle and count of the next new axes follow the tool
    HostPreferences& host;    ///< the tool may set the host's constrain angle
    const CurrentView& view;
    const Licensing& licence;
    ModalDialogs& dialogs;
    const platform::KeyState& keys; ///< as they were when the message came
    MirrorEnvironment mirroring;
    /// Shows a cursor of the plug-in's resources; the rooms below know none.
    std::function<void(ai::int32 id)> setCursor = [](ai::int32) {};
    /// Tells whoever shows the axes' numbers that they are others, or may be applied or not.
    void (*updatePanel)() = [] {};
};

} // namespace facetta
