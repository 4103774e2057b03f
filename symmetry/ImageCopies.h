#pragma once

/// Reflecting and rotating whole objects, in place or as copies.

#include "host/Handles.h"
#include "symmetry/SymmetryAxes.h"

#include <span>
#include <vector>

namespace facetta {

enum class Duplicate { No, Yes };

/// What becomes of a copy.
enum class CopyMode {
    Plain, ///< Ordinary art.
    Live,  ///< A copy on a live layer: tagged as generated, and locked.
};

/// Reflects every object of `set` across the line of ray `rayIndex`: the object itself, or a
/// duplicate directly behind it. `axes` has its origin in page coordinates. Returns the duplicates,
/// in the order of `set`. Throws `ai::Error`.
std::vector<AIArtHandle> reflectCopies(std::span<const AIArtHandle> set, const SymmetryAxes& axes,
                                       int rayIndex, Duplicate duplicate,
                                       CopyMode mode = CopyMode::Plain);

/// The same for a rotation about the origin by `angle` radians, counter-clockwise.
std::vector<AIArtHandle> rotateCopies(std::span<const AIArtHandle> set, const SymmetryAxes& axes,
                                      double angle, Duplicate duplicate,
                                      CopyMode mode = CopyMode::Plain);

} // namespace facetta
