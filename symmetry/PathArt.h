#pragma once

/// The host's path art as a value, and back. All functions throw `ai::Error`.

#include "host/Art.h"
#include "host/Handles.h"
#include "symmetry/geometry/Islands.h"
#include "symmetry/geometry/PathShape.h"

#include <vector>

namespace facetta {

/// Carries paths out of the host and back, reusing its storage from path to path.
class PathTransfer {
public:
    /// Makes `shape` the path `path`. `selection` holds its attributes `kArtSelected` and
    /// `kArtFullySelected`: they save asking about the anchors one by one unless some are selected
    /// and some are not.
    void read(AIArtHandle path, ai::int32 selection, PathShape& shape);

    /// Gives `path` the segments and the closed state of `shape`; 'SEGM' when they are more than
    /// the host allows.
    void write(AIArtHandle path, const PathShape& shape);

private:
    [[nodiscard]] AIPathSegment* roomFor(std::size_t count);

    std::vector<AIPathSegment> stored_; ///< As long as the longest path so far.
};

/// The rule by which the host fills `path`.
[[nodiscard]] FillRule fillRuleOf(AIArtHandle path);

/// One path, read as by `PathTransfer`.
[[nodiscard]] PathShape readPath(AIArtHandle path, ai::int32 selection);

/// Selects of `path`, which is not selected and holds `shape`, what is selected in `shape`.
void selectAnchors(AIArtHandle path, const PathShape& shape);

} // namespace facetta
