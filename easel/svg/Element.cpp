#include "easel/svg/Element.h"

#include "easel/svg/Numbers.h"

#include <algorithm>

namespace easel::svg {

const XmlAttribute* Element::lookUp(std::string_view attribute) const {
    const auto found = std::ranges::find(attributes_, attribute, &XmlAttribute::name);
    return found == attributes_.end() ? nullptr : &*found;
}

std::string Element::get(std::string_view attribute) const {
    const XmlAttribute* const found = lookUp(attribute);
    return found == nullptr ? std::string{} : tree_->decode(found->raw);
}

bool Element::isTrue(std::string_view attribute) const {
    const XmlAttribute* const found = lookUp(attribute);
    return found != nullptr && (found->raw == "true" || found->raw == "1");
}

double Element::length(std::string_view attribute, double whole, double standard) const {
    const XmlAttribute* const found = lookUp(attribute);
    if (found == nullptr) return standard;
    return std::clamp(parseLength(found->raw, whole).value_or(standard), -kLargestCoordinate,
                      kLargestCoordinate);
}

std::string Element::reference() const {
    std::string target = get("href");
    if (target.empty()) target = get("xlink:href");
    return target.starts_with('#') ? target.substr(1) : std::string{};
}

ElementName Element::selectorName() const {
    const XmlAttribute* const id = lookUp("id");
    const XmlAttribute* const classes = lookUp("class");
    return {name(), id == nullptr ? std::string_view{} : id->raw,
            classes == nullptr ? std::string_view{} : classes->raw};
}

Properties Element::properties(const StyleSheet& sheet,
                               const std::vector<ElementName>& path) const {
    Properties result;
    for (const XmlAttribute& attribute : attributes_)
        if (!propertyNamed(attribute.name).name.empty())
            result[std::string{attribute.name}] = trimmed(tree_->decode(attribute.raw));
    const auto add = [&](const Declaration& declaration) {
        result[declaration.property] = declaration.value;
    };
    const std::vector<Declaration> own = parseDeclarations(get("style"));
    for (const bool important : {false, true}) {
        for (const Declaration* declaration : sheet.matching(path, important))
            add(*declaration);
        for (const Declaration& declaration : own)
            if (declaration.important == important) add(declaration);
    }
    return result;
}

void Element::fail(const std::string& message) const { throw SvgError(line(), message); }

bool isGroupElement(std::string_view name) {
    return name == "g" || name == "a" || name == "switch" || name == "svg";
}

std::vector<NodeIndex> childElements(const XmlTree& tree, NodeIndex node) {
    std::vector<NodeIndex> elements;
    for (NodeIndex child = tree.at(node).firstChild; child != kNoNode;
         child = tree.at(child).nextSibling)
        if (tree.at(child).kind == XmlTree::Kind::Element) elements.push_back(child);
    return elements;
}

std::string declarationText(const Properties& properties) {
    std::string text;
    for (const auto& [property, value] : properties) {
        if (!text.empty()) text += ';';
        text += property;
        text += ':';
        text += value;
    }
    return text;
}

} // namespace easel::svg
