#pragma once

/// Which copies on a live layer may stay when it is regenerated after an edit.
///
/// The rule: a source that is not newer than the last regeneration, that a run would leave as it
/// is, and that is followed at once by exactly the copies which a run would make of it, none of
/// them newer, is passed over together with them. All other art goes through a run as always:
/// copies are deleted, sources are mirrored. So whatever is in doubt costs time and nothing else.
///
/// What makes it safe, from the document and the host's time stamps alone:
///
/// - The stamp with which the copies fitted is trusted only when it was given in this run of the
///   host (`LiveLayerMemory::givenAs`): another run counted from 0 as well. Undo brings former
///   stamps back with the state that they belong to, so the number beside the axes is the one to
///   compare with, however the host stamps what undo brings back.
/// - How many copies a source needs is asked of the geometry, not of the document: a deleted source
///   leaves its copies behind another one, and the distance at which open ends are drawn onto an
///   axis depends on the zoom.
/// - Copies of one object were made one after the other, so their stamps ascend behind its own.
/// - A host may stamp only the parent of what was moved. What was moved between a source and its
///   copies takes them over, and leaves a source without copies in front of it: the first source
///   behind such a one is not passed over. The last of the copies has to lie under the same parent,
///   where the last image of the source belongs, and no further copy may follow it.
/// - Locking may leave stamps as they are, so locks are asked for apart, in a few calls for all.
/// - The stamp of a container may or may not cover what it contains. Unless it is known to, the
///   members are asked.
///
/// Three host calls an object are the budget: its place in the list, its stamp, and what the
/// sources among them need beside, which their copies do not.

#include "host/Handles.h"
#include "host/Types.h"
#include "symmetry/ArtMarks.h"
#include "symmetry/LayerStamp.h"
#include "symmetry/WorkSet.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_set>

namespace facetta {

/// A state of a layer in which all its copies fitted.
struct FitState {
    std::uint64_t stamp = 0; ///< Nothing on the layer was newer.
    StampReach reach = StampReach::Unknown;
};

class FreshCopies {
public:
    /// Throws `ai::Error`, as the other functions do.
    FreshCopies(AILayerHandle layer, const FitState& fit);

    /// Whether the object, as far as its own stamp tells, was there and was the same.
    [[nodiscard]] bool isOld(AIArtHandle art) const;

    /// How many of the objects `behind` a source, in the order of the layer's list, are its members
    /// and its copies; nothing unless all of them are as a run would leave them. `images` are the
    /// maps by which a run would make copies of it.
    [[nodiscard]] std::optional<std::size_t> passedOver(const Unit& source,
                                                        std::span<const AIArtHandle> behind,
                                                        std::span<AIRealMatrix> images) const;

private:
    [[nodiscard]] bool isOpen(AIArtHandle art) const { return open_.contains(art); }
    [[nodiscard]] bool isCopy(AIArtHandle art) const;
    [[nodiscard]] std::uint64_t newestOf(std::span<const AIArtHandle> objectAndMembers) const;
    [[nodiscard]] bool locksAgree(std::span<const AIArtHandle> source,
                                  std::span<const AIArtHandle> copy) const;

    FitState fit_;
    MarkKeys keys_ = markKeys();
    std::unordered_set<AIArtHandle> open_; ///< On the layer and not locked, or hidden.
};

} // namespace facetta
