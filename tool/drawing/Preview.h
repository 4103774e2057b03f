#pragma once

/// Mirrored art as it would be, drawn over the document while axes are pending.
///
///   1. The art is read once, by the first `refreshPreview`, and kept until `clearPreview`: what is
///      selected, or with nothing selected, and while a layer's axes are edited, that of the layer.
///   2. What is drawn is made from it when it is drawn, for the axes of that moment: however many
///      messages a drag sends, each picture is made once.

#include "tool/drawing/PreviewArt.h"
#include "tool/drawing/PreviewPaths.h"
#include "tool/drawing/Surface.h"

namespace facetta {

struct ToolSession;
struct ToolState;

struct Preview {
    PreviewArt art;
    bool captured = false; ///< the art is that of the document
    PreviewPaths paths;
    PageAxes axes;               ///< for which the paths were made,
    double zoom = 0.0;           ///< and at which zoom; 0: none were
    bool asCurves = true;        ///< there are few enough of them
    std::vector<AIPoint> pixels; ///< of the path being drawn
};

/// Curves that are mirrored for one picture: a few milliseconds.
constexpr std::size_t kMostMirroredCurves = 100'000;
/// Curves of one picture that are drawn as such; more become lines.
constexpr std::size_t kMostPreviewCurves = 10'000;
/// Lines of one picture.
constexpr std::size_t kMostPreviewLines = 40'000;

/// To be called when the axes or the art have changed: reads the art unless it has been read
/// already. Throws `ai::Error`.
void refreshPreview(ToolSession& session);

/// Forgets the art that has been read: it is no longer previewed, or has changed.
void clearPreview(ToolState& state);

/// Draws the images of the art that has been read across the axes of `session`. Throws `ai::Error`.
void drawPreview(const Surface& surface, ToolSession& session);

} // namespace facetta
