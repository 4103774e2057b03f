#include "host/suites/AIArtSetSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Matching.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace easel {
namespace {

/// A list of handles, which may outlive what they stand for: not part of any document.
using Handles = std::vector<AIArtHandle>;

Handles& handlesOf(AIArtSet set) {
    void* object = session().handles.find(HandleKind::ArtSet, set);
    if (object == nullptr) {
        if (set != nullptr) session().ledger.require(Lent::ArtSet, set);
        throw ai::Error{kBadParameterErr};
    }
    return *static_cast<Handles*>(object);
}

void replace(Handles& handles, const std::vector<Art*>& art) {
    handles.clear();
    handles.reserve(art.size());
    for (const Art* each : art)
        handles.push_back(each->handle());
}

AIArtSet newArtSet() {
    void* const set = session().handles.add(HandleKind::ArtSet, new Handles);
    session().ledger.lend(Lent::ArtSet, set);
    return static_cast<AIArtSet>(set);
}

void disposeArtSet(AIArtSet* set) {
    const Handles* handles = &handlesOf(required(set));
    session().ledger.takeBack(Lent::ArtSet, *set);
    session().handles.remove(*set);
    delete handles;
    *set = nullptr;
}

void countArtSet(AIArtSet set, std::size_t* count) {
    const std::size_t size = handlesOf(set).size();
    if (session().switches.countIs64Bits) {
        required(count) = size;
    } else {
        const auto low = static_cast<std::uint32_t>(size);
        std::memcpy(&required(count), &low, sizeof low);
    }
}

AIArtHandle indexArtSet(AIArtSet set, std::size_t index) {
    const Handles& handles = handlesOf(set);
    if (index >= handles.size()) throw ai::Error{kBadParameterErr};
    return handles[index];
}

void matchingArtSet(AIArtSpec* specs, ai::int16 count, AIArtSet set) {
    Handles& handles = handlesOf(set);
    if (count < 0 || (specs == nullptr && count != 0)) throw ai::Error{kBadParameterErr};
    replace(handles, matchingArt(session().document(), {specs, static_cast<std::size_t>(count)}));
}

void selectedArtSet(AIArtSet set) {
    replace(handlesOf(set), selectedMatches(session().document()));
}

void layerArtSet(AILayerHandle layer, AIArtSet set) {
    replace(handlesOf(set), artOfLayer(session().layerOf(layer)));
}

void intersectArtSet(AIArtSet one, AIArtSet other, AIArtSet both) {
    const Handles& first = handlesOf(one);
    const Handles& second = handlesOf(other);
    const auto& [few, many] = std::minmax(
        first, second, [](const Handles& a, const Handles& b) { return a.size() < b.size(); });
    const std::unordered_set<AIArtHandle> wanted{few.begin(), few.end()};
    Handles found;
    std::ranges::copy_if(many, std::back_inserter(found),
                         [&](AIArtHandle art) { return wanted.contains(art); });
    handlesOf(both) = std::move(found);
}

void addArtToArtSet(AIArtSet set, AIArtHandle art) {
    Handles& handles = handlesOf(set);
    if (std::ranges::find(handles, art) == handles.end()) handles.push_back(art);
}

} // namespace

void installArtSetSuite(SuiteServer& server) {
    using S = AIArtSetSuite;
    expose<&S::NewArtSet, newArtSet>(server);
    exposeEnding<&S::DisposeArtSet, disposeArtSet>(server);
    expose<&S::CountArtSet, countArtSet>(server);
    expose<&S::IndexArtSet, indexArtSet>(server);
    expose<&S::SelectedArtSet, selectedArtSet>(server);
    expose<&S::MatchingArtSet, matchingArtSet>(server);
    expose<&S::LayerArtSet, layerArtSet>(server);
    expose<&S::IntersectArtSet, intersectArtSet>(server);
    expose<&S::AddArtToArtSet, addArtToArtSet>(server);
}

} // namespace easel
