#include "symmetry/LiveLayers.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/PathArt.h"
#include "symmetry/PenAtWork.h"
#include "symmetry/WorkSet.h"
#include "symmetry/geometry/RemovePoints.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace facetta {
namespace {

using LayerAxesStore::LiveAxes;

struct UndoSteps {
    ai::int32 past = 0;
    ai::int32 future = 0;

    /// A change would join the last step, and lose nothing.
    [[nodiscard]] bool canBeJoined() const { return past > 0 && future == 0; }
};

UndoSteps countUndoSteps() {
    UndoSteps steps;
    ai::check(ai::suites.undo->CountTransactions(&steps.past, &steps.future));
    return steps;
}

/// Whether the layer is as a regeneration or the document's file left it, as far as the steps that
/// can be undone and redone and the stored stamp tell.
bool broughtItsCopies(const LiveLayerMemory::Layer& last, ai::int32 stored,
                      const UndoSteps& steps) {
    if (last.penDraws) return false;
    if (!steps.canBeJoined()) return true;
    // After the last redo there is nothing more to redo; before it there was.
    return last.storedStamp != stored && last.couldRedo;
}

bool fits(const LiveLayerMemory::Layer& last, ai::int32 stored, const LayerStamp& now) {
    return last.storedStamp == stored ? unchanged(last.fit, now) : now.stored() == stored;
}

enum class Finding : std::uint8_t { NothingToDo, Changed, PenDraws };

Finding examine(LiveLayerMemory& memory, AILayerHandle layer, ai::int32 stored,
                const UndoSteps& steps, Pen pen) {
    // Without a stamp the axes were written and nothing was mirrored since.
    if (stored == 0) return steps.canBeJoined() ? Finding::Changed : Finding::NothingToDo;
    const LayerStamp now = readLayerStamp(layer, memory.reach);
    LiveLayerMemory::Layer& last = memory.at(layer);
    if (fits(last, stored, now) || broughtItsCopies(last, stored, steps)) {
        last.storedStamp = stored;
        last.fit = now;
        last.couldRedo = steps.future > 0;
        last.penDraws = false;
        return Finding::NothingToDo;
    }
    last.couldRedo = steps.future > 0;
    if (!steps.canBeJoined()) return Finding::NothingToDo;
    last.penDraws =
        pen == Pen::IsWaitedFor && last.storedStamp == stored && penIsDrawing(layer, last.fit);
    return last.penDraws ? Finding::PenDraws : Finding::Changed;
}

/// What the stamps on a layer that has just been regenerated show. A copy was changed after the
/// group had received it: a group that has the very stamp of a copy has it from there.
StampReach reachShownBy(const LayerStamp& stamp, AILayerHandle layer) {
    if (stamp.group < stamp.newest) return StampReach::GroupOnly;
    const bool fromCopy = std::ranges::any_of(contentsOfLayer(layer).copies, [&](AIArtHandle copy) {
        return stampOfArt(copy) == stamp.group;
    });
    return fromCopy ? StampReach::Descendants : StampReach::Unknown;
}

/// Notes which paths were too long; whether there is one that the user was not told about.
bool noteTooLong(LiveLayerMemory::Layer& layer, std::span<const AIArtHandle> paths) {
    const std::vector<PathTooLong> before = std::exchange(layer.told, {});
    bool hasNew = false;
    for (const AIArtHandle path : paths) {
        const PathTooLong found{path, stampOfArt(path)};
        layer.told.push_back(found);
        hasNew = hasNew || std::ranges::find(before, found) == before.end();
    }
    return hasNew;
}

/// The copies fit the art as it is now.
LiveLayerMemory::Layer& stampLayer(LiveLayerMemory& memory, AILayerHandle layer) {
    const LayerStamp now = readLayerStamp(layer, memory.reach);
    LayerAxesStore::stamp(layer, now.stored());
    LiveLayerMemory::Layer& noted = memory.at(layer);
    noted.storedStamp = now.stored();
    noted.fit = now;
    noted.couldRedo = false; // a change of art loses what could be redone
    noted.penDraws = false;
    memory.noteGiven(now.newest);
    return noted;
}

/// Makes all copies on the layer anew. Whether the user is to be told of paths that are too long
/// and were not too long before.
bool mirrorLayer(const MirrorEnvironment& environment, bool option, AILayerHandle layer) {
    LiveLayerMemory& memory = environment.live;
    MirrorEngine engine{environment};
    engine.run(/*selectionMode*/ false, /*keepCurrentAxes*/ false, option, layer);
    LiveLayerMemory::Layer& noted = stampLayer(memory, layer);
    memory.mirrored = true;
    if (memory.reach == StampReach::Unknown) memory.reach = reachShownBy(noted.fit, layer);
    return noteTooLong(noted, engine.pathsTooLong());
}

/// The same with the same outcome, but copies that fit as they are may stay.
bool refreshLayer(const MirrorEnvironment& environment, AILayerHandle layer, const LiveAxes& live) {
    LiveLayerMemory& memory = environment.live;
    const std::optional<std::uint64_t> stamp = memory.givenAs(live.stamp);
    if (!stamp) return mirrorLayer(environment, /*option*/ false, layer);
    MirrorEngine engine{environment};
    engine.refresh(layer, live.axes, {*stamp, memory.reach});
    LiveLayerMemory::Layer& noted = stampLayer(memory, layer);
    memory.mirrored = true;
    return noteTooLong(noted, engine.pathsTooLong());
}

/// Makes the copies fit again after a change of the art.
void mirrorAgain(const MirrorEnvironment& environment, AILayerHandle layer, const LiveAxes& live) {
    MirrorEnvironment silent = environment;
    silent.showMessage = {};
    if (refreshLayer(silent, layer, live) && environment.showMessage)
        environment.showMessage(kPathsTooLong);
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

void attachAxes(SymmetryAxes& axes, const MirrorEnvironment& environment, bool autoMirror) {
    axes.onLayer = true;
    axes.autoMirror = autoMirror;
    LayerAxesStore::write(axes);
    regenerateLayer(environment, /*option*/ false, nullptr);
}

bool regenerateLayer(const MirrorEnvironment& environment, bool option, AILayerHandle layer) {
    const AILayerHandle top = topLevelLayer(layer);
    if (groupArtOf(top) == nullptr || !LayerAxesStore::hasAxes(top)) return false;
    mirrorLayer(environment, option, top);
    return true;
}

Regeneration regenerateChangedLayers(const MirrorEnvironment& environment, Pen pen) {
    Regeneration done;
    std::vector<std::pair<AILayerHandle, LiveAxes>> due;
    std::optional<UndoSteps> steps;
    for (const AILayerHandle layer : topLevelLayers()) {
        const std::optional<LiveAxes> live = LayerAxesStore::readLive(layer);
        if (!live || isLayerBlocked(layer)) continue;
        if (!steps) steps = countUndoSteps();
        const Finding finding = examine(environment.live, layer, live->stamp, *steps, pen);
        if (finding == Finding::Changed) due.emplace_back(layer, *live);
        done.waits = done.waits || finding == Finding::PenDraws;
    }
    if (due.empty()) return done;
    // In a message that was sent from inside another the host does not listen, and need not: all
    // that happens there belongs to the step of the outer one.
    static_cast<void>(ai::suites.undo->SetKind(kAppendUndoContext));
    for (const auto& [layer, live] : due)
        mirrorAgain(environment, layer, live);
    done.layers = static_cast<int>(due.size());
    return done;
}

void noteTakenBack(LiveLayerMemory& memory) {
    for (const AILayerHandle layer : topLevelLayers()) {
        LiveLayerMemory::Layer* const last = memory.find(layer);
        if (last == nullptr || last->penDraws) continue;
        if (last->storedStamp == LayerAxesStore::stampOf(layer))
            last->fit = readLayerStamp(layer, memory.reach);
    }
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
    for (const Unit& unit : deleteCopiesAndListSources(released))
        removeAxisPoints(unit, onPage);
}

} // namespace facetta
