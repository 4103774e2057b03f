#pragma once

/// Questions about one object of the art tree. All throw `ai::Error`.

#include "host/Handles.h"
#include "host/Types.h"

#include <cstdint>
#include <vector>

namespace facetta {

/// Null for the topmost object of a tree.
[[nodiscard]] AIArtHandle parentOf(AIArtHandle art);

[[nodiscard]] ai::int16 typeOf(AIArtHandle art);

/// Those of the attributes in `mask` that are set on the object itself.
[[nodiscard]] ai::int32 attributesOf(AIArtHandle art, ai::int32 mask);

/// The host's time stamp of the object: a counter that grows with every edit of any art. Whether
/// that of a container covers what it contains is the host's choice.
[[nodiscard]] std::uint64_t stampOfArt(AIArtHandle art);

/// Front-most first; empty for what is no container.
[[nodiscard]] std::vector<AIArtHandle> childrenOf(AIArtHandle art);

/// The edit and the result art of a plug-in group, as far as there are any. They are not among its
/// children.
[[nodiscard]] std::vector<AIArtHandle> partsOfPluginGroup(AIArtHandle group);

/// All that lies inside a container, at any depth, in paint order, a container before what it
/// contains. Of a plug-in group, what its edit and result art contain.
[[nodiscard]] std::vector<AIArtHandle> artInside(AIArtHandle container);

/// The paths inside a compound path, at any depth, in paint order.
[[nodiscard]] std::vector<AIArtHandle> pathsInside(AIArtHandle compound);

/// Whether the group belongs to a layer or sublayer.
[[nodiscard]] bool isLayerGroup(AIArtHandle group);

/// Whether a member of the group clips the others.
[[nodiscard]] bool isClipGroup(AIArtHandle group);

[[nodiscard]] bool isGuide(AIArtHandle path);

/// Whether the layer or one that contains it is hidden or locked.
[[nodiscard]] bool isLayerBlocked(AILayerHandle layer);

} // namespace facetta
