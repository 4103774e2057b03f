#include "symmetry/LiveLayers.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AILayerSuite.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/PathArt.h"
#include "symmetry/WorkSet.h"
#include "symmetry/geometry/RemovePoints.h"

#include <vector>

namespace facetta {
namespace {

std::vector<AILayerHandle> topLevelLayers() {
    ai::int32 count = 0;
    ai::check(suites.layer->CountLayers(&count));
    std::vector<AILayerHandle> layers;
    for (ai::int32 i = 0; i < count; ++i) {
        AILayerHandle layer = nullptr;
        ai::check(suites.layer->GetNthLayer(i, &layer));
        if (layer != nullptr) layers.push_back(layer);
    }
    return layers;
}

/// Whether the layer mirrors automatically and has changed since it last did.
bool isDue(AILayerHandle layer) {
    SymmetryAxes axes;
    return LayerAxesStore::read(layer, axes) && axes.autoMirror && !isLayerBlocked(layer) &&
           currentStamp(layer) != LayerAxesStore::stampOf(layer);
}

void removeAxisPoints(AIArtHandle path, ai::int32 selection, const PageAxes& axes) {
    const PathShape before = readPath(path, selection);
    const PathShape after = removeRedundantAxisPoints(before, axes);
    if (after.segments.size() == before.segments.size()) return;
    PathTransfer{}.write(path, after);
    // What was selected in part may have moved to other anchors.
    if ((selection & kArtFullySelected) == 0) selectAnchors(path, after);
}

void removeAxisPoints(const Unit& unit, const PageAxes& axes) {
    if (unit.kind == UnitKind::Path) removeAxisPoints(unit.art, unit.selection, axes);
    if (unit.kind != UnitKind::CompoundPath) return;
    for (const AIArtHandle path : pathsInside(unit.art))
        removeAxisPoints(path, attributesOf(path, kArtSelected | kArtFullySelected), axes);
}

} // namespace

void attachAxes(const MirrorEnvironment& environment, bool autoMirror) {
    environment.currentAxes.onLayer = true;
    environment.currentAxes.autoMirror = autoMirror;
    LayerAxesStore::write(environment.currentAxes);
    regenerateLayer(environment, /*option*/ false, nullptr);
}

bool regenerateLayer(const MirrorEnvironment& environment, bool option, AILayerHandle layer) {
    const AILayerHandle top = topLevelLayer(layer);
    if (groupArtOf(top) == nullptr || !LayerAxesStore::hasAxes(top)) return false;
    MirrorEngine{environment}.run(/*selectionMode*/ false, /*keepCurrentAxes*/ false, option, top);
    LayerAxesStore::stamp(top);
    return true;
}

int regenerateChangedLayers(const MirrorEnvironment& environment) {
    int regenerated = 0;
    for (const AILayerHandle layer : topLevelLayers()) {
        if (!isDue(layer)) continue;
        if (regenerated == 0) ai::check(suites.undo->SetKind(kAppendUndoContext));
        if (regenerateLayer(environment, /*option*/ false, layer)) ++regenerated;
    }
    return regenerated;
}

void releaseLayer(const MirrorEnvironment& environment, AILayerHandle layer,
                  ResolveTopLevel resolveTopLevel) {
    const AILayerHandle released = layer != nullptr ? layer : currentLayer();
    if (released == nullptr) return;
    const bool resolve = resolveTopLevel == ResolveTopLevel::Yes;
    SymmetryAxes axes;
    const bool loses = LayerAxesStore::hasAxes(resolve ? topLevelLayer(released) : released) &&
                       LayerAxesStore::read(released, axes);
    LayerAxesStore::remove(released, resolve);
    if (!loses || !environment.removePoints) return;
    const PageAxes onPage = pageAxes(axes);
    for (const Unit& unit : unitsOfLayer(released))
        removeAxisPoints(unit, onPage);
}

} // namespace facetta
