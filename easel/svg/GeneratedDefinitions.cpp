#include "easel/svg/GeneratedDefinitions.h"

#include "easel/svg/Element.h"
#include "easel/svg/PaintServers.h"

#include <algorithm>

namespace easel::svg {
namespace {

using Ids = std::set<std::string, std::less<>>;

/// Elements that art elsewhere may refer to, or whose look hangs on them.
bool isDefinition(std::string_view element) {
    constexpr std::string_view kDefinitions[] = {"clipPath", "defs",  "filter",  "linearGradient",
                                                 "marker",   "mask",  "pattern", "radialGradient",
                                                 "style",    "symbol"};
    return std::ranges::find(kDefinitions, element) != std::end(kDefinitions);
}

/// The ids of paint that `text` refers to.
Ids usedServers(std::string_view text) {
    constexpr std::string_view kMark = "url(#";
    Ids used;
    for (std::size_t at = text.find(kMark); at != std::string_view::npos;
         at = text.find(kMark, at + 1)) {
        const std::string_view id = text.substr(at + kMark.size());
        used.emplace(id.substr(0, id.find(')')));
    }
    return used;
}

bool isInUse(const XmlTree& tree, NodeIndex generated, const Ids& used) {
    if (tree.at(generated).kind != XmlTree::Kind::Element) return true;
    const Element element{tree, generated};
    return !isDerived(tree, element) || used.contains(element.get("id"));
}

} // namespace

void GeneratedDefinitions::keepLost(NodeIndex node) {
    const Element element{tree_, node};
    if (element.isTrue("easel:clip")) return;
    if (references_.contain(element.get("id"))) return keep(node);
    for (const NodeIndex child : childElements(tree_, node))
        if (source_.isArt[child])
            keepLost(child);
        else if (isDefinition(tree_.at(child).name))
            keep(child);
}

void GeneratedDefinitions::keepLostIn(NodeIndex container, const std::vector<bool>& written) {
    for (const NodeIndex child : childElements(tree_, container)) {
        if (!source_.isArt[child]) continue;
        if (!written[child])
            keepLost(child);
        else if (isGroupElement(tree_.at(child).name))
            keepLostIn(child, written);
    }
}

NodeIndex GeneratedDefinitions::former() const {
    NodeIndex found = kNoNode;
    for (const NodeIndex child : childElements(tree_, tree_.root()))
        if (isGenerated(tree_, child)) found = child;
    return found;
}

std::string GeneratedDefinitions::text(std::string added, std::string_view content,
                                       std::size_t at) const {
    for (const NodeIndex lost : kept_) {
        const XmlTree::Node& element = tree_.at(lost);
        added += "\n    ";
        added += source_.isArt[lost] ? withoutIds(tree_, lost, element.start, element.end)
                                     : std::string{tree_.source(lost)};
    }
    const NodeIndex node = former();
    if (node == kNoNode && added.empty()) return {};
    if (node == kNoNode || tree_.isSelfClosing(node)) {
        if (added.empty()) return std::string{tree_.source(node)};
        const std::string name = std::string{tree_.prefix()} + "defs";
        return "\n  <" + name + " easel:generated=\"true\">" + added + "\n  </" + name + '>';
    }
    if (added.empty() && isAllAsRead(node, content, at)) return std::string{tree_.source(node)};
    const Ids used = usedServers(content);
    std::string text{tree_.startTag(node)};
    std::size_t from = tree_.at(node).contentStart;
    for (NodeIndex child = tree_.at(node).firstChild; child != kNoNode;
         child = tree_.at(child).nextSibling) {
        const std::size_t end = tree_.at(child).end;
        if (isInUse(tree_, child, used)) text += tree_.slice(from, end);
        from = end;
    }
    text += added;
    return text += tree_.slice(from, tree_.at(node).end);
}

/// Has nothing at all changed beside these definitions?
bool GeneratedDefinitions::isAllAsRead(NodeIndex generated, std::string_view content,
                                       std::size_t at) const {
    const std::string_view text = tree_.text();
    const std::size_t from = tree_.at(tree_.root()).contentStart;
    const std::size_t to = tree_.at(tree_.root()).contentEnd;
    const XmlTree::Node& element = tree_.at(generated);
    return content.substr(0, at) == text.substr(from, element.start - from) &&
           content.substr(at) == text.substr(element.end, to - element.end);
}

} // namespace easel::svg
