#pragma once

#include "easel/paint/Picture.h"
#include "easel/runtime/Drawer.h"
#include "easel/runtime/Views.h"

namespace easel::paint {

struct ViewPictureOptions {
    /// Pixels of the picture to a pixel of the view, as on a screen of that density.
    double scale = 1.0;
    bool darkTheme = false;
};

/// What lies below the annotations: the pasteboard, the artboard with all art, and guides. Current
/// coordinates are pixels of the view.
void paintPage(const DocumentView& view, Painter& painter, const ViewPictureOptions& options);

/// What the window shows: the pasteboard, the artboard with all art, guides, and over them what
/// annotators have drawn. Throws std::length_error when it would be too large.
[[nodiscard]] Picture paintView(const DocumentView& view, const DisplayList& annotations,
                                const ViewPictureOptions& options = {});

} // namespace easel::paint
