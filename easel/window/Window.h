#pragma once

#include "easel/document/Session.h"

#include <filesystem>

/// Easel's window: a drawing on a canvas, the plug-in's tools, panel and dialogs around it, for a
/// person's own mouse and keyboard.
///
/// Whatever is done in it is a line of a script first (`Hand.h`): the window finds out what the
/// user means, and the line does it. So the window can do nothing that a script cannot, and what
/// was done can be kept and played again.

namespace easel::window {

struct WindowOptions {
    std::filesystem::path file;    ///< The drawing to begin with; empty: an empty one.
    std::filesystem::path record;  ///< Where what is done is kept as a script; empty: nowhere.
    std::filesystem::path figures; ///< Where what the window costs is told; empty: nowhere.
    std::filesystem::path plugin;  ///< The library.
};

/// Shows the window until its user closes it. Returns what the plug-in did wrong in the session,
/// one line each. Throws SessionError when there can be no window, or no plug-in.
[[nodiscard]] std::vector<std::string> openWindow(Session& session, const WindowOptions& options);

} // namespace easel::window
