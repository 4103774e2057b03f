#pragma once

/// Drawings to be mirrored: paths that all stand in the same way to axes through `kOrigin`, the
/// first of them horizontal.

#include "easel/document/Document.h"

#include <memory>
#include <string>
#include <vector>

namespace facetta::bench {

enum class Placement : std::uint8_t {
    Clear,    ///< Closed, inside one sector: nothing is cut, everything is copied.
    Crossing, ///< Open, cut by the first axis half-way: joined with its own reflection.
    Spanning, ///< Open, from one side of a sector to the other: joined into one closed path.
};

/// Soft coordinates: the middle of the artboard.
inline constexpr AIRealPoint kOrigin{4000, -4000};
inline constexpr AISize kArtboard{8000, 8000};

struct DrawingPlan {
    Placement placement = Placement::Clear;
    int axisCount = 1;
    int paths = 1;
    int segments = 10; ///< Of each path.
};

/// All paths have `plan.segments` anchors and curved pieces between them.
[[nodiscard]] std::vector<easel::Segments> drawPaths(const DrawingPlan& plan);
[[nodiscard]] std::unique_ptr<easel::Document> makeDrawing(const DrawingPlan& plan);
/// The same as the text of an SVG file.
[[nodiscard]] std::string svgOf(const DrawingPlan& plan);

/// What a document holds.
struct PathCount {
    std::size_t paths = 0;
    std::size_t segments = 0;
};
[[nodiscard]] PathCount countPaths(const easel::Document& document);

} // namespace facetta::bench
