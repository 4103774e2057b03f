#pragma once

#include "easel/core/Registry.h"
#include "easel/runtime/Drawer.h"
#include "host/Handles.h"
#include "host/Types.h"

#include <functional>
#include <string>
#include <vector>

namespace easel {

class Sender;

struct Annotator {
    SPPluginRef plugin;
    std::string name;
    AIAnnotatorOptionsFlags options = 0; ///< Hints for hosts that draw with the graphics card.
};

struct Annotators {
    Registry<AIAnnotatorHandle, Annotator> annotators;
    /// How wide a line of text is in pixels, for what paints it; empty: an estimate.
    std::function<double(const std::u32string& text, const DrawStyle& style)> textWidth;
    /// Areas of the current view, in its pixels, to be painted anew by the next draw pass.
    std::vector<AIRect> invalid;

    /// Asks all of them to draw into `view`; then no area is invalid.
    [[nodiscard]] DisplayList draw(Sender& sender, AIDocumentViewHandle view);
};

} // namespace easel
