#include "tool/LayerEdit.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/References.h"
#include "host/UndoText.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/AllChangesAllowed.h"
#include "symmetry/ArtList.h"
#include "symmetry/AxisGuides.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/MirrorTag.h"
#include "tool/CurrentAxes.h"
#include "tool/drawing/Preview.h"

#include <utility>

namespace facetta {
namespace {

/// A set and not a list: the host keeps it while the user goes on editing.
ai::ArtSet copiesOn(AILayerHandle layer) {
    ai::ArtSet copies;
    ai::checkLent(ai::suites.artSet->NewArtSet(copies.put()), copies);
    if (layer == nullptr) return copies;
    for (const AIArtHandle art : artOnLayer(layer))
        if (MirrorTag::get(art) == MirrorTag::kCopy)
            ai::check(ai::suites.artSet->AddArtToArtSet(copies.get(), art));
    return copies;
}

} // namespace

void beginLayerEdit(ToolSession& session, const SymmetryAxes& axes) {
    ToolState& state = session.state;
    const AILayerHandle layer = topLevelLayer(nullptr);
    ai::ArtSet copies = copiesOn(layer);
    state.guidesToRestore = layerHasAxisGuides();
    state.layerBackup = axes;
    state.editedLayer = layer;
    state.releasedCopies = std::move(copies);
    state.layerEdit = true;
    clearPreview(state);
    refreshPreview(session); // now, while the copies can still be told from what was drawn
}

void takeAxesOffLayer(ToolSession& session) {
    ToolState& state = session.state;
    if (state.guidesToRestore) removeAxisGuides(nullptr, /*untagOnly*/ false);
    // Only the drag that begins the edit finds the axes on the layer.
    // They belong to all its sublayers, whichever of these is the current one.
    if (state.dragBackup.onLayer)
        LayerAxesStore::remove(topLevelLayer(nullptr), /*resolveTopLevel*/ true);
    state.committed = false;
    state.axes.provisional = true;
    state.axes.onLayer = false;
    session.updatePanel();
}

void renewGuides(const ToolState& state, const SymmetryAxes& axes) {
    if (!state.guidesToRestore) return;
    removeAxisGuides(nullptr, /*untagOnly*/ false);
    addAxisGuides(axes);
}

void reclaimCopies(const ToolState& state) {
    if (!state.releasedCopies) return;
    constexpr AIBoolean kInLayersToo = 1;
    const AllChangesAllowed evenInLockedGroups;
    for (const AIArtHandle art : membersOf(state.releasedCopies.get())) {
        if (!ai::suites.art->ValidArt(art, kInLayersToo)) continue;
        MirrorTag::set(art, MirrorTag::kCopy);
        ai::check(ai::suites.art->SetArtUserAttr(art, kArtLocked, kArtLocked));
    }
}

void restoreLayer(ToolSession& session) {
    ToolState& state = session.state;
    reclaimCopies(state);
    renewGuides(state, state.layerBackup);
    LayerAxesStore::write(state.layerBackup);
    LayerAxesStore::stamp(nullptr); // last: all of the above changes art of the layer
    ai::nameUndoStep("Cancel Edit Symmetry Axes");
    state.axes = state.layerBackup;
    state.committed = true;
    rememberAsDefault(session);
    endLayerEdit(state);
}

void endLayerEdit(ToolState& state) noexcept {
    state.layerEdit = false;
    state.guidesToRestore = false;
    state.editedLayer = nullptr;
    state.releasedCopies.reset();
}

} // namespace facetta
