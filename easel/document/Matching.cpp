#include "easel/document/Matching.h"

#include "easel/document/Attributes.h"
#include "easel/document/Document.h"
#include "easel/document/Session.h"
#include "host/Error.h"

#include <algorithm>

namespace easel {
namespace {

constexpr ai::int32 kSelection = kArtSelected | kArtFullySelected;
constexpr ai::int32 kMatchChartArt = 0x00100000;
/// What a spec may say of the search as a whole.
constexpr ai::int32 kSearchOptions = kMatchDictionaryArt | kMatchGraphArt | kMatchResultArt |
                                     kMatchTextPaths | kMatchNotIntoPluginGroups | kMatchChartArt;
/// Questions that exclude each other and every other bit.
constexpr ai::int32 kSpecialSelections =
    kArtSelectedTopLevelGroups | kArtSelectedLeaves | kArtSelectedTopLevelWithPaint;

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

bool isSkipped(const Art& art, ai::int32 options) {
    if (isResultGroup(art)) return (options & kMatchResultArt) == 0;
    const bool inPluginGroup = art.parent() != nullptr && art.parent()->type() == kPluginArt;
    return inPluginGroup && (options & kMatchNotIntoPluginGroups) != 0;
}

/// Everything under `root`, without it, parents before children.
std::vector<Met> meetAll(const Art& root, ai::int32 options) {
    std::vector<Met> met;
    std::vector<std::size_t> parents; // of the object at each depth
    Art* each = root.firstChild();
    while (each != nullptr) {
        while (!parents.empty() && met[parents.back()].art != each->parent())
            parents.pop_back();
        if (isSkipped(*each, options)) {
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

bool matchesSpecial(const Met& one, const std::vector<Met>& met, ai::int32 question) {
    const Art& art = *one.art;
    if (question == kArtSelectedLeaves) return !isContainer(art) && one.selected;
    // Topmost: fully selected, in something that is not, or directly on a layer.
    if (art.isLayer() || one.selection() != kSelection) return false;
    const Met& parent = met[one.parent];
    const bool isTopmost = parent.art->isLayer() || parent.selection() != kSelection;
    if (question == kArtSelectedTopLevelGroups) return isTopmost;
    const AIPathStyle& style = styleCarrier(art).style().path;
    return isTopmost && (isContainer(art) || style.fillPaint != 0 || style.strokePaint != 0);
}

bool matches(const Met& one, const std::vector<Met>& met, const AIArtSpec& spec) {
    if (spec.type != kAnyArt && spec.type != one.art->type()) return false;
    const ai::int32 mask = spec.whichAttr & ~kSearchOptions;
    if ((mask & kSpecialSelections) != 0) return matchesSpecial(one, met, mask);
    const ai::int32 attributes = userAttributes(*one.art, mask & ~kSelection) | one.selection();
    return (attributes & mask) == (spec.attr & ~kSearchOptions);
}

bool asksForSelection(const AIArtSpec& spec) {
    return (spec.whichAttr & (kSelection | kSpecialSelections)) != 0;
}

void check(std::span<const AIArtSpec> specs) {
    for (const AIArtSpec& spec : specs) {
        const ai::int32 mask = spec.whichAttr & ~kSearchOptions;
        const ai::int32 special = mask & kSpecialSelections;
        const bool isAlone = special == 0 || (special == mask && (special & (special - 1)) == 0);
        if (!isAlone) throw ai::Error{kBadParameterErr};
    }
}

} // namespace

std::vector<Art*> matchingArt(const Document& document, std::span<const AIArtSpec> specs) {
    check(specs);
    ai::int32 options = 0;
    for (const AIArtSpec& spec : specs)
        options |= spec.whichAttr & kSearchOptions;
    std::vector<Met> met = meetAll(document.root(), options);
    if (std::ranges::any_of(specs, asksForSelection)) settleSelections(met);
    std::vector<Art*> matching;
    for (const Met& one : met)
        if (std::ranges::any_of(specs, [&](const auto& spec) { return matches(one, met, spec); }))
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
