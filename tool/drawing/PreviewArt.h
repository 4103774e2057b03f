#pragma once

/// The art to be mirrored, as read from the document for its preview.
///
/// All paths lie one behind the other in the same few vectors: drawings have thousands of paths of
/// few segments, which are read, mirrored for picture after picture and dropped together.

#include "host/Art.h"
#include "symmetry/PathArt.h"
#include "symmetry/WorkSet.h"

#include <cstddef>
#include <span>
#include <vector>

namespace facetta {

/// An object of the art.
struct PreviewSource {
    UnitKind kind = UnitKind::Path;
    AIRealRect bounds{};       ///< page coordinates
    std::size_t firstPath = 0; ///< of its paths
    std::size_t pathCount = 0; ///< 0: its bounding box stands for it
    std::size_t segments = 0;  ///< of all its paths
};

class PreviewArt {
public:
    /// Reads `units`, of which the first are read best: paths only while the limit of segments
    /// below has room, and not more objects than the limit. Throws `ai::Error`.
    void read(std::span<const Unit> units);

    [[nodiscard]] std::span<const PreviewSource> sources() const { return sources_; }
    /// Path `index` of all, copied into `shape`.
    void copyPath(std::size_t index, PathShape& shape) const;

    /// More source segments than this are not read; the art behind is shown as boxes.
    static constexpr std::size_t kMostSegments = 20'000;
    static constexpr std::size_t kMostSources = 5'000;

private:
    struct Path {
        std::size_t begin;
        std::size_t count;
        bool closed;
    };

    void addPath(AIArtHandle art, PathTransfer& transfer, PathShape& shape);

    std::vector<PreviewSource> sources_;
    std::vector<Path> paths_;
    std::vector<PathSegment> segments_;
};

/// The bounding box of `source` as a closed path.
[[nodiscard]] PathShape boxOf(const PreviewSource& source);

} // namespace facetta
