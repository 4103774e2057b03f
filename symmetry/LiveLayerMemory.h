#pragma once

/// What the plug-in remembers of live layers from one message to the next. The document itself
/// holds axes, copies and the stamp of the last regeneration; all of this can be lost without harm.

#include "host/Handles.h"
#include "host/Types.h"
#include "symmetry/LayerStamp.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace facetta {

/// A path that could not be mirrored because the result would be too long.
struct PathTooLong {
    AIArtHandle path = nullptr;
    std::uint64_t stamp = 0;

    bool operator==(const PathTooLong&) const = default;
};

struct LiveLayerMemory {
    /// One live layer, as it was when it was last examined.
    struct Layer {
        AILayerHandle layer = nullptr;
        ai::int32 storedStamp =
            0;                  ///< Names the regeneration; undo and redo bring former ones back.
        LayerStamp fit{};       ///< With these stamps the copies are as they should be.
        bool couldRedo = false; ///< There was something to redo.
        bool penDraws = false;  ///< It has changed, and waits until the pen's path is done.
        std::vector<PathTooLong> told{}; ///< Paths that the user was told about.
    };

    std::vector<Layer> layers;
    /// The stamps that were stored with axes since the host was started, the latest ones, oldest
    /// first. A number that another run of the host has stored means nothing in this one.
    std::deque<std::uint64_t> given;
    StampReach reach = StampReach::Unknown;
    /// Mirroring has just changed the document. Set by each regeneration; whoever has drawn
    /// conclusions from the art, and draws them again, clears it.
    bool mirrored = false;

    /// Null when the layer was not examined yet.
    [[nodiscard]] Layer* find(AILayerHandle layer) noexcept;
    /// Made on demand.
    [[nodiscard]] Layer& at(AILayerHandle layer);

    void noteGiven(std::uint64_t stamp);
    /// The stamp of which `stored` is in the document, if it was given in this run of the host.
    [[nodiscard]] std::optional<std::uint64_t> givenAs(ai::int32 stored) const noexcept;
};

} // namespace facetta
