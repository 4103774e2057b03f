#pragma once

/// From press to release: one gesture, one undo step of the host's, and one way back.

#include "tool/ToolSession.h"

namespace facetta {

/// Puts document and state back as they were at the press; nothing more happens until the release.
/// Throws `ai::Error`.
void takeBack(ToolSession& session);

/// The same as far as the host allows it: for when a host call has failed.
void abandonGesture(ToolSession& session) noexcept;

/// Whether the gesture can go on with its next message. It is taken back when another layer has
/// become current, when the undo history has changed, or when the layer has been locked or hidden.
/// When another document has come to the front, its axes wait in their own. Throws `ai::Error`.
[[nodiscard]] bool gestureGoesOn(ToolSession& session);

/// Ends a gesture whose release never came.
void endLostGesture(ToolState& state);

/// Runs one message of a gesture. A failure ends the gesture and travels on.
template <typename Step> void inGesture(ToolSession& session, Step step) {
    try {
        step();
    } catch (...) {
        abandonGesture(session);
        throw;
    }
}

} // namespace facetta
