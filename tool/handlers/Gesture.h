#pragma once

/// From press to release: one gesture, one undo step of the host's, and one way back.

#include "tool/ToolSession.h"

namespace facetta {

/// Everything is as it was at the press, in the document and in the state, and nothing more happens
/// until the release. Throws `ai::Error`.
void takeBack(ToolSession& session);

/// The same as far as the host allows it: for when a host call has failed.
void abandonGesture(ToolSession& session) noexcept;

/// Does the gesture's next message still concern what it began with? When the document, its layer
/// or its history are others, or the layer has been locked or hidden, the gesture is taken back.
/// Throws `ai::Error`.
[[nodiscard]] bool gestureGoesOn(ToolSession& session);

/// A gesture whose release never came is over.
void endLostGesture(ToolState& state);

/// Runs one message of a gesture. When it fails the gesture is over, and the failure travels on.
template <typename Step> void inGesture(ToolSession& session, Step step) {
    try {
        step();
    } catch (...) {
        abandonGesture(session);
        throw;
    }
}

} // namespace facetta
