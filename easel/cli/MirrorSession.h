#pragma once

#include "easel/runtime/Host.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace easel {

/// What went wrong in a session, in one line that a user can act on.
struct SessionError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A place in the user units of a drawing: y downwards.
struct DrawingPoint {
    double x = 0;
    double y = 0;
};

enum class MirrorMode : std::uint8_t {
    Selection, ///< The selected art is mirrored once.
    Layer,     ///< The axes stay on the layer, and all its art is kept mirrored.
};

struct MirrorRequest {
    int axes = 3;
    double angleDegrees = 0;              ///< Of the first axis, counter-clockwise as seen.
    std::optional<DrawingPoint> origin{}; ///< None: the middle of the drawing.
    MirrorMode mode = MirrorMode::Selection;
    std::string layer{}; ///< Empty: all layers are selected, or the axes go on the current layer.
    bool keepPoints = false; ///< Keeps anchors made on the axes even where the shape needs none.
};

/// A drawing mirrored as a user of the plug-in does it, by its tool and its settings:
///
///   1. `prepare` puts the request into the plug-in's settings, which it reads when it starts.
///   2. `start` starts the plug-ins that were added to `host`.
///   3. `open` reads a drawing and makes it current.
///   4. `mirror` selects, makes the axes with the tool and applies them.
///   5. `save` writes the drawing; `finish` quits the plug-ins.
///
/// `undo`, `redo` and everything else a user can do is in `host`. Failures throw `SessionError`, or
/// what is wrong with a file (`svg::FileError`).
class MirrorSession {
public:
    explicit MirrorSession(HostSettings settings = {}) : host(settings) {}
    /// Quits the plug-ins in order if `finish` has not: a failure ends no session halfway.
    ~MirrorSession();
    MirrorSession(const MirrorSession&) = delete;
    MirrorSession& operator=(const MirrorSession&) = delete;

    void prepare(const MirrorRequest& request);
    void start();
    /// Returns warnings of the reader, one line each.
    std::vector<std::string> open(const std::filesystem::path& file);
    void mirror(const MirrorRequest& request);
    void save(const std::filesystem::path& file);
    /// Returns what the plug-in did wrong in the session, one line each; empty when all is well.
    [[nodiscard]] std::vector<std::string> finish();

    Host host;

private:
    void choose(const MirrorRequest& request);
    void checkAnswers(std::size_t first) const;

    bool running_ = false;
};

/// Adds the plug-ins of the library `file`. Throws `SessionError`.
void addPluginLibrary(Host& host, const std::filesystem::path& file);
/// Where the plug-in lies when nobody says: beside the program, or in a dist folder. When it is in
/// neither, the first place that was looked at.
[[nodiscard]] std::filesystem::path defaultPluginLibrary();

} // namespace easel
