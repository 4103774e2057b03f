#include "easel/svg/TagText.h"

#include <algorithm>

namespace easel::svg {

TagText::TagText(const Element& element) : name_(element.tree().tagName(element.node())) {
    const XmlTree& tree = element.tree();
    for (const XmlAttribute& each : element.attributes())
        attributes_.push_back(
            {std::string{each.name}, tree.decode(each.raw), std::string{each.source}});
    source_ = tree.startTag(element.node());
    source_.resize(source_.size() - (source_.ends_with("/>") ? 2 : 1));
}

void TagText::rename(std::string name) {
    changed_ = changed_ || name != name_;
    name_ = std::move(name);
}

void TagText::set(std::string_view attribute, std::string_view value) {
    const auto found = std::ranges::find(attributes_, attribute, &Attribute::name);
    if (found == attributes_.end()) {
        if (value.empty()) return;
        attributes_.push_back({std::string{attribute}, std::string{value}, {}});
    } else if (value.empty()) {
        attributes_.erase(found);
    } else if (found->value != value) {
        *found = {std::string{attribute}, std::string{value}, {}};
    } else {
        return;
    }
    changed_ = true;
}

void TagText::setProperty(std::string_view property, std::string_view value, bool inStyle) {
    const auto style = std::ranges::find(attributes_, "style", &Attribute::name);
    std::vector<Declaration> declarations;
    if (style != attributes_.end()) declarations = parseDeclarations(style->value);
    const bool isThere =
        std::ranges::find(declarations, property, &Declaration::property) != declarations.end();
    if (value.empty() || (!isThere && !inStyle)) set(property, value);
    if (!isThere && (!inStyle || value.empty())) return;
    std::erase_if(declarations, [&](const auto& each) { return each.property == property; });
    if (!value.empty()) declarations.push_back({std::string{property}, std::string{value}, false});
    std::string text;
    for (const Declaration& each : declarations) {
        if (!text.empty()) text += ';';
        text += each.property + ':' + each.value + (each.important ? " !important" : "");
    }
    set("style", text);
}

void TagText::add(const TagText& other) {
    attributes_.insert(attributes_.end(), other.attributes_.begin(), other.attributes_.end());
    changed_ = true;
}

std::string TagText::text(bool empty, std::set<std::string, std::less<>>& prefixes) const {
    std::string text = source_;
    if (changed_ || source_.empty()) {
        text = '<' + name_;
        for (const Attribute& each : attributes_) {
            if (!each.source.empty()) {
                text += ' ' + each.source;
                continue;
            }
            if (const std::size_t colon = each.name.find(':'); colon != std::string::npos)
                prefixes.insert(each.name.substr(0, colon));
            appendAttribute(text, each.name, each.value);
        }
    }
    return text += empty ? "/>" : ">";
}

} // namespace easel::svg
