#pragma once

#include "easel/session/DrawingSession.h"

#include <optional>
#include <string>

namespace easel {

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

/// A drawing mirrored as a user of the plug-in does it, by its tool and its settings: `prepare`,
/// then the steps of every session with `mirror` after `open`.
class MirrorSession : public DrawingSession {
public:
    using DrawingSession::DrawingSession;

    /// Puts the request into the plug-in's settings, which it reads when it starts.
    void prepare(const MirrorRequest& request);
    /// Selects, makes the axes with the tool and applies them.
    void mirror(const MirrorRequest& request);

private:
    void choose(const MirrorRequest& request);
    void checkAnswers(std::size_t first) const;
};

} // namespace easel
