#pragma once

/// Turns art into its symmetric whole.
///
/// In selection mode the selected art is mirrored once across the current axes, and plain art is
/// left behind. In layer mode the copies on a layer are thrown away and made anew from the layer's
/// source art, each copy locked and tagged, so that the next run finds it.

#include "host/Handles.h"
#include "symmetry/FreshCopies.h"
#include "symmetry/LiveLayerMemory.h"
#include "symmetry/SymmetryAxes.h"

#include <functional>
#include <string_view>
#include <vector>

namespace facetta {

/// What the user is told when a path would become longer than the host allows.
inline constexpr std::string_view kPathsTooLong =
    "Some paths could not be mirrored, because doing so would cause them to exceed the maximum "
    "number of points in path.";

/// What a run takes from the plug-in.
struct MirrorEnvironment {
    const SymmetryAxes& currentAxes; ///< What the user sees.
    LiveLayerMemory& live;           ///< Written whenever a live layer is looked at.
    bool removePoints = false;       ///< The preference "FTRemovePoints".
    AIToolHandle ownTool = nullptr;  ///< Selected for a moment to make the pen start afresh.
    std::function<void(std::string_view text)> showMessage; ///< Shows one text to the user.
};

class MirrorEngine {
public:
    explicit MirrorEngine(MirrorEnvironment environment);

    /// Mirrors the selection (`selectionMode`) or regenerates the top-level layer of `layer` (null:
    /// of the current layer), with the layer's own axes unless `keepCurrentAxes`. Without axes
    /// nothing is done.
    ///
    /// A path whose mirrored form would be longer than the host allows is left as it is; the user
    /// is then told once, at the end. `option` asks for that message in any case.
    ///
    /// All changes belong to the undo step of the message in which the run happens. Throws
    /// `ai::Error` when a host call fails; the host's undo then brings back the art as it was.
    void run(bool selectionMode, bool keepCurrentAxes, bool option, AILayerHandle layer);

    /// Regenerates a top-level layer after an edit, `axes` being those stored on it: as `run`, with
    /// the same outcome, but what is as it was when the copies fitted is passed over
    /// (symmetry/FreshCopies.h).
    void refresh(AILayerHandle layer, const SymmetryAxes& axes, const FitState& fit);

    /// The paths that the last run has left as they were, because they would be too long.
    [[nodiscard]] const std::vector<AIArtHandle>& pathsTooLong() const { return pathsTooLong_; }

private:
    void finish(std::vector<AIArtHandle> pathsTooLong, bool option);

    MirrorEnvironment environment_;
    std::vector<AIArtHandle> pathsTooLong_;
};

} // namespace facetta
