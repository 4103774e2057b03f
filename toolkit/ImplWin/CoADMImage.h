#pragma once

#include "toolkit/ImplWin/CoADMDrawer.h"

#include <memory>
#include <vector>

namespace NRDM {

/// The object behind an image reference: opaque pixels of a client's own, one to a unit, black at
/// first.
class CoADMImage {
public:
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

/// The images that clients have.
class Images {
public:
    /// Throws `NRDMParameterException` for a size without pixels.
    CoADMImage* make(Screen& screen, Extent size);
    /// Throws `NRDMParameterException` for an image that is gone.
    void drop(CoADMImage& image);

private:
    std::vector<std::unique_ptr<CoADMImage>> images_;
};

} // namespace NRDM
