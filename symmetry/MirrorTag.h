#pragma once

/// The mark "FTMirroredv1" in the dictionary of art that mirroring generated.

#include "host/Handles.h"
#include "host/Types.h"

namespace facetta::MirrorTag {

constexpr ai::int32 kSource = 0; ///< Not generated.
constexpr ai::int32 kCopy = 1;   ///< A generated copy, made anew at each regeneration.
constexpr ai::int32 kKept = 2;   ///< Generated elsewhere; treated as source art.

/// The key of the mark, interned in the host.
[[nodiscard]] AIDictKey key();

/// Marks `art`, unless it is null or carries a mark already. Throws `ai::Error`.
void set(AIArtHandle art, ai::int32 value);

/// The mark of `art`: 0 (none), 1 or 2. A value out of range reads as the nearer of 1 and 2, one
/// that is no integer as 1. Throws `ai::Error`.
[[nodiscard]] ai::int32 get(AIArtHandle art);

/// Takes the mark off; whether there was one. Throws `ai::Error`.
bool clear(AIArtHandle art);

/// Whether an object that contains `art`, not `art` itself, carries any mark.
[[nodiscard]] bool anyAncestorTagged(AIArtHandle art);

/// Whether an object that contains `art`, not `art` itself, is a generated copy.
[[nodiscard]] bool anyAncestorIsCopy(AIArtHandle art);

} // namespace facetta::MirrorTag
