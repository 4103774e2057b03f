#pragma once

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <memory>

namespace NRDM {

/// The object behind an image reference: opaque pixels of a client's own, one to a unit, black at
/// first.
class CoADMImage {
public:
    /// Throws `NRDMParameterException` for a size without pixels.
    CoADMImage(Screen& screen, Extent size);

    [[nodiscard]] int width() const noexcept { return size_.width; }
    [[nodiscard]] int height() const noexcept { return size_.height; }

    /// A drawer on its pixels, the same one until `endDrawing`.
    CoADMDrawer* beginDrawing();
    void endDrawing() { drawer_.reset(); }

    /// For drawing it elsewhere.
    [[nodiscard]] Surface& surface() noexcept { return surface_; }

private:
    Screen& screen_;
    Extent size_;
    Surface surface_;
    std::unique_ptr<CoADMDrawer> drawer_;
};

} // namespace NRDM
