#include "easel/svg/ReadingState.h"

#include "easel/svg/Numbers.h"
#include "easel/svg/PaintServers.h"

#include <algorithm>

namespace easel::svg {
namespace {

/// More comparisons of elements with style rules take longer than anyone would wait.
constexpr std::size_t kMostRuleChecks = 500'000'000;

/// More warnings help nobody.
constexpr std::size_t kMostWarnings = 20;

/// Elements that art elsewhere may refer to, or whose look hangs on them.
bool isDefinition(std::string_view element) {
    constexpr std::string_view kDefinitions[] = {"clipPath", "defs",  "filter",  "linearGradient",
                                                 "marker",   "mask",  "pattern", "radialGradient",
                                                 "style",    "symbol"};
    return std::ranges::find(kDefinitions, element) != std::end(kDefinitions);
}

} // namespace

void PendingInterludes::add(const XmlTree& tree, NodeIndex node) {
    const bool isElement = tree.at(node).kind == XmlTree::Kind::Element;
    pending_.push_back({std::string{trimmed(tree.source(node))}, nullptr, node,
                        isElement && isDefinition(tree.at(node).name)});
}

void PendingInterludes::addForeign(const XmlTree& tree, NodeIndex generated) {
    std::string kept;
    for (NodeIndex node = tree.at(generated).firstChild; node != kNoNode;
         node = tree.at(node).nextSibling)
        if (tree.at(node).kind != XmlTree::Kind::Text && !isMadeAnew(tree, node))
            kept += tree.source(node);
    if (!kept.empty()) pending_.push_back({"<defs>" + kept + "</defs>", nullptr, generated, true});
}

void PendingInterludes::moveTo(std::vector<Interlude>& target, AIArtHandle before) {
    for (Interlude& interlude : pending_) {
        interlude.before = before;
        target.push_back(std::move(interlude));
    }
    pending_.clear();
}

void ReadingState::countElement(const Element& element) {
    if (++elements_ > kMostElements + kMostReferencedElements)
        element.fail("references multiply the drawing beyond 2,000,000 elements; use fewer copies");
    ruleChecks_ += sheet.size();
    if (ruleChecks_ > kMostRuleChecks)
        element.fail("there are too many style rules for this many elements; remove unused rules");
}

void ReadingState::countReference(const Element& element) {
    if (++references_ > kMostReferences)
        element.fail("there are more than 500,000 references; use fewer copies");
}

void ReadingState::warn(const Element& element, const std::string& message) {
    if (warnings.size() < kMostWarnings)
        warnings.push_back(std::to_string(element.line()) + ": " + message);
}

Deeper::Deeper(ReadingState& state, const Element& element) : state_(state) {
    if (++state.nesting <= static_cast<int>(kMostNesting)) return;
    --state.nesting;
    element.fail("elements and references are nested more than 500 deep; use fewer levels");
}

} // namespace easel::svg
