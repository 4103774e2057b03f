#pragma once

#include "host/Handles.h"
#include "host/References.h"
#include "host/Types.h"
#include "symmetry/SymmetryAxes.h"
#include "tool/Activity.h"
#include "tool/axes/Place.h"
#include "tool/axes/SelectedArt.h"
#include "tool/axes/ToolMemory.h"
#include "tool/drawing/DialogPlacement.h"
#include "tool/drawing/Hint.h"
#include "tool/drawing/Preview.h"
#include "tool/snapping/SnapPointForm.h"

#include <cstdint>
#include <optional>

namespace facetta {

/// What lies under the cursor, and so what a press there does.
enum class ToolZone : ai::int32 {
    Canvas = 0,
    Sector = 1,
    SectorPicked = 2,
    Axis = 3,
    Origin = 4,
    DialogTitle = 5,
    DialogButton = 6,
    LayerLocked = 7,
};

/// What acts once while its key is held, and again only after the key was up.
struct KeyLatches {
    bool shift = false;
    bool space = false;
    bool control = false;
};

/// The item of the on-canvas dialog under the cursor.
enum class DialogItem : ai::int32 {
    None = 0,
    Title = 1,
    ApplyToSelection = 2,
    ApplyToLayer = 3,
    Cancel = 4,
};

/// How axes count that an edit has taken off their layer.
enum class CountsAs : std::uint8_t {
    Modified,
    Unmodified, ///< until the tool changes them, no on-canvas dialog comes up beside them
};

/// From a press to its release. Positions are on the page, in points, y up.
struct Gesture {
    Place place; ///< where the tool stood at the press; the gesture ends when it stands elsewhere
    Holding before;         ///< what it held then, for Escape
    bool cancelled = false; ///< taken back: nothing more happens until the release
    bool dragging = false;  ///< the cursor has moved since
    bool recounted = false; ///< a key has given the axes another count
    bool takesArt = false;  ///< pressed with Alt on a layer's axes: a drag repositions
    bool smartGuidesSuppressed = false;
    bool smartGuidesKeyHeld = false;
    KeyLatches latches;
    ai::int32 pickedSector = 0; ///< counter-clockwise from the active one
    AIRealPoint mouseDown{};
    AIRealPoint anchor{};      ///< the press after snapping: the origin of new axes
    AIRealPoint snapped{};     ///< of the message before
    AIRealPoint originStart{}; ///< where the origin was when its drag began
    double snapDistance = 0.0; ///< points; fixed when the drag begins
};

/// Where the tool stands between two messages. Written by the tool's handlers; the panel and the
/// overlay ask the questions below.
struct ToolState {
    Activity activity = Activity::Away; ///< changed by `happen` and `hold` alone
    bool toolSelected = false;
    /// Those shown: of the layer, pending, being made, or following the cursor. None while away.
    SymmetryAxes axes;
    std::optional<Gesture> gesture; ///< while the button is down
    ToolMemory memory;
    EditNumber edit = kNoEdit;                  ///< that of `EditingLayerAxes`,
    CountsAs editCountsAs = CountsAs::Modified; ///< and how its axes count
    SymmetryAxes justApplied;                   ///< by the step that is being made; none after it
    SymmetryAxes repositionBackup; ///< the axes when the layer's art began to move with them,
    ai::ArtSet repositionArt;      ///< and that art; empty but for `Repositioning`
    Place place;                   ///< where the document was followed to last
    SelectedArt selection;         ///< forgotten whenever the document is followed
    bool secondClick = false;      ///< the axes were clicked once without a drag

    AIRealPoint cursor{}; ///< on the page, in points, y up
    AIRealPoint previousCursor{};
    ToolZone zone = ToolZone::Canvas;
    DialogItem hoverItem = DialogItem::None;
    double grabIndex = 0.0; ///< the ray under the cursor, in sectors from the first axis
    bool sectorHandleHighlighted = false; ///< the cursor is over the active sector's handle

    SnapPointForm snapPointForm = SnapPointForm::Unknown;
    DialogPosition dialog; ///< top left corner of the on-canvas dialog
    Hint hint;
    Preview preview;
};

/// `event` happens to the tool. What belongs to an activity that ends goes with it: axes, the edit,
/// the art that is moved. An event that takes a press back finds none that counts.
void happen(ToolState& state, Event event);

/// What the tool holds, to be held again by `hold`.
[[nodiscard]] Holding holdingOf(const ToolState& state);
void hold(ToolState& state, const Holding& holding);

/// The press counts no more: the tool holds what it held before, and waits for the release.
void cancelPress(ToolState& state);

// Questions

/// Is the button down, and does what it does still count?
[[nodiscard]] inline bool buttonIsDown(const ToolState& state) {
    return state.gesture && !state.gesture->cancelled;
}
[[nodiscard]] inline bool dragging(const ToolState& state) {
    return buttonIsDown(state) && state.gesture->dragging;
}
/// Are there axes that can be grabbed: pending ones, or the layer's?
[[nodiscard]] constexpr bool hasAxes(Activity activity) {
    return meaningOf(activity).provisional || meaningOf(activity).onLayer;
}
[[nodiscard]] inline bool hasAxes(const ToolState& state) { return hasAxes(state.activity); }
/// Were the axes shown applied to the current layer?
[[nodiscard]] inline bool axesOnLayer(const ToolState& state) {
    return meaningOf(state.activity).onLayer;
}
/// Does the current layer carry axes that are shown and kept?
[[nodiscard]] inline bool layerAxesActive(const ToolState& state) { return axesOnLayer(state); }
/// Are the axes shown pending: to be applied, or dropped?
[[nodiscard]] inline bool axesPending(const ToolState& state) {
    return meaningOf(state.activity).provisional;
}
/// Do the axes shown count as changed apart from a layer? The on-canvas dialog goes with those.
[[nodiscard]] inline bool axesModified(const ToolState& state) {
    return axesPending(state) && state.editCountsAs == CountsAs::Modified;
}
/// Has an edit of a layer's axes begun that can still be cancelled?
[[nodiscard]] inline bool layerEditInProgress(const ToolState& state) {
    return state.activity == Activity::EditingLayerAxes;
}
/// That edit; null when there is none.
[[nodiscard]] inline const LayerEdit* layerEditOf(const ToolState& state) {
    return state.memory.edit(state.edit);
}
/// Did the layer have guides along its axes when the edit began?
[[nodiscard]] inline bool guidesExisted(const ToolState& state) {
    const LayerEdit* const edit = layerEditOf(state);
    return edit != nullptr && edit->guidesExisted;
}
[[nodiscard]] inline bool repositionMode(const ToolState& state) {
    return state.activity == Activity::Repositioning;
}
/// Is no art selected? Throws `ai::Error`.
[[nodiscard]] inline bool selectionEmpty(const ToolState& state) {
    return state.selection.isEmpty();
}
/// Of the on-canvas dialog: 0 while it cannot be there, 3 after an edit; the zone, that is.
[[nodiscard]] inline ai::int32 annotationState(const ToolState& state) {
    return static_cast<ai::int32>(state.zone);
}

/// The cursor moves to `point`.
constexpr void storeCursor(ToolState& state, AIRealPoint point) {
    state.previousCursor = state.cursor;
    state.cursor = point;
}

} // namespace facetta
