#include "symmetry/ArtList.h"

#include "host/Art.h"
#include "host/Error.h"
#include "host/Lent.h"
#include "host/References.h"

#include <array>
#include <cstddef>

namespace facetta {
namespace {

ai::ArtSet newSet() {
    ai::ArtSet set;
    ai::checkLent(ai::suites.artSet->NewArtSet(set.put()), set);
    return set;
}

} // namespace

std::vector<AIArtHandle> membersOf(AIArtSet set) {
    std::size_t count = 0;
    ai::check(ai::suites.artSet->CountArtSet(set, &count));
    std::vector<AIArtHandle> members;
    members.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        AIArtHandle art = nullptr;
        ai::check(ai::suites.artSet->IndexArtSet(set, i, &art));
        if (art != nullptr) members.push_back(art); // a set may hold empty places
    }
    return members;
}

std::vector<AIArtHandle> selectedArt() {
    const ai::ArtSet set = newSet();
    ai::check(ai::suites.artSet->SelectedArtSet(set.get()));
    return membersOf(set.get());
}

std::vector<AIArtHandle> freePaths() {
    const ai::ArtSet set = newSet();
    AIArtSpec wanted{kPathArt, kArtLocked | kArtHidden, 0};
    ai::check(ai::suites.artSet->MatchingArtSet(&wanted, 1, set.get()));
    return membersOf(set.get());
}

std::vector<AIArtHandle> artOnLayer(AILayerHandle layer) {
    const ai::ArtSet set = newSet();
    ai::check(ai::suites.artSet->LayerArtSet(layer, set.get()));
    return membersOf(set.get());
}

std::vector<AIArtHandle> openArtOnLayer(AILayerHandle layer) {
    const ai::ArtSet all = newSet();
    ai::check(ai::suites.artSet->LayerArtSet(layer, all.get()));
    const ai::ArtSet open = newSet();
    std::array<AIArtSpec, 2> wanted{
        {{kAnyArt, kArtLocked | kArtHidden, 0}, {kAnyArt, kArtHidden, kArtHidden}}};
    ai::check(ai::suites.artSet->MatchingArtSet(wanted.data(), wanted.size(), open.get()));
    const ai::ArtSet both = newSet();
    ai::check(ai::suites.artSet->IntersectArtSet(all.get(), open.get(), both.get()));
    return membersOf(both.get());
}

} // namespace facetta
