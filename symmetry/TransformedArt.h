#pragma once

/// Objects under a matrix, with all that they contain.

#include "host/Handles.h"
#include "host/Types.h"

#include <optional>

namespace facetta {

/// Which parts of an object a transformation changes.
enum class Transform {
    Whole,          ///< Geometry and what is painted inside it: gradients, patterns, children.
    PaintOnly,      ///< Gradients and patterns, for new geometry that is in its place already.
    AndTellPlugins, ///< As `Whole`, for a plug-in group that its plug-in is to keep up to date.
};

/// Transforms an object that contains no others, or one whose members the host takes along. Throws
/// `ai::Error`.
void transformArt(AIArtHandle art, AIRealMatrix& matrix, Transform parts);

/// Transforms objects that may contain others. The host is asked to take these along; whether it
/// does, its interface leaves open. The first anchor that must have moved deep inside an object
/// tells, and if it has not, all that is inside is transformed one by one.
class ContainerTransform {
public:
    /// Throws `ai::Error`.
    void apply(AIArtHandle art, AIRealMatrix& matrix, Transform parts);

private:
    std::optional<bool> hostReachesMembers_; ///< unknown before the first anchor that tells
};

} // namespace facetta
