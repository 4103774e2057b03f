#pragma once

/// The host's cursor snapping (its smart guides), as the tool uses it.

#include "host/Messages.h"
#include "tool/ToolSession.h"

namespace facetta {

// What to snap to, in the host's own letters.
inline constexpr char kSnapToAnything[] = "ATFGPLM v i o";      ///< before and at a press
inline constexpr char kSnapWhileDragging[] = "ATFGPLM v i o f"; ///< filled areas as well
inline constexpr char kSnapReset[] = "AP v i o";                ///< at a release
inline constexpr char kSnapToNothing[] = "";

/// For the length of one message. All members throw `ai::Error`.
struct CursorSnap {
    SnapPointForm form;
    AIDocumentViewHandle view;
    const AIEvent* event; ///< carries the keys held; may be null

    /// Where `point` (on the page, y up) snaps to; the point itself when there is nothing near.
    [[nodiscard]] AIRealPoint snapped(AIRealPoint point, const char* control) const;

    /// Takes the host's guide lines off the screen, by snapping far away from everything.
    void clearFeedback() const;

    /// The same while snapping is suppressed.
    void hideFeedback() const;

    /// Has the user smart guides switched on?
    [[nodiscard]] bool isOn() const;
};

/// The first call for a host finds out what form it takes points in.
[[nodiscard]] CursorSnap cursorSnap(ToolSession& session, const AIToolMessage& message);

} // namespace facetta
