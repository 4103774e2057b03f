#pragma once

#include <span>

namespace easel {

/// What the host's interface leaves open, decided here once. Each can be turned the other way, so
/// that a plug-in is tried against both kinds of host.
struct Switches {
    /// A duplicate keeps the locked and hidden state of its original.
    bool duplicatesKeepLocks = true;
    /// A duplicate of selected art is selected.
    bool duplicatesKeepSelection = true;
    /// `LayerArtSet` lists the layer's own group first.
    bool layerSetHasOwnGroup = true;
    /// The parent of a sublayer's group is the parent layer's group; otherwise there is none.
    bool sublayerGroupHasParent = true;
    /// Undo brings time stamps back with the state they belong to; otherwise it gives new ones.
    bool undoRestoresStamps = true;
    /// The time stamp of an object is the latest of its own and those of all that it contains;
    /// otherwise its own.
    bool stampsCoverDescendants = true;
    /// Locking and unlocking an object gives it a new time stamp.
    bool lockingStamps = true;
    /// Moving an object to another place in the tree gives it a new time stamp; otherwise only its
    /// former parent and its new one get one.
    bool movingStamps = false;
    /// A context that a plug-in pushes while it answers a message is nested, so that the kind of
    /// the undo step cannot be chosen in it; otherwise it counts as the message's own.
    bool ownContextsNest = true;
    /// Notifications come as soon as the host is idle; otherwise only when it is idle the next
    /// time, when the user has done something else.
    bool notificationsComeSoon = true;
    /// Transforming and disposing of a container reaches what is locked in it; otherwise that is
    /// refused as long as anything in it is locked.
    bool lockedMembersGoAlong = true;
    /// Transforming a container takes its members along when that is asked for; otherwise it never
    /// does.
    bool transformReachesMembers = true;
    /// Locked art refuses to be disposed of.
    bool disposeRefusesLocked = true;
    /// Reading a preference that does not exist succeeds and changes nothing; otherwise 'PARM'.
    bool absentPreferenceSucceeds = true;
    /// A hit test that finds nothing gives an object that says so; otherwise null.
    bool missIsHitObject = true;
    /// Reading an entry as another type answers 100; otherwise 'PARM'.
    bool wrongEntryTypeHasOwnCode = true;
    /// Cursor snapping takes its point by address; otherwise by value.
    bool snapPointByReference = true;
    /// Undo takes silent records back together with the step they follow; otherwise each silent
    /// record is a step of its own that has no name.
    bool silentFollowsStep = true;
    /// `CountArtSet` writes all of its 64 bits; otherwise the low 32 only.
    bool countIs64Bits = true;
    /// What is locked or hidden is deselected; otherwise locking and hiding selected art is
    /// refused.
    bool lockingDeselects = true;
    /// The members of a compound path have the style of the whole; otherwise each has its own.
    bool membersShareStyle = true;
    /// Selecting locked or hidden art is refused; otherwise nothing happens, and successfully.
    bool selectingLockedFails = true;
    /// Pointer entries sit at slots 29 and 30 of the dictionary suite; otherwise they are not there
    /// and what follows them sits two slots earlier.
    bool dictionaryHasPointerSlots = true;
    /// Strings handed out of entries live until the message ends; otherwise until the next
    /// dictionary call, which overwrites them.
    bool entryStringsLast = true;
};

struct SwitchName {
    const char* name;
    bool Switches::*value;
};
/// All switches, in their order.
[[nodiscard]] std::span<const SwitchName> switchNames() noexcept;

} // namespace easel
