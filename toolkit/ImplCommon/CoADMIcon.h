#pragma once

#include "host/Handles.h"
#include "toolkit/suites/ADMTypes.h"

namespace NRDM {

/// A picture of a plug-in's resources. There is one in any case; of unknown type it shows nothing.
class CoADMIcon {
public:
    /// Throws `ai::Error` when the host does not know the plug-in.
    CoADMIcon(SPPluginRef plugin, int id);

    [[nodiscard]] int id() const noexcept { return id_; }
    [[nodiscard]] bool isKnown() const noexcept { return width_ > 0; }
    [[nodiscard]] ADMIconType type() const noexcept {
        return isKnown() ? kADMImageIconType : kADMUnknownIconType;
    }
    // In pixels; 0 when it is unknown.
    [[nodiscard]] int width() const noexcept { return width_; }
    [[nodiscard]] int height() const noexcept { return height_; }

private:
    int id_;
    int width_ = 0;
    int height_ = 0;
};

} // namespace NRDM
