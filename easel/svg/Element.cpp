#include "easel/svg/Element.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <initializer_list>

namespace easel::svg {
namespace {

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::ranges::find(names, name) != names.end();
}

/// Attributes of every element that are written anew from the model.
bool isRewritten(std::string_view name) {
    return name.starts_with("easel:") ||
           isOneOf(name, {"style", "transform", "inkscape:label", "inkscape:groupmode",
                          "inkscape:highlight-color", "sodipodi:insensitive"});
}

/// Attributes that say the same as the outline.
bool isGeometry(std::string_view element, std::string_view name) {
    const bool isShape =
        isOneOf(element, {"rect", "circle", "ellipse", "line", "polygon", "polyline", "path"});
    if (!isShape) return false;
    return isOneOf(name, {"d", "x", "y", "width", "height", "rx", "ry", "cx", "cy", "r", "x1", "y1",
                          "x2", "y2", "points", "pathLength"});
}

/// Attributes by which drawing programs make the outline anew; they would undo an edit.
bool isShapeRecipe(std::string_view name) {
    return name.starts_with("sodipodi:") ||
           isOneOf(name, {"inkscape:original-d", "inkscape:path-effect", "inkscape:rounded",
                          "inkscape:randomized", "inkscape:flatsided"});
}

/// State that art has for itself, so that an opaque element does not carry it.
bool isArtState(std::string_view property) {
    return isOneOf(property, {"opacity", "display", "visibility", "clip-path"});
}

std::string attributeText(std::string_view name, std::string_view value) {
    return " " + std::string{name} + "=\"" + escaped(value) + "\"";
}

} // namespace

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
        if (isProperty(attribute.name))
            result[std::string{attribute.name}] = trimmed(tree_->decode(attribute.raw));
    const auto add = [&](const Declaration& declaration) {
        result[declaration.property] = declaration.value;
    };
    // Art that we wrote says all of its style itself; rules that it matches only because it has
    // become a path or a group must not touch it.
    const bool ruled = !sheet.empty() && !isTrue("easel:styled");
    if (ruled)
        for (const Declaration* declaration : sheet.matching(path, false))
            add(*declaration);
    const std::vector<Declaration> own = parseDeclarations(get("style"));
    for (const Declaration& declaration : own)
        if (!declaration.important) add(declaration);
    if (ruled)
        for (const Declaration* declaration : sheet.matching(path, true))
            add(*declaration);
    for (const Declaration& declaration : own)
        if (declaration.important) add(declaration);
    return result;
}

void Element::fail(const std::string& message) const { throw SvgError(line(), message); }

std::vector<NodeIndex> childElements(const XmlTree& tree, NodeIndex node) {
    std::vector<NodeIndex> elements;
    for (NodeIndex child = tree.at(node).firstChild; child != kNoNode;
         child = tree.at(child).nextSibling)
        if (tree.at(child).kind == XmlTree::Kind::Element) elements.push_back(child);
    return elements;
}

KeptAttributes keptAttributes(const Element& element) {
    KeptAttributes kept;
    for (const XmlAttribute& attribute : element.attributes()) {
        const std::string_view name = attribute.name;
        if (isRewritten(name) || isProperty(name) || isGeometry(element.name(), name)) continue;
        std::string& target = isShapeRecipe(name) ? kept.shape : kept.own;
        target += ' ';
        target += attribute.source;
    }
    return kept;
}

std::string carriedAttributes(const Element& element, const Style& parent) {
    std::string text;
    Properties given;
    for (const Declaration& declaration : parseDeclarations(element.get("style")))
        given[declaration.property] =
            declaration.value + (declaration.important ? " !important" : "");
    Properties kept = given;
    std::erase_if(kept, [](const auto& property) { return isArtState(property.first); });
    for (const XmlAttribute& attribute : element.attributes()) {
        const std::string_view name = attribute.name;
        if (isProperty(name)) given.try_emplace(std::string{name});
        if (name == "style") {
            if (!kept.empty()) text += attributeText("style", declarationText(kept));
        } else if (name != "id" && !isRewritten(name) && !isArtState(name)) {
            text += ' ';
            text += attribute.source;
        }
    }
    if (!parent.inherited) return text;
    const bool isText = element.name() == "text";
    for (const auto& [property, value] : *parent.inherited) {
        if (given.contains(property) || isArtState(property)) continue;
        if (isTextProperty(property) && !isText) continue;
        // A size relative to an ancestor's means something else without the ancestor.
        text += attributeText(property,
                              property == "font-size" ? formatNumber(parent.font.size) : value);
    }
    return text;
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
