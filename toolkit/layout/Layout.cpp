#include "toolkit/layout/Layout.h"

#include "toolkit/layout/Limits.h"
#include "toolkit/layout/Parser.h"
#include "toolkit/layout/Resolve.h"

#include <algorithm>

namespace NRDM::layout {
namespace {

bool isError(const Message& message) { return message.severity == Severity::Error; }

/// Puts `messages` in the order of the text and drops what follows the last error that counts.
void arrange(Messages& messages) {
    std::ranges::stable_sort(messages, {}, &Message::position);
    int errors = 0;
    const auto last = std::ranges::find_if(messages, [&errors](const Message& message) {
        return isError(message) && ++errors == kMaxErrors;
    });
    if (last != messages.end()) messages.erase(last + 1, messages.end());
}

std::string printed(const Element& element, const std::string& indentation) {
    std::string text = std::string(recordOf(element.kind).name) + '(';
    const char* separator = "";
    for (const auto& [key, value] : element.attributes) {
        text += separator;
        text += recordOf(key).name;
        text += ": " + written(value);
        separator = ", ";
    }
    text += ')';
    if (element.children.empty()) return text + ";\n";
    text += '\n' + indentation + "{\n";
    const std::string inner = indentation + "    ";
    for (const Element& child : element.children)
        text += inner + printed(child, inner);
    return text + indentation + "}\n";
}

} // namespace

Parsed parse(std::string_view text) {
    Parsed parsed;
    const syntax::Text read = syntax::read(text, parsed.messages);
    Layout layout = resolve(read, parsed.messages);
    arrange(parsed.messages);
    if (std::ranges::none_of(parsed.messages, isError)) parsed.layout = std::move(layout);
    return parsed;
}

Layout load(std::string_view text, std::string_view source) {
    Parsed parsed = parse(text);
    if (parsed.layout) return std::move(*parsed.layout);
    throw Error(*std::ranges::find_if(parsed.messages, isError), source);
}

std::string print(const Layout& layout) {
    const std::string indentation = "    ";
    return "layout " + layout.name + "\n{\n" + indentation + "view " +
           printed(layout.dialog, indentation) + "}\n";
}

} // namespace NRDM::layout
