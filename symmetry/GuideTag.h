#pragma once

/// The mark "FTAxisGuide" in the dictionary of a guide that was laid along an axis. Its presence
/// counts, not its value. All functions throw `ai::Error`.

#include "host/Handles.h"

#include <vector>

namespace facetta::GuideTag {

/// The key of the mark, interned in the host.
[[nodiscard]] AIDictKey key();

/// Marks `art`, unless it is null or a generated copy.
void set(AIArtHandle art);

[[nodiscard]] bool has(AIArtHandle art);

/// Takes the mark off, if there is one.
void clear(AIArtHandle art);

/// What carries the mark inside `container`, at any depth.
[[nodiscard]] std::vector<AIArtHandle> marksInside(AIArtHandle container);

} // namespace facetta::GuideTag
