#pragma once

/// Whether art on a layer has changed, by the host's time stamps: a counter that grows with every
/// edit of any art while the host runs, and starts again with the host.

#include "host/Handles.h"
#include "host/Types.h"

#include <cstddef>
#include <cstdint>

namespace facetta {

/// What the host's time stamp of a group tells about what the group contains. The host's interface
/// does not say, and what is seen of its stamps does.
enum class StampReach : std::uint8_t {
    Unknown,
    Descendants, ///< It is the latest of the group's own and those of all that it contains.
    GroupOnly,   ///< Editing what the group contains leaves it as it is.
};

/// A reading of the host's time stamps on one layer. Equal readings: no art was changed in between.
struct LayerStamp {
    std::uint64_t group = 0;  ///< Of the layer's group, as the host tells it.
    std::uint64_t newest = 0; ///< The latest of anything on the layer.
    std::size_t objects = 0;  ///< How many there are; 0: not counted, as `group` covers all.

    /// As the document stores it: the low 32 bits of `newest`.
    [[nodiscard]] ai::int32 stored() const noexcept {
        return static_cast<ai::int32>(static_cast<ai::uint32>(newest));
    }
};

/// Whether nothing was changed between two readings of the same layer.
[[nodiscard]] bool unchanged(const LayerStamp& before, const LayerStamp& now) noexcept;

/// Throws `ai::Error`. All zero for a layer without group art.
[[nodiscard]] LayerStamp readLayerStamp(AILayerHandle layer, StampReach reach);

} // namespace facetta
