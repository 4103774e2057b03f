#pragma once

#include "easel/svg/Element.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

/// The start tag of an element: as it stood until something of it is changed.
class TagText {
public:
    explicit TagText(const Element& element);
    /// Of an element written anew.
    explicit TagText(std::string name) : name_(std::move(name)) {}

    void rename(std::string name);
    /// An empty value takes the attribute away.
    void set(std::string_view attribute, std::string_view value);
    /// In the style attribute where that has the property already, or where style sheets would win
    /// over an attribute of its own. An empty value takes the property away.
    void setProperty(std::string_view property, std::string_view value, bool inStyle);

    /// Puts the attributes of `other`, none of which may be there yet, behind those that are.
    void add(const TagText& other);

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] bool hasChanged() const { return changed_; }
    /// From "<" to ">", or to "/>" when the element is empty. Adds the prefixes of what was set.
    [[nodiscard]] std::string text(bool empty, std::set<std::string, std::less<>>& prefixes) const;

private:
    struct Attribute {
        std::string name;
        std::string value;
        std::string source; ///< As it stood; empty: it was set.
    };

    std::string name_;
    std::vector<Attribute> attributes_;
    std::string source_; ///< The whole tag, but for its end; empty: written anew.
    bool changed_ = false;
};

} // namespace easel::svg
