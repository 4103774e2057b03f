#pragma once

/// Clip groups in which the mask crosses an axis.
///
/// What a group clips is carried whole, and its mask ends at the axes, so that each sector shows
/// its own part. Of groups in groups the outermost is cut: nothing inside shows beyond its mask. Of
/// several masks in one group, which show what they have in common, one is enough for the same
/// reason. A group whose masks are all text or another thing that has no outline is carried as it
/// is.

#include "host/Handles.h"
#include "symmetry/PathArt.h"
#include "symmetry/PathReplacement.h"
#include "symmetry/WorkSet.h"
#include "symmetry/geometry/CutMask.h"
#include "symmetry/geometry/MirrorFrame.h"

#include <vector>

namespace facetta {

/// The mask that is cut: the front-most path or compound path that clips `group`; null if there is
/// none. Throws `ai::Error`.
[[nodiscard]] AIArtHandle maskOf(AIArtHandle group);

/// The paths of a mask: itself, or the members of a compound path; none of null.
[[nodiscard]] std::vector<AIArtHandle> pathsOf(AIArtHandle mask);

/// Cuts the mask of `group` to the sector in which it lies. When its islands lie in several, the
/// group stays for the first and a duplicate behind it shows the part in each other. `placed`
/// becomes the groups that there are then. 'SEGM', thrown as `ai::Error`, leaves the document as it
/// was.
void cutClipGroup(const Unit& group, const MirrorFrame& frame, CutScratch& scratch,
                  PathTransfer& transfer, std::vector<PlacedArt>& placed);

} // namespace facetta
