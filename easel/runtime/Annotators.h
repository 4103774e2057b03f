#pragma once

#include "easel/core/Registry.h"
#include "host/Handles.h"
#include "host/Types.h"

#include <string>
#include <vector>

namespace easel {

struct Annotator {
    SPPluginRef plugin;
    std::string name;
    bool active = true;
    AIAnnotatorOptionsFlags options = 0;
    SPPluginRef alternate = nullptr;
};

struct Annotators {
    Registry<AIAnnotatorHandle, Annotator> annotators;
    /// Areas of the current view, in its pixels, to be painted anew by the next draw pass.
    std::vector<AIRect> invalid;
};

} // namespace easel
