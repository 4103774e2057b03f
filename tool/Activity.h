#pragma once

/// What the tool is doing, and what makes it do something else. Start reading here.
///
/// Between two messages of the host the tool is busy with exactly one `Activity`. What happens to
/// it is an `Event`, and `kTransitions` says what it does next; only `happen` (ToolState.h) changes
/// the activity, and it does so by this table.
///
/// While the mouse button is down there is a `Gesture` too (ToolState.h), which remembers what the
/// press found. Most of what can happen from outside ends it the way Escape does: first all is as
/// it was at the press (`Press::TakenBack`), then the row applies to what that was.

#include <array>
#include <cstdint>

namespace facetta {

enum class Activity : std::uint8_t {
    Away,             ///< not in hand, and the current layer has no axes to show
    FollowingCursor,  ///< in hand: axes that nobody has pressed yet go with the cursor
    MakingAxes,       ///< the button is down on the canvas: new axes turn about the press
    AxesPending,      ///< new axes wait to be applied or dropped
    ShowingLayerAxes, ///< the current layer's axes are shown, whatever tool is in hand
    EditingLayerAxes, ///< the current layer's axes are pending: off the layer until Apply or Cancel
    Repositioning,    ///< the layer's art moves with its axes, in a drag or the numeric dialog
};

enum class Event : std::uint8_t {
    ToolTaken,
    ToolPutAway,

    // From press to release
    CanvasPressed,
    NewAxesReleased,
    LayerAxesDetached, ///< a drag, a count key or the numeric dialog takes them off their layer
    LayerArtTaken,     ///< with Alt: the layer's art comes along
    LayerArtReleased,
    TakenBack, ///< Escape, a licence that refuses the release, a host call that failed

    // What pending axes are made for
    AppliedToSelection,
    AppliedToLayer,
    AxesDropped,
    EditCancelled,

    // What following the document finds (FollowDocument.h)
    LayerLocked,    ///< locked or hidden, or none is there
    LayerLeft,      ///< another one is current, or it has been deleted
    DocumentLeft,   ///< another one is in front, or it has been closed
    HistoryMoved,   ///< undo or redo
    LayerHasAxes,   ///< the current layer carries axes,
    LayerHasNoAxes, ///< or none
    AxesOffered,    ///< new axes are pending: pasted, or as they were before something was undone
    EditTakenUp,    ///< an edit goes on: undone or redone, or back on its layer
};

/// What an event means for a button that is down.
enum class Press : std::uint8_t { GoesOn, TakenBack };

struct Transition {
    struct Step {
        Activity from{};
        Activity to{};
    };
    Event event;
    Press press;
    /// Whatever is not named goes on. Axes that are gone leave `FollowingCursor`, which is `Away`
    /// while the tool is not in hand.
    std::array<Step, 4> steps{};
};

namespace transitions {
using enum Activity;

inline constexpr Transition kTransitions[] = {
    {Event::ToolTaken, Press::TakenBack, {{{Away, FollowingCursor}}}},
    {Event::ToolPutAway,
     Press::TakenBack,
     {{{FollowingCursor, Away}, {AxesPending, Away}, {EditingLayerAxes, Away}}}},

    {Event::CanvasPressed, Press::GoesOn, {{{FollowingCursor, MakingAxes}}}},
    {Event::NewAxesReleased, Press::GoesOn, {{{MakingAxes, AxesPending}}}},
    {Event::LayerAxesDetached, Press::GoesOn, {{{ShowingLayerAxes, EditingLayerAxes}}}},
    {Event::LayerArtTaken, Press::GoesOn, {{{ShowingLayerAxes, Repositioning}}}},
    {Event::LayerArtReleased, Press::GoesOn, {{{Repositioning, ShowingLayerAxes}}}},
    {Event::TakenBack, Press::TakenBack, {}},

    {Event::AppliedToSelection,
     Press::GoesOn,
     {{{AxesPending, FollowingCursor}, {EditingLayerAxes, FollowingCursor}}}},
    {Event::AppliedToLayer,
     Press::GoesOn,
     {{{Away, ShowingLayerAxes},
       {FollowingCursor, ShowingLayerAxes},
       {AxesPending, ShowingLayerAxes},
       {EditingLayerAxes, ShowingLayerAxes}}}},
    {Event::AxesDropped,
     Press::GoesOn,
     {{{AxesPending, FollowingCursor}, {EditingLayerAxes, FollowingCursor}}}},
    {Event::EditCancelled, Press::GoesOn, {{{EditingLayerAxes, ShowingLayerAxes}}}},

    // Pending axes wait for the layer to be unlocked.
    {Event::LayerLocked, Press::TakenBack, {}},
    // The edit is set aside, and goes on when its layer is current again. New axes belong to no
    // layer yet.
    {Event::LayerLeft,
     Press::TakenBack,
     {{{ShowingLayerAxes, FollowingCursor}, {EditingLayerAxes, FollowingCursor}}}},
    // What is pending is set aside, and goes on when the document is in front again.
    {Event::DocumentLeft,
     Press::TakenBack,
     {{{AxesPending, FollowingCursor},
       {ShowingLayerAxes, FollowingCursor},
       {EditingLayerAxes, FollowingCursor}}}},
    // The document tells what that means, by one of the events below.
    {Event::HistoryMoved, Press::TakenBack, {}},
    // An edited layer that carries axes has them back: the edit was undone. New axes stay in sight.
    {Event::LayerHasAxes,
     Press::GoesOn,
     {{{Away, ShowingLayerAxes},
       {FollowingCursor, ShowingLayerAxes},
       {EditingLayerAxes, ShowingLayerAxes}}}},
    {Event::LayerHasNoAxes, Press::GoesOn, {{{ShowingLayerAxes, FollowingCursor}}}},
    {Event::AxesOffered,
     Press::GoesOn,
     {{{Away, AxesPending},
       {FollowingCursor, AxesPending},
       {ShowingLayerAxes, AxesPending},
       {EditingLayerAxes, AxesPending}}}},
    {Event::EditTakenUp,
     Press::GoesOn,
     {{{FollowingCursor, EditingLayerAxes},
       {ShowingLayerAxes, EditingLayerAxes},
       {AxesPending, EditingLayerAxes}}}},
};

} // namespace transitions

using transitions::kTransitions;

/// Not in the order of the events: the order is checked.
[[nodiscard]] constexpr const Transition& transitionOf(Event event) {
    return kTransitions[static_cast<std::size_t>(event)];
}

/// What follows `activity` when `event` happens.
[[nodiscard]] constexpr Activity after(Activity activity, Event event, bool toolInHand) {
    Activity next = activity;
    for (const Transition::Step& step : transitionOf(event).steps)
        if (step.from == activity && step.from != step.to) next = step.to;
    if (next == Activity::FollowingCursor && !toolInHand) next = Activity::Away;
    return next;
}

/// What an activity means for the axes shown.
struct Meaning {
    Activity activity;
    bool provisional; ///< they may be applied or dropped
    bool onLayer;     ///< the current layer carries them
};

inline constexpr Meaning kMeanings[] = {
    {Activity::Away, false, false},
    {Activity::FollowingCursor, false, false},
    {Activity::MakingAxes, false, false},
    {Activity::AxesPending, true, false},
    {Activity::ShowingLayerAxes, false, true},
    {Activity::EditingLayerAxes, true, false},
    {Activity::Repositioning, false, true},
};

[[nodiscard]] constexpr const Meaning& meaningOf(Activity activity) {
    return kMeanings[static_cast<std::size_t>(activity)];
}

/// Both tables are looked up by number.
consteval bool tablesAreInOrder() {
    for (std::size_t i = 0; i < std::size(kTransitions); ++i)
        if (kTransitions[i].event != static_cast<Event>(i)) return false;
    for (std::size_t i = 0; i < std::size(kMeanings); ++i)
        if (kMeanings[i].activity != static_cast<Activity>(i)) return false;
    return std::size(kTransitions) == static_cast<std::size_t>(Event::EditTakenUp) + 1;
}
static_assert(tablesAreInOrder());

} // namespace facetta
