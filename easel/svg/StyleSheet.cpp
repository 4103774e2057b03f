#include "easel/svg/StyleSheet.h"

#include "easel/svg/Numbers.h"

#include <algorithm>
#include <utility>

namespace easel::svg {
namespace {

/// Selectors longer than this are no longer those of drawings; matching them could take long.
constexpr std::size_t kLongestSelector = 16;

constexpr std::string_view kBlanks = " \t\r\n\f";

/// What elements are only while somebody points at them or types.
constexpr std::string_view kPassingStates[] = {":hover", ":active", ":focus", ":visited"};

/// @-rules that bring rules for art with them.
constexpr std::string_view kStylingRules[] = {"@media", "@import", "@supports", "@layer"};

std::string withoutComments(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t start = text.find("/*");
        result += text.substr(0, start);
        if (start == std::string_view::npos) break;
        const std::size_t end = text.find("*/", start + 2);
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 2);
    }
    return result;
}

/// The part before `delimiter`, which is taken off `text` together with the delimiter. Delimiters
/// within parentheses or quotes do not count: data addresses hold semicolons.
std::string_view takeUntil(std::string_view& text, char delimiter) {
    int depth = 0;
    char quote = '\0';
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quote != '\0') {
            if (c == quote) quote = '\0';
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '(') {
            ++depth;
        } else if (c == ')') {
            --depth;
        } else if (c == delimiter && depth <= 0) {
            const std::string_view part = text.substr(0, i);
            text.remove_prefix(i + 1);
            return part;
        }
    }
    return std::exchange(text, {});
}

/// Skips an @-rule: up to its semicolon, or past its block with all blocks inside it.
void skipAtRule(std::string_view& text) {
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '{') ++depth;
        const bool ends = (text[i] == ';' && depth == 0) || (text[i] == '}' && --depth <= 0);
        if (!ends) continue;
        text.remove_prefix(i + 1);
        return;
    }
    text = {};
}

bool hasClass(std::string_view classes, std::string_view wanted) {
    while (!classes.empty()) {
        classes = trimmed(classes);
        const std::size_t end = std::min(classes.find_first_of(kBlanks), classes.size());
        if (classes.substr(0, end) == wanted) return true;
        classes.remove_prefix(end);
    }
    return false;
}

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || static_cast<unsigned char>(c) >= 128;
}

std::string_view takeName(std::string_view& text) {
    const auto end = std::ranges::find_if_not(text, isNameCharacter);
    const std::string_view name = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(name.size());
    return name;
}

} // namespace

std::vector<Declaration> parseDeclarations(std::string_view text) {
    const std::string clean = withoutComments(text);
    std::string_view rest = clean;
    std::vector<Declaration> declarations;
    while (!rest.empty()) {
        std::string_view value = takeUntil(rest, ';');
        const std::size_t colon = value.find(':');
        if (colon == std::string_view::npos) continue;
        Declaration declaration{lowered(trimmed(value.substr(0, colon))), {}, false};
        value = trimmed(value.substr(colon + 1));
        const std::size_t mark = value.rfind('!');
        if (mark != std::string_view::npos &&
            equalIgnoringCase(trimmed(value.substr(mark + 1)), "important")) {
            declaration.important = true;
            value = trimmed(value.substr(0, mark));
        }
        declaration.value = value;
        if (!declaration.property.empty() && !value.empty())
            declarations.push_back(std::move(declaration));
    }
    return declarations;
}

bool StyleSheet::Simple::matches(const ElementName& element) const {
    const auto given = [&](const std::string& name) { return hasClass(element.classes, name); };
    return (tag.empty() || tag == element.tag) &&
           std::ranges::all_of(ids, [&](const std::string& id) { return id == element.id; }) &&
           std::ranges::all_of(classes, given);
}

bool StyleSheet::Rule::matches(const std::vector<ElementName>& path) const {
    if (path.empty() || !selector.back().matches(path.back())) return false;
    if (selector.size() == 1) return true;
    // Where on the path the selector's parts so far can end.
    std::vector<bool> ends(path.size(), false);
    for (const Simple& part : selector) {
        std::vector<bool> next(path.size(), false);
        bool above = false;
        for (std::size_t level = 0; level < path.size(); ++level) {
            const bool follows =
                &part == &selector.front() || (part.child ? level > 0 && ends[level - 1] : above);
            next[level] = follows && part.matches(path[level]);
            above = above || ends[level];
        }
        ends = std::move(next);
    }
    return ends.back();
}

bool StyleSheet::addRule(std::string_view selector, const std::vector<Declaration>& declarations) {
    Rule rule{{}, 0, declarations};
    bool child = false;
    for (std::string_view rest = trimmed(selector); !rest.empty(); rest = trimmed(rest)) {
        if (rest.front() == '>') {
            child = true;
            rest.remove_prefix(1);
            continue;
        }
        Simple simple;
        simple.child = std::exchange(child, false);
        if (rest.front() == '*')
            rest.remove_prefix(1);
        else
            simple.tag = takeName(rest);
        std::uint32_t specificity = simple.tag.empty() ? 0 : 1;
        while (!rest.empty() && (rest.front() == '.' || rest.front() == '#')) {
            const bool id = rest.front() == '#';
            rest.remove_prefix(1);
            const std::string_view name = takeName(rest);
            if (name.empty()) return false;
            (id ? simple.ids : simple.classes).emplace_back(name);
            specificity += id ? 10'000 : 100;
        }
        for (const std::string_view state : kPassingStates)
            if (rest.starts_with(state)) return true; // of a drawing at rest nothing matches
        const bool ended = rest.empty() || kBlanks.find(rest.front()) != std::string_view::npos ||
                           rest.front() == '>';
        if (!ended) return false; // an attribute, a place among siblings
        rule.specificity += specificity;
        rule.selector.push_back(std::move(simple));
    }
    if (rule.selector.empty()) return true;
    if (rule.selector.size() > kLongestSelector) return false;
    const auto stronger =
        std::ranges::upper_bound(rules_, rule.specificity, {}, &Rule::specificity);
    rules_.insert(stronger, std::move(rule));
    return true;
}

std::vector<std::string> StyleSheet::add(std::string_view text) {
    std::vector<std::string> unknown;
    const std::string clean = withoutComments(text);
    std::string_view rest = trimmed(clean);
    while (!rest.empty()) {
        if (rest.front() == '@') {
            const std::string name{rest.substr(0, rest.find_first_of(" \t\r\n\f{;\""))};
            const bool stylesArt =
                std::ranges::find(kStylingRules, name) != std::end(kStylingRules);
            if (stylesArt) unknown.push_back(name);
            skipAtRule(rest);
        } else {
            std::string_view selectors = takeUntil(rest, '{');
            const std::vector<Declaration> declarations = parseDeclarations(takeUntil(rest, '}'));
            while (!selectors.empty()) {
                const std::string_view selector = trimmed(takeUntil(selectors, ','));
                if (!addRule(selector, declarations)) unknown.emplace_back(selector);
            }
        }
        rest = trimmed(rest);
    }
    return unknown;
}

std::vector<const Declaration*> StyleSheet::matching(const std::vector<ElementName>& path,
                                                     bool important) const {
    std::vector<const Declaration*> found;
    for (const Rule& rule : rules_) {
        if (!rule.matches(path)) continue;
        for (const Declaration& declaration : rule.declarations)
            if (declaration.important == important) found.push_back(&declaration);
    }
    return found;
}

} // namespace easel::svg
