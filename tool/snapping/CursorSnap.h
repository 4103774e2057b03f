#pragma once

/// The host's cursor snapping (its smart guides), as the tool uses it.

#include "host/Messages.h"
#include "tool/CurrentView.h"
#include "tool/ToolState.h"

namespace facetta {

// What to snap to, in the host's own letters.
inline constexpr char kSnapToAnything[] = "ATFGPLM v i o";      ///< before and at a press
inline constexpr char kSnapWhileDragging[] = "ATFGPLM v i o f"; ///< filled areas as well
inline constexpr char kSnapReset[] = "AP v i o";                ///< at a release
inline constexpr char kSnapToNothing[] = "";

/// Where `point` (on the page, y up) snaps to; the point itself when there is nothing near. `event`
/// carries the keys held and may be null. `form` is found out at the first call and kept. Throws
/// `ai::Error`.
[[nodiscard]] AIRealPoint snapped(SnapPointForm& form, AIDocumentViewHandle view, AIRealPoint point,
                                  const AIEvent* event, const char* control);

/// Takes the host's guide lines off the screen, by snapping far away from everything.
void clearSnapFeedback(SnapPointForm& form, AIDocumentViewHandle view, const AIEvent* event);

/// The same while snapping is suppressed.
void hideSnapFeedback(SnapPointForm& form, AIDocumentViewHandle view, const AIEvent* event);

} // namespace facetta
