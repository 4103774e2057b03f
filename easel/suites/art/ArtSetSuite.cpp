#include "host/suites/AIArtSetSuite.h"

#include "easel/core/Arguments.h"
#include "easel/core/Expose.h"
#include "easel/core/Ledger.h"
#include "easel/document/Matching.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"

#include <algorithm>
#include <cstring>
#include <unordered_set>

namespace easel {
namespace {

/// A list of handles, which may outlive what they stand for: not part of any document.
using Handles = std::vector<AIArtHandle>;

Handles& handlesOf(AIArtSet set) {
    void* object = session().handles.find(HandleKind::ArtSet, set);
    if (object == nullptr) {
        if (set != nullptr) ledger().require(Lent::ArtSet, set);
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

AIErr newArtSet(AIArtSet* set) {
    required(set) = nullptr;
    *set = static_cast<AIArtSet>(session().handles.add(HandleKind::ArtSet, new Handles));
    ledger().lend(Lent::ArtSet, *set);
    return kNoErr;
}

AIErr disposeArtSet(AIArtSet* set) {
    const Handles* handles = &handlesOf(required(set));
    ledger().takeBack(Lent::ArtSet, *set);
    session().handles.remove(*set);
    delete handles;
    *set = nullptr;
    return kNoErr;
}

AIErr countArtSet(AIArtSet set, std::size_t* count) {
    const std::size_t size = handlesOf(set).size();
    if (switches().countIs64Bits) {
        required(count) = size;
    } else {
        const auto low = static_cast<std::uint32_t>(size);
        std::memcpy(&required(count), &low, sizeof low);
    }
    return kNoErr;
}

AIErr indexArtSet(AIArtSet set, std::size_t index, AIArtHandle* art) {
    required(art) = nullptr;
    const Handles& handles = handlesOf(set);
    if (index >= handles.size()) return kBadParameterErr;
    *art = handles[index];
    return kNoErr;
}

AIErr arrayArtSet(AIArtSet set, AIArtHandle* art, std::size_t count) {
    Handles& handles = handlesOf(set);
    if (art == nullptr && count != 0) return kBadParameterErr;
    handles.assign(art, art + count);
    return kNoErr;
}

AIErr matchingArtSet(AIArtSpec* specs, ai::int16 count, AIArtSet set) {
    Handles& handles = handlesOf(set);
    if (count < 0 || (specs == nullptr && count != 0)) return kBadParameterErr;
    replace(handles, matchingArt(currentDocument(), {specs, static_cast<std::size_t>(count)}));
    return kNoErr;
}

AIErr selectedArtSet(AIArtSet set) {
    AIArtSpec selected{kAnyArt, kArtSelected, kArtSelected};
    return matchingArtSet(&selected, 1, set);
}

AIErr layerArtSet(AILayerHandle layer, AIArtSet set) {
    replace(handlesOf(set), artOfLayer(layerOf(layer)));
    return kNoErr;
}

/// Appends each of `handles` that was not seen before.
void appendOnce(Handles& result, std::unordered_set<AIArtHandle>& seen, const Handles& handles) {
    for (const AIArtHandle art : handles)
        if (seen.insert(art).second) result.push_back(art);
}

AIErr unionArtSet(AIArtSet first, AIArtSet second, AIArtSet target) {
    Handles all;
    std::unordered_set<AIArtHandle> seen;
    appendOnce(all, seen, handlesOf(first));
    appendOnce(all, seen, handlesOf(second));
    handlesOf(target) = std::move(all);
    return kNoErr;
}

AIErr intersectArtSet(AIArtSet first, AIArtSet second, AIArtSet target) {
    const Handles& others = handlesOf(second);
    const std::unordered_set<AIArtHandle> inSecond(others.begin(), others.end());
    Handles common = handlesOf(first);
    std::erase_if(common, [&](AIArtHandle art) { return !inSecond.contains(art); });
    Handles once;
    std::unordered_set<AIArtHandle> seen;
    appendOnce(once, seen, common);
    handlesOf(target) = std::move(once);
    return kNoErr;
}

AIErr nextInArtSet(AIArtSet set, AIArtHandle previous, AIArtHandle* next) {
    required(next) = nullptr;
    const Handles& handles = handlesOf(set);
    auto place = handles.begin();
    if (previous != nullptr) {
        place = std::ranges::find(handles, previous);
        if (place != handles.end()) ++place;
    }
    place = std::find_if(place, handles.end(), [](AIArtHandle art) { return art != nullptr; });
    if (place != handles.end()) *next = *place;
    return kNoErr;
}

AIErr addArtToArtSet(AIArtSet set, AIArtHandle art) {
    Handles& handles = handlesOf(set);
    if (std::ranges::find(handles, art) == handles.end()) handles.push_back(art);
    return kNoErr;
}

AIErr removeArtFromArtSet(AIArtSet set, AIArtHandle art) {
    std::erase(handlesOf(set), art);
    return kNoErr;
}

AIErr replaceArtInArtSet(AIArtSet set, AIArtHandle former, AIArtHandle art) {
    Handles& handles = handlesOf(set);
    const auto place = std::ranges::find(handles, former);
    if (place != handles.end())
        *place = art;
    else
        handles.push_back(art);
    return kNoErr;
}

} // namespace

void installArtSetSuite(SuiteServer& server) {
    using S = AIArtSetSuite;
    auto table = server.table<S>(kAIArtSetSuite, kAIArtSetSuiteVersion);
    expose<&S::NewArtSet, newArtSet>(table);
    exposeEnding<&S::DisposeArtSet, disposeArtSet>(table);
    expose<&S::CountArtSet, countArtSet>(table);
    expose<&S::IndexArtSet, indexArtSet>(table);
    expose<&S::ArrayArtSet, arrayArtSet>(table);
    expose<&S::SelectedArtSet, selectedArtSet>(table);
    expose<&S::MatchingArtSet, matchingArtSet>(table);
    expose<&S::LayerArtSet, layerArtSet>(table);
    expose<&S::UnionArtSet, unionArtSet>(table);
    expose<&S::IntersectArtSet, intersectArtSet>(table);
    expose<&S::NextInArtSet, nextInArtSet>(table);
    expose<&S::AddArtToArtSet, addArtToArtSet>(table);
    expose<&S::RemoveArtFromArtSet, removeArtFromArtSet>(table);
    expose<&S::ReplaceArtInArtSet, replaceArtInArtSet>(table);
}

} // namespace easel
