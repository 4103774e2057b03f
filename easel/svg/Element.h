#pragma once

#include "easel/svg/Style.h"
#include "easel/svg/XmlTree.h"

#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

/// One element of the text with its attributes at hand.
class Element {
public:
    Element(const XmlTree& tree, NodeIndex node)
        : tree_(&tree), node_(node), attributes_(tree.attributes(node)) {}

    [[nodiscard]] const XmlTree& tree() const { return *tree_; }
    [[nodiscard]] NodeIndex node() const { return node_; }
    [[nodiscard]] std::string_view name() const { return tree_->at(node_).name; }
    [[nodiscard]] std::size_t line() const { return tree_->at(node_).line; }
    [[nodiscard]] const std::vector<XmlAttribute>& attributes() const { return attributes_; }

    [[nodiscard]] bool has(std::string_view attribute) const {
        return lookUp(attribute) != nullptr;
    }
    /// Decoded; empty when absent.
    [[nodiscard]] std::string get(std::string_view attribute) const;
    /// "true" or "1".
    [[nodiscard]] bool isTrue(std::string_view attribute) const;
    [[nodiscard]] double length(std::string_view attribute, double whole, double standard) const;
    /// The id that href or xlink:href leads to; empty when it leads out of the file.
    [[nodiscard]] std::string reference() const;
    /// id and classes as they stand, for matching selectors.
    [[nodiscard]] ElementName selectorName() const;

    /// Presentation attributes, then `sheet` rules, then the style attribute; what is marked
    /// important wins. `path` leads from the root to this element.
    [[nodiscard]] Properties properties(const StyleSheet& sheet,
                                        const std::vector<ElementName>& path) const;

    [[noreturn]] void fail(const std::string& message) const;

private:
    [[nodiscard]] const XmlAttribute* lookUp(std::string_view attribute) const;

    const XmlTree* tree_;
    NodeIndex node_;
    std::vector<XmlAttribute> attributes_;
};

/// Does an element of that name hold others that are drawn?
[[nodiscard]] bool isGroupElement(std::string_view name);

/// In document order.
[[nodiscard]] std::vector<NodeIndex> childElements(const XmlTree& tree, NodeIndex node);

/// What CSS calls a declaration list; empty for no properties.
[[nodiscard]] std::string declarationText(const Properties& properties);

} // namespace easel::svg
