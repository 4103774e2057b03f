#pragma once

#include "host/Handles.h"
#include "host/Types.h"

namespace facetta {

/// Where the user stands: in which document, on which layer, how far along the history. Handles are
/// compared and not used: what they stand for may be gone.
struct Place {
    AIDocumentHandle document = nullptr; ///< null: none is open
    AILayerHandle layer = nullptr;       ///< the current one
    AILayerHandle topLayer = nullptr;    ///< that which carries its axes
    bool editable = false;               ///< art may be put there; not while it is locked or hidden
    ai::int32 past = 0;                  ///< steps that can be undone,
    ai::int32 future = 0;                ///< and redone

    bool operator==(const Place&) const = default;
};

/// Throws `ai::Error`.
[[nodiscard]] Place fetchPlace();

/// May a gesture that began in `then` go on in `now`? Steps to be redone go with the first change.
[[nodiscard]] constexpr bool gestureMayGoOn(const Place& then, const Place& now) {
    return then.document == now.document && then.layer == now.layer && now.editable &&
           then.past == now.past;
}

/// Has the user undone or redone since `then`? A new step, made just after one step was undone,
/// looks like a redo; the document is asked before anything is made of it.
[[nodiscard]] constexpr bool historyMoved(const Place& then, const Place& now) {
    if (then.document != now.document) return false;
    const bool undone = now.future > then.future;
    const bool redone = now.past > then.past && now.past + now.future == then.past + then.future;
    return undone || (redone && now.future < then.future);
}

} // namespace facetta
