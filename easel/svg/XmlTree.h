#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// An XML text as a tree of slices of its source.
///
/// A library's tree would not do: what a drawing holds and Easel does not understand is written
/// back character by character, so every node must know where in the text it stands; and nesting
/// must not cost stack. Attributes are read from the slice when asked for.
namespace easel::svg {

/// What is wrong with the text, and what would be right, at a line.
struct SvgError : std::runtime_error {
    SvgError(std::size_t errorLine, const std::string& message)
        : std::runtime_error(message), line(errorLine) {}
    std::size_t line; ///< Counted from 1.
};

/// The nesting and the number of elements beyond which a text is refused.
constexpr std::size_t kMostNesting = 500;
constexpr std::size_t kMostElements = 1'000'000;

using NodeIndex = std::uint32_t;
constexpr NodeIndex kNoNode = UINT32_MAX;

struct XmlAttribute {
    std::string_view name;   ///< With the prefix that is usual for its namespace.
    std::string_view raw;    ///< As it stands between the quotes.
    std::string_view source; ///< The whole of it: name, equals sign and quotes.
};

class XmlTree {
public:
    enum class Kind : std::uint8_t {
        Element,
        Text,
        CData,
        Other
    }; ///< Other: comments and the like.

    struct Node {
        /// Of an element: without the prefix that stands for SVG; "?" in a default namespace that
        /// is another one.
        std::string_view name;
        std::size_t start = 0; ///< Where the node begins in the source ...
        std::size_t contentStart = 0;
        std::size_t contentEnd = 0;
        std::size_t end = 0; ///< ... and one past where it ends.
        NodeIndex parent = kNoNode;
        NodeIndex firstChild = kNoNode;
        NodeIndex nextSibling = kNoNode;
        std::uint32_t line = 0;
        Kind kind = Kind::Element;
    };

    /// Reads all of `text`. Throws SvgError where it is no UTF-8, not well-formed or beyond the
    /// limits.
    explicit XmlTree(std::string text);
    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    [[nodiscard]] NodeIndex root() const { return root_; }
    [[nodiscard]] const Node& at(NodeIndex node) const { return nodes_[node]; }
    /// All nodes, in the order of the text, are numbered from 0.
    [[nodiscard]] std::size_t size() const { return nodes_.size(); }

    /// Everything before and after the root element.
    [[nodiscard]] std::string_view prologue() const { return slice(0, at(root_).start); }
    [[nodiscard]] std::string_view epilogue() const { return slice(at(root_).end, text_.size()); }

    /// The node's text, from "<" to ">".
    [[nodiscard]] std::string_view source(NodeIndex node) const {
        return slice(at(node).start, at(node).end);
    }
    [[nodiscard]] bool isSelfClosing(NodeIndex node) const {
        return startTag(node).ends_with("/>");
    }
    [[nodiscard]] std::string_view startTag(NodeIndex node) const {
        return slice(at(node).start, at(node).contentStart);
    }
    /// What stands between the start and the end tag.
    [[nodiscard]] std::string_view content(NodeIndex node) const {
        return slice(at(node).contentStart, at(node).contentEnd);
    }
    [[nodiscard]] std::vector<XmlAttribute> attributes(NodeIndex node) const;

    /// The element with this id, the first of several; kNoNode when there is none.
    [[nodiscard]] NodeIndex find(std::string_view id) const;

    /// All of the text that was read, and a part of it.
    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] std::string_view slice(std::size_t from, std::size_t to) const {
        return text().substr(from, to - from);
    }
    /// The element's name as it stands.
    [[nodiscard]] std::string_view tagName(NodeIndex node) const;
    /// "svg:" where the root element's own name has a prefix, to be put before new names; or empty.
    [[nodiscard]] std::string_view prefix() const;

    /// All text inside the node, decoded, its elements left out.
    [[nodiscard]] std::string textOf(NodeIndex node) const;
    /// Replaces character references and entities, those that the document type declares too.
    [[nodiscard]] std::string decode(std::string_view raw) const;

private:
    friend class XmlScanner;

    std::string text_;
    std::vector<Node> nodes_;
    NodeIndex root_ = kNoNode;
    std::unordered_map<std::string, NodeIndex> ids_;
    std::unordered_map<std::string_view, std::string_view> entities_;
    /// Names of attributes under the usual prefix, by the name under which they stand.
    std::unordered_map<std::string_view, std::string> usualNames_;
};

/// A namespace that drawings use, under its usual prefix.
struct Namespace {
    std::string_view prefix;
    std::string_view name;
};
inline constexpr std::string_view kSvgNamespace = "http://www.w3.org/2000/svg";
inline constexpr Namespace kNamespaces[] = {
    {"xlink", "http://www.w3.org/1999/xlink"},
    {"inkscape", "http://www.inkscape.org/namespaces/inkscape"},
    {"sodipodi", "http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd"},
    {"easel", "urn:facetta:easel"},
};

/// " name=\"value\"", or in single quotes where the value holds double ones.
[[nodiscard]] std::string attributeText(std::string_view name, std::string_view value);
/// Puts the same at the end of `text`.
void appendAttribute(std::string& text, std::string_view name, std::string_view value);

} // namespace easel::svg
