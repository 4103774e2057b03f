#include "tool/axes/LayerEdit.h"

#include "host/Error.h"
#include "host/Lent.h"
#include "host/References.h"
#include "host/UndoText.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/AllChangesAllowed.h"
#include "symmetry/ArtList.h"
#include "symmetry/AxisGuides.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "symmetry/MirrorTag.h"
#include "tool/axes/CurrentAxes.h"
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

void layGuides(const SymmetryAxes& axes) {
    removeAxisGuides(nullptr, /*untagOnly*/ false);
    addAxisGuides(axes);
}

} // namespace

void beginLayerEdit(ToolSession& session, const SymmetryAxes& axes) {
    ToolState& state = session.state;
    const AILayerHandle layer = topLevelLayer(nullptr);
    const EditNumber number = state.memory.add({.document = state.place.document,
                                                .layer = layer,
                                                .layerBackup = axes,
                                                .guidesExisted = layerHasAxisGuides(),
                                                .releasedCopies = copiesOn(layer)});
    happen(state, Event::LayerAxesDetached);
    state.edit = number;
    clearPreview(state);
    refreshPreview(session); // now, while the copies can still be told from what was drawn
}

void takeAxesOffLayer(ToolSession& session) {
    session.state.editCountsAs = CountsAs::Modified;
    if (guidesExisted(session.state)) removeAxisGuides(nullptr, /*untagOnly*/ false);
    // Only the drag that begins the edit finds the axes on the layer. They belong to all its
    // sublayers, whichever of these is the current one.
    const AILayerHandle layer = topLevelLayer(nullptr);
    if (LayerAxesStore::hasAxes(layer)) LayerAxesStore::remove(layer, /*resolveTopLevel*/ true);
    session.updatePanel();
}

void renewGuides(const ToolState& state) {
    if (guidesExisted(state)) layGuides(state.axes);
}

void reclaimCopies(const LayerEdit& edit) {
    constexpr AIBoolean kInLayersToo = 1;
    const AllChangesAllowed evenInLockedGroups;
    for (const AIArtHandle art : membersOf(edit.releasedCopies.get())) {
        if (!ai::suites.art->ValidArt(art, kInLayersToo)) continue;
        MirrorTag::set(art, MirrorTag::kCopy);
        ai::check(ai::suites.art->SetArtUserAttr(art, kArtLocked, kArtLocked));
    }
}

void restoreLayer(ToolSession& session, LayerCopies copies) {
    ToolState& state = session.state;
    const LayerEdit& edit = *layerEditOf(state);
    const SymmetryAxes axes = edit.layerBackup;
    reclaimCopies(edit);
    if (edit.guidesExisted) layGuides(axes);
    LayerAxesStore::write(axes);
    // Last: all of the above changes art of the layer.
    if (copies == LayerCopies::MadeAnew)
        regenerateLayer(session.mirroring, /*option*/ false, nullptr);
    else
        LayerAxesStore::stamp(nullptr);
    ai::nameUndoStep("Cancel Edit Symmetry Axes");
    happen(state, Event::EditCancelled);
    hold(state, {state.activity, axes});
    rememberAsDefault(session);
}

} // namespace facetta
