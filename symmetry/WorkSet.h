#pragma once

/// What one run of the engine mirrors.

#include "host/Handles.h"
#include "host/Types.h"
#include "symmetry/ArtMarks.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace facetta {

/// How an object is mirrored.
enum class UnitKind : std::uint8_t {
    Path,         ///< Cut and joined at the axes.
    CompoundPath, ///< The same, member by member; it stays one compound path.
    ClipGroup,    ///< Its mask is cut, what it clips stays as it is.
    PluginGroup,  ///< As it is; the plug-in that owns it is told.
    Whole,        ///< As it is: symbols, text, pictures and all else.
};

/// An object that is mirrored as one. No unit contains another.
struct Unit {
    AIArtHandle art = nullptr;
    UnitKind kind = UnitKind::Whole;
    ai::int32 selection = 0; ///< `kArtSelected` and `kArtFullySelected`, as far as they are set.
    ArtMarks marks;
};

/// The units of the selection, front-most first. Guides, and what is locked or hidden, are left
/// out. Plain groups are opened: their members are units, and the group stays around them. Where
/// only part of a unit is selected, it counts whole. Throws `ai::Error`.
[[nodiscard]] std::vector<Unit> unitsOfSelection();

/// The same for the source art of a layer and its sublayers. The copies of earlier runs on it, even
/// locked and hidden ones, are DELETED from the document.
[[nodiscard]] std::vector<Unit> deleteCopiesAndListSources(AILayerHandle layer);

/// Tells of a unit, and of what lies behind it in the list of its layer's art, how many of these
/// objects are as a run would leave them: its members and all its copies, or nothing.
using PassOver = std::function<std::optional<std::size_t>(const Unit& unit,
                                                          std::span<const AIArtHandle> behind)>;

/// `deleteCopiesAndListSources` without the units that are passed over and their copies.
[[nodiscard]] std::vector<Unit> deleteCopiesAndListSources(AILayerHandle layer,
                                                           const PassOver& passOver);

/// The same units; the document stays as it is.
[[nodiscard]] std::vector<Unit> sourcesOnLayer(AILayerHandle layer);

/// What a layer and its sublayers hold, with nothing in both lists.
struct LayerContents {
    std::vector<Unit> sources;       ///< as `sourcesOnLayer`
    std::vector<AIArtHandle> copies; ///< what earlier runs generated, even locked and hidden
};
[[nodiscard]] LayerContents contentsOfLayer(AILayerHandle layer);

} // namespace facetta
