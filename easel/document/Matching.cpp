#include "easel/document/Matching.h"

#include "easel/document/Attributes.h"
#include "easel/document/Document.h"
#include "easel/document/Session.h"
#include "host/Error.h"

#include <algorithm>

namespace easel {
namespace {

constexpr ai::int32 kSelection = kArtSelected | kArtFullySelected;
/// Questions about the whole search or about topmost and innermost art, which are not answered.
constexpr ai::int32 kMatchingOnly = kArtSelectedTopLevelGroups | kArtSelectedLeaves |
                                    kArtSelectedTopLevelWithPaint | kMatchDictionaryArt |
                                    kMatchGraphArt | kMatchResultArt | kMatchTextPaths |
                                    kMatchNotIntoPluginGroups;

/// One object met by the walk; containers learn their selection from what follows inside them.
struct Met {
    Art* art;
    std::size_t parent; ///< Index among those met; its own for the first.
    bool selected = false;
    bool fully = true;
    bool hasLeaves = false;

    [[nodiscard]] ai::int32 selection() const {
        if (!hasLeaves || !selected) return 0;
        return fully ? kSelection : kArtSelected;
    }
};

/// Everything under `root`, without it, parents before children.
std::vector<Met> meetAll(const Art& root) {
    std::vector<Met> met;
    std::vector<std::size_t> parents; // of the object at each depth
    Art* each = root.firstChild();
    while (each != nullptr) {
        while (!parents.empty() && met[parents.back()].art != each->parent())
            parents.pop_back();
        if (isResultGroup(*each)) {
            each = nextSkippingChildren(*each, root);
            continue;
        }
        const std::size_t index = met.size();
        met.push_back({each, parents.empty() ? index : parents.back()});
        parents.push_back(index);
        each = nextInPreorder(*each, root);
    }
    return met;
}

/// From the last to the first, so that children come before their parents.
void settleSelections(std::vector<Met>& met) {
    for (std::size_t i = met.size(); i-- > 0;) {
        Met& one = met[i];
        if (!isContainer(*one.art)) {
            one.hasLeaves = true;
            one.selected = one.art->has(kArtSelected) || one.art->has(kArtFullySelected);
            one.fully = one.art->has(kArtFullySelected);
        }
        if (one.parent == i || !one.hasLeaves) continue;
        Met& parent = met[one.parent];
        parent.hasLeaves = true;
        parent.selected = parent.selected || one.selected;
        parent.fully = parent.fully && one.fully;
    }
}

bool matches(const Met& one, const AIArtSpec& spec) {
    if (spec.type != kAnyArt && spec.type != one.art->type()) return false;
    const ai::int32 mask = spec.whichAttr;
    const ai::int32 attributes = userAttributes(*one.art, mask & ~kSelection) | one.selection();
    return (attributes & mask) == spec.attr;
}

bool asksForSelection(const AIArtSpec& spec) { return (spec.whichAttr & kSelection) != 0; }

} // namespace

std::vector<Art*> matchingArt(const Document& document, std::span<const AIArtSpec> specs) {
    for (const AIArtSpec& spec : specs)
        if ((spec.whichAttr & kMatchingOnly) != 0) throw ai::Error{kNotImplementedErr};
    std::vector<Met> met = meetAll(document.root());
    if (std::ranges::any_of(specs, asksForSelection)) settleSelections(met);
    std::vector<Art*> matching;
    for (const Met& one : met)
        if (std::ranges::any_of(specs, [&](const auto& spec) { return matches(one, spec); }))
            matching.push_back(one.art);
    return matching;
}

const std::vector<Art*>& selectedMatches(const Document& document) {
    Session& all = document.session();
    KnownSelection& known = all.selection;
    if (known.document != &document || known.lastStamp != all.lastStamp ||
        known.exchanges != all.exchanges || known.selections != all.selections) {
        const AIArtSpec selected{kAnyArt, kArtSelected, kArtSelected};
        known = {&document, all.lastStamp, all.exchanges, all.selections,
                 matchingArt(document, {&selected, 1})};
    }
    return known.art;
}

std::vector<Art*> artOfLayer(Art& layer) {
    std::vector<Art*> all;
    Art* each =
        layer.session().switches.layerSetHasOwnGroup ? &layer : nextInPreorder(layer, layer);
    while (each != nullptr) {
        const bool skip = isResultGroup(*each);
        if (!skip) all.push_back(each);
        each = skip ? nextSkippingChildren(*each, layer) : nextInPreorder(*each, layer);
    }
    return all;
}

} // namespace easel
