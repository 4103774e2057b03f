#pragma once

#include "easel/svg/Content.h"
#include "easel/svg/TagText.h"

namespace easel::svg {

/// Sets name, state, entries and all else that attributes say beside geometry and style. Without a
/// `source` the tag says it all, otherwise what differs from it.
void describe(TagText& tag, const Art& art, const ArtSource* source, const DrawingSource& drawing,
              bool namesLayers);

} // namespace easel::svg
