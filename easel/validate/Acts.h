#pragma once

#include <span>

namespace easel::validate {

/// How far the user has come before an act.
enum class Stage : unsigned char {
    Opened,  ///< A drawing is open, everything in it selected, the panel shown.
    Tool,    ///< The symmetry tool is in hand.
    Pending, ///< Axes have been drawn.
    OnLayer, ///< They are on the layer.
    Edited,  ///< They have been dragged off it.
};

/// Something that a user or the host does, as one step of undo at most.
struct Act {
    const char* name;
    Stage stage;
    const char* lines;         ///< Of a script.
    const char* before = "";   ///< More of the same, between the stage and the act.
    const char* settings = ""; ///< Before the plug-in starts.
};

[[nodiscard]] std::span<const Act> acts();

/// The settings for every act, and the lines that lead to a stage from the opened drawing.
[[nodiscard]] const char* commonSettings();
[[nodiscard]] const char* linesTo(Stage stage);
/// Axes are made, applied and taken back in a new drawing, as must be possible at any time.
[[nodiscard]] const char* lifeOfAxes();

} // namespace easel::validate
