#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The part of CSS that drawings use: declarations, and sheets whose selectors name an element, a
/// class, an id, or a combination of these for one element, with ancestors before it.
namespace easel::svg {

struct Declaration {
    std::string property;
    std::string value;
    bool important = false;
};

/// "fill:red; stroke: none !important". What is no declaration is skipped.
[[nodiscard]] std::vector<Declaration> parseDeclarations(std::string_view text);

/// What selectors ask of an element.
struct ElementName {
    std::string_view tag;
    std::string_view id;
    std::string_view classes; ///< As in the class attribute, separated by blanks.
};

class StyleSheet {
public:
    /// Adds the rules of one <style> element. Returns the selectors beyond the part of CSS above
    /// and the @-rules that may style art; neither has an effect.
    std::vector<std::string> add(std::string_view text);
    [[nodiscard]] bool empty() const { return rules_.empty(); }
    [[nodiscard]] std::size_t size() const { return rules_.size(); }

    /// The declarations for the last element of `path`, which leads to it from the root; the later
    /// one wins. `important` picks those marked so, which win over the style attribute.
    [[nodiscard]] std::vector<const Declaration*> matching(const std::vector<ElementName>& path,
                                                           bool important) const;

private:
    /// One element's part of a selector, such as "path.thin#rim".
    struct Simple {
        std::string tag; ///< Empty for any.
        std::vector<std::string> ids;
        std::vector<std::string> classes;
        bool child = false; ///< Must be a child of what the part before it names (">").
        [[nodiscard]] bool matches(const ElementName& element) const;
    };
    struct Rule {
        std::vector<Simple> selector;
        std::uint32_t specificity = 0;
        std::vector<Declaration> declarations;
        [[nodiscard]] bool matches(const std::vector<ElementName>& path) const;
    };

    /// False when the selector is not understood.
    bool addRule(std::string_view selector, const std::vector<Declaration>& declarations);

    std::vector<Rule> rules_; ///< In the order in which they win: weakest first.
};

} // namespace easel::svg
