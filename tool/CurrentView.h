#pragma once

#include "host/Handles.h"
#include "host/Types.h"

namespace facetta {

/// The view of the document the user works in; no handles while no document is open.
struct CurrentView {
    AIDocumentHandle document = nullptr; ///< compared only
    AIDocumentViewHandle handle = nullptr;
    AIRect pixels{}; ///< its visible part in view pixels, y down
};

[[nodiscard]] bool documentIsOpen();

/// Do the user's document and view still have these handles? Nothing else is compared.
[[nodiscard]] bool isCurrent(const CurrentView& view);

/// The current view as the host has it now. Throws `ai::Error`, as without a document.
[[nodiscard]] CurrentView fetchCurrentView();

/// The pixel of `view` at a place on the page. Throws `ai::Error`.
[[nodiscard]] AIPoint viewPixelOf(const CurrentView& view, AIRealPoint point);

/// Asks the host to draw the annotations in `pixels` of `view` anew; nothing happens without a
/// view. Throws `ai::Error`.
void invalidate(const CurrentView& view, const AIRect& pixels);

/// Asks the host to draw the overlay of `view` anew.
void redrawOverlay(const CurrentView& view);

} // namespace facetta
