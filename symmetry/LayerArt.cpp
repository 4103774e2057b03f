#include "symmetry/LayerArt.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Lent.h"
#include "host/suites/AIArtSuite.h"
#include "symmetry/AllChangesAllowed.h"
#include "symmetry/ArtList.h"
#include "symmetry/ArtSpace.h"
#include "symmetry/ArtTree.h"
#include "symmetry/GuideTag.h"
#include "symmetry/ImageCopies.h"
#include "symmetry/LayerAxesStore.h"
#include "symmetry/LiveLayers.h"
#include "symmetry/TransformedArt.h"
#include "symmetry/Unlocked.h"
#include "symmetry/WorkSet.h"

#include <vector>

namespace facetta {
namespace {

std::vector<AIArtHandle> artOf(const std::vector<Unit>& units) {
    std::vector<AIArtHandle> art;
    art.reserve(units.size());
    for (const Unit& unit : units)
        art.push_back(unit.art);
    return art;
}

} // namespace

ai::ArtSet collectLayerArt() {
    ai::ArtSet set;
    ai::checkLent(ai::suites.artSet->NewArtSet(set.put()), set);
    const AILayerHandle layer = topLevelLayer(nullptr);
    if (layer == nullptr) return set;
    const auto add = [&](AIArtHandle art) {
        ai::check(ai::suites.artSet->AddArtToArtSet(set.get(), art));
    };
    const LayerContents contents = contentsOfLayer(layer);
    for (const AIArtHandle art : artOf(contents.sources))
        add(art);
    for (const AIArtHandle art : contents.copies)
        add(art);
    for (const AIArtHandle art : artOnLayer(layer))
        if (GuideTag::has(art)) add(art);
    return set;
}

void moveArt(const ai::ArtSet& art, const Matrix& motion) {
    const AllChangesAllowed evenInLockedGroups;
    ContainerTransform transform;
    AIRealMatrix matrix = narrow(motion);
    for (const AIArtHandle each : membersOf(art.get())) {
        const Transform parts =
            typeOf(each) == kPluginArt ? Transform::AndTellPlugins : Transform::Whole;
        // The host moves nothing that is locked, even where it lets changes into locked groups
        // through.
        std::vector<AIArtHandle> locked = artInside(each);
        locked.insert(locked.begin(), each);
        whileUnlocked(locked, [&] { transform.apply(each, matrix, parts); });
    }
}

void changeActiveSector(const MirrorEnvironment& environment, int picked) {
    const AILayerHandle layer = topLevelLayer(nullptr);
    if (layer == nullptr) return;
    LayerAxesStore::write(environment.currentAxes);
    const std::vector<AIArtHandle> art = artOf(deleteCopiesAndListSources(layer));
    const PageAxes axes = pageAxes(environment.currentAxes);
    int steps = sectorCount(axes) - picked;
    if (steps % 2 != 0) {
        // An image in an odd sector is turned over: across the former first axis it lies in the
        // sector before the former active one.
        reflectCopies(art, axes, picked, Duplicate::No);
        --steps;
    }
    if (steps != 0) rotateCopies(art, axes, -steps * sectorAngle(axes), Duplicate::No);
    regenerateLayer(environment, /*option*/ false, layer);
}

} // namespace facetta
