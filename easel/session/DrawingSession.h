#pragma once

#include "easel/core/OutputFile.h"
#include "easel/runtime/Host.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace easel {

/// What went wrong in a session, in one line that a user can act on.
struct SessionError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A place in the user units of a drawing: y downwards.
using DrawingPoint = CurvePoint;

/// A user's sitting with drawings and plug-ins:
///
///   1. `start` starts the plug-ins that were added to `host`.
///   2. `open` reads a drawing and makes it current.
///   3. Everything else that a user can do is in `host`.
///   4. `save` writes the drawing; `finish` quits the plug-ins.
///
/// Failures throw `SessionError`, or what is wrong with a file (`FileError`).
class DrawingSession {
public:
    explicit DrawingSession(Session& session, HostSettings settings = {});
    /// Quits the plug-ins in order if `finish` has not: a failure ends no session halfway.
    ~DrawingSession();
    DrawingSession(const DrawingSession&) = delete;
    DrawingSession& operator=(const DrawingSession&) = delete;

    void start();
    /// Returns warnings of the reader, one line each.
    std::vector<std::string> open(const std::filesystem::path& file);
    /// Puts `together`, which is prepared, in its place with the drawing. Returns warnings of the
    /// writer, one line each.
    std::vector<std::string> save(const std::filesystem::path& file,
                                  OutputFile* together = nullptr);
    /// Returns what the plug-in did wrong in the session, one line each; empty when all is well.
    [[nodiscard]] std::vector<std::string> finish();

    Host host;

private:
    bool running_ = false;
};

/// Adds the plug-ins of the library `file`. Throws `SessionError`.
void addPluginLibrary(Host& host, const std::filesystem::path& file);
/// Where the plug-in lies when nobody says: beside the program, or in a dist folder. When it is in
/// neither, the first place that was looked at.
[[nodiscard]] std::filesystem::path defaultPluginLibrary();

} // namespace easel
