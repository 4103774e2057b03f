#pragma once

/// Putting the mirrored form of a path in the place of its source.

#include "host/Handles.h"
#include "symmetry/PathArt.h"
#include "symmetry/WorkSet.h"
#include "symmetry/geometry/MirrorPath.h"

#include <vector>

namespace facetta {

/// One object that stands for a mirrored source and the copies it still needs.
struct PlacedArt {
    AIArtHandle art = nullptr;
    Images images = Images::All;
    bool isPath = false;
};

/// Replaces the path of `source` by `mirrored`, under `fold` (the map that carried its active
/// sector onto sector 0). A source that comes out the same stays untouched, and one that is only
/// carried there stays the same object. Otherwise new paths take its place, with its style and
/// other attributes, its marks and what was selected of it, and it is deleted. `placed` becomes
/// what then stands for the source.
///
/// 'SEGM', thrown as `ai::Error`, leaves the document as it was.
void replacePath(const Unit& source, const MirroredPath& mirrored, const Matrix& fold,
                 PathTransfer& transfer, std::vector<PlacedArt>& placed);

/// The same for a compound path. The compound itself stays and gets new members.
[[nodiscard]] PlacedArt replaceMembers(const Unit& compound, const MirroredPath& mirrored,
                                       const Matrix& fold, PathTransfer& transfer);

} // namespace facetta
