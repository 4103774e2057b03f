#pragma once

#include "easel/paint/Painter.h"
#include "easel/runtime/Drawer.h"

namespace easel::paint {

/// Paints what annotators have drawn. Current coordinates are pixels of the view; a drawn point
/// means the middle of its pixel, so that lines a pixel wide fill pixels and stay sharp.
void paintAnnotations(const DisplayList& list, Painter& painter);

/// How wide a line of text will be, in pixels of the view.
[[nodiscard]] double annotationWidth(const std::u32string& text, const DrawStyle& style);

} // namespace easel::paint
