#pragma once

#include "easel/core/Registry.h"
#include "host/Handles.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace easel {

/// A question or message to the user.
struct Alert {
    std::string kind; ///< "message", "warning", "error", "ok-cancel", "question", "yes-no".
    std::string text;
};

/// What the plug-in did to the world outside, and what the world answers. Without a window Easel
/// opens nothing and asks nobody: a session is the same wherever it runs.
struct UserRecord {
    std::vector<Alert> alerts;
    /// A window shows alerts to its user; empty: questions are answered from `answers`.
    std::function<AIAnswer(const Alert&)> showAlert;
    std::deque<AIAnswer> answers; ///< For the coming questions; when empty the answer is yes.
    std::vector<std::filesystem::path> launched;
    bool browserAvailable = true;
    ai::int32 cursor = -4;             ///< The last one shown; -4 is the arrow.
    SPPluginRef cursorOwner = nullptr; ///< Whose resources hold it; null for the host's own ones.
    Registry<AIResourceManagerHandle, SPPluginRef> cursorManagers;
    AIWindowRef appWindow = nullptr; ///< That owns the dialogs of plug-ins; null: there is none.
    std::vector<AIWindowRef>
        modalParents; ///< Windows that own the host's dialogs; the last counts.
    bool darkTheme = false;
};

} // namespace easel
