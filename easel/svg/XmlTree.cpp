#include "easel/svg/XmlTree.h"

#include "easel/core/Text.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>
#include <utility>

namespace easel::svg {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

/// What entities may make of a text in all; a few lines of them can stand for any amount.
constexpr std::size_t kMostEntityBytes = 16'000'000;

/// A reference's end is looked for no further, so that a text of ampersands takes linear time.
constexpr std::size_t kLongestReference = 64;

bool startsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 128;
}

struct Entity {
    std::string_view name;
    char character;
};
constexpr Entity kEntities[] = {
    {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};

/// "#65" or "#x41"; false when it is no character.
bool appendCharacter(std::string& text, std::string_view reference) {
    reference.remove_prefix(1);
    const bool hex = reference.starts_with('x');
    if (hex) reference.remove_prefix(1);
    std::uint32_t code = 0;
    const char* const end = reference.data() + reference.size();
    const auto result = std::from_chars(reference.data(), end, code, hex ? 16 : 10);
    const bool surrogate = code >= 0xD800 && code < 0xE000;
    if (result.ec != std::errc{} || result.ptr != end || code == 0 || code > 0x10FFFF || surrogate)
        return false;
    const auto character = static_cast<char32_t>(code);
    text += utf8FromUtf32({&character, 1});
    return true;
}

void checkUtf8(std::string_view text) {
    std::size_t line = 1;
    std::size_t place = 1; // in the line
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view here = rest;
        const auto character = takeUtf8(rest);
        if (!character)
            throw SvgError(line, "byte " + std::to_string(place) +
                                     " of the line is no UTF-8; save the drawing in UTF-8");
        const bool lineEnds = *character == U'\n';
        line += lineEnds ? 1 : 0;
        place = lineEnds ? 1 : place + here.size() - rest.size();
    }
}

/// What a character of an attribute's value is written as; empty: itself.
constexpr std::string_view referenceFor(char c, char quote) {
    return c == '&'                  ? "&amp;"
           : c == '<'                ? "&lt;"
           : c == '\'' && quote == c ? "&apos;"
           : c == '\n'               ? "&#10;"
           : c == '\r'               ? "&#13;"
           : c == '\t'               ? "&#9;"
                                     : std::string_view{};
}

} // namespace

/// Builds the tree in one walk over the text.
class XmlScanner {
public:
    explicit XmlScanner(XmlTree& tree) : tree_(tree), text_(tree.text_) {}

    void scan() {
        checkUtf8(text_);
        if (text_.starts_with("\xEF\xBB\xBF")) position_ = 3;
        while (position_ < text_.size()) {
            if (text_[position_] != '<')
                scanText();
            else if (startsWith("<!--"))
                scanUntil("-->", "the comment", XmlTree::Kind::Other);
            else if (startsWith("<![CDATA["))
                scanUntil("]]>", "the CDATA section", XmlTree::Kind::CData);
            else if (startsWith("<?"))
                scanUntil("?>", "the processing instruction", XmlTree::Kind::Other);
            else if (startsWith("<!"))
                scanDocumentType();
            else if (startsWith("</"))
                scanEndTag();
            else
                scanStartTag();
        }
        if (!open_.empty()) {
            const XmlTree::Node& node = tree_.nodes_[open_.back().node];
            throw SvgError(node.line, "<" + std::string{open_.back().name} +
                                          "> is never closed; the file may have been cut off");
        }
        if (tree_.root_ == kNoNode)
            throw SvgError(1,
                           "there is no drawing in this file; an SVG file holds one <svg> element");
    }

private:
    struct Open {
        NodeIndex node;
        NodeIndex lastChild;
        std::string_view name;         ///< As it stands.
        std::string_view outerDefault; ///< The default namespace around the element.
    };

    [[nodiscard]] bool startsWith(std::string_view wanted) const {
        return text_.substr(position_).starts_with(wanted);
    }

    /// Lines are counted only as far as a node needs it, from where the count stands.
    std::uint32_t lineHere() {
        const auto from = text_.begin() + static_cast<std::ptrdiff_t>(counted_);
        const auto to = text_.begin() + static_cast<std::ptrdiff_t>(position_);
        line_ += static_cast<std::uint32_t>(std::count(from, to, '\n'));
        counted_ = position_;
        return line_;
    }

    [[noreturn]] void fail(const std::string& message) { throw SvgError(lineHere(), message); }

    NodeIndex add(XmlTree::Kind kind, std::size_t end) {
        if (tree_.nodes_.size() >= 4 * kMostElements) fail("there are more than 4,000,000 nodes");
        const auto index = static_cast<NodeIndex>(tree_.nodes_.size());
        XmlTree::Node node;
        node.kind = kind;
        node.line = lineHere();
        node.start = position_;
        node.contentStart = position_;
        node.contentEnd = node.end = end;
        if (!open_.empty()) {
            Open& parent = open_.back();
            node.parent = parent.node;
            NodeIndex& link = parent.lastChild == kNoNode
                                  ? tree_.nodes_[parent.node].firstChild
                                  : tree_.nodes_[parent.lastChild].nextSibling;
            link = index;
            parent.lastChild = index;
        }
        tree_.nodes_.push_back(node);
        return index;
    }

    void scanText() {
        const std::size_t end = std::min(text_.find('<', position_), text_.size());
        const std::string_view text = text_.substr(position_, end - position_);
        if (!trimmed(text).empty()) {
            if (open_.empty())
                fail("there is text outside the drawing; only comments may stand there");
            add(XmlTree::Kind::Text, end);
            countEntities(text);
        }
        position_ = end;
    }

    void scanUntil(std::string_view terminator, const std::string& what, XmlTree::Kind kind) {
        const std::size_t end = text_.find(terminator, position_ + 2);
        if (end == std::string_view::npos)
            fail(what + " is never closed; it ends with " + std::string{terminator});
        if (!open_.empty()) {
            const NodeIndex node = add(kind, end + terminator.size());
            if (kind == XmlTree::Kind::CData) {
                tree_.nodes_[node].contentStart = position_ + 9;
                tree_.nodes_[node].contentEnd = end;
            }
        }
        position_ = end + terminator.size();
    }

    /// The document type with its declarations in brackets, of which entities alone matter.
    void scanDocumentType() {
        const std::size_t start = position_;
        bool inside = false;
        char quote = '\0';
        for (std::size_t i = position_; i < text_.size(); ++i) {
            const char c = text_[i];
            if (quote != '\0') {
                if (c == quote) quote = '\0';
            } else if (c == '"' || c == '\'') {
                quote = c;
            } else if (c == '[' || c == ']') {
                inside = c == '[';
            } else if (c == '>' && !inside) {
                readEntities(text_.substr(start, i - start));
                if (!open_.empty()) add(XmlTree::Kind::Other, i + 1);
                position_ = i + 1;
                return;
            }
        }
        fail("the document type is never closed; it ends with >");
    }

    void readEntities(std::string_view declarations) {
        constexpr std::string_view kMark = "<!ENTITY";
        for (std::size_t at = declarations.find(kMark); at != std::string_view::npos;
             at = declarations.find(kMark)) {
            declarations = trimmed(declarations.substr(at + kMark.size()));
            const std::string_view name =
                declarations.substr(0, declarations.find_first_of(kBlanks));
            declarations = trimmed(declarations.substr(name.size()));
            const char quote = declarations.empty() ? '\0' : declarations.front();
            if (quote != '"' && quote != '\'') continue; // parameter or external: never read
            const std::size_t end = declarations.find(quote, 1);
            if (end == std::string_view::npos) return;
            tree_.entities_.try_emplace(name, declarations.substr(1, end - 1));
            declarations.remove_prefix(end);
        }
    }

    /// Adds up what the entities in `raw` stand for.
    void countEntities(std::string_view raw) {
        if (tree_.entities_.empty() || raw.find('&') == std::string_view::npos) return;
        for (std::size_t at = raw.find('&'); at != std::string_view::npos;
             at = raw.find('&', at + 1)) {
            const std::string_view rest = raw.substr(at + 1, kLongestReference);
            const auto entity = tree_.entities_.find(rest.substr(0, rest.find(';')));
            if (entity != tree_.entities_.end()) entityBytes_ += entity->second.size();
        }
        if (entityBytes_ > kMostEntityBytes)
            fail("entities make more than 16 MB of text; write what they stand for once");
    }

    /// The element's name with its namespace taken into account.
    [[nodiscard]] std::string_view nameIn(std::string_view name) const {
        const std::size_t colon = name.find(':');
        if (colon == std::string_view::npos)
            return default_.empty() || default_ == kSvgNamespace ? name : "?";
        return svgPrefixes_.contains(name.substr(0, colon)) ? name.substr(colon + 1) : name;
    }

    /// An attribute that declares a namespace, or stands in one under a prefix of its own.
    void readName(std::string_view name, std::string_view value) {
        if (name == "xmlns") default_ = value;
        const std::size_t colon = name.find(':');
        if (colon == std::string_view::npos) return;
        const std::string_view prefix = name.substr(0, colon);
        const std::string_view local = name.substr(colon + 1);
        if (prefix == "xmlns") {
            if (value == kSvgNamespace) svgPrefixes_.insert(local);
            const auto* const known = std::ranges::find(kNamespaces, value, &Namespace::name);
            if (known != std::end(kNamespaces) && known->prefix != local)
                usualPrefixes_[local] = known->prefix;
        } else if (const auto usual = usualPrefixes_.find(prefix); usual != usualPrefixes_.end()) {
            tree_.usualNames_.try_emplace(name,
                                          std::string{usual->second} + ':' + std::string{local});
        }
    }

    void scanEndTag() {
        const std::size_t end = text_.find('>', position_);
        if (end == std::string_view::npos) fail("an end tag is cut off; it ends with >");
        const std::string_view name = trimmed(text_.substr(position_ + 2, end - position_ - 2));
        if (open_.empty()) fail("</" + std::string{name} + "> closes nothing; remove it");
        XmlTree::Node& node = tree_.nodes_[open_.back().node];
        const std::string due{open_.back().name};
        if (name != due)
            fail("</" + std::string{name} + "> stands where </" + due + "> is due, for the <" +
                 due + "> of line " + std::to_string(node.line));
        node.contentEnd = position_;
        node.end = position_ = end + 1;
        default_ = open_.back().outerDefault;
        open_.pop_back();
    }

    void scanStartTag() {
        if (open_.empty() && tree_.root_ != kNoNode)
            fail("there is a second outermost element; an SVG file holds one <svg> element");
        if (open_.size() >= kMostNesting)
            fail("elements are nested more than " + std::to_string(kMostNesting) +
                 " deep; remove groups that hold only a group");
        if (++elementCount_ > kMostElements)
            fail("there are more than 1,000,000 elements; divide the drawing");
        std::size_t at = position_ + 1;
        const std::string_view name = nameFrom(at);
        if (name.empty() || !startsName(name.front()))
            fail("< is not followed by a name; a plain < is written &lt;");

        const NodeIndex index = add(XmlTree::Kind::Element, text_.size());
        tree_.nodes_[index].name = name;
        if (open_.empty()) tree_.root_ = index;
        const std::string_view outer = default_;
        const bool empty = scanAttributes(index, at);
        XmlTree::Node& node = tree_.nodes_[index];
        node.name = nameIn(name);
        node.contentStart = position_;
        if (empty) {
            node.contentEnd = node.end = position_;
            default_ = outer;
        } else {
            open_.push_back({index, kNoNode, name, outer});
        }
    }

    void skipBlanks(std::size_t& at) const {
        at = std::min(text_.find_first_not_of(kBlanks, at), text_.size());
    }

    /// Moves `at` past the name that begins there, if any does.
    std::string_view nameFrom(std::size_t& at) const {
        const std::size_t start = at;
        at = std::min(text_.find_first_of(" \t\r\n>/=<\"'", at), text_.size());
        return text_.substr(start, at - start);
    }

    /// Checks the attributes from `at` on and moves past the tag. True for an empty element.
    bool scanAttributes(NodeIndex index, std::size_t at) {
        const auto tag = [&] { return "<" + std::string{tree_.nodes_[index].name} + ">"; };
        std::vector<std::string_view> names;
        for (;;) {
            skipBlanks(at);
            if (at >= text_.size() || text_[at] == '<')
                fail(tag() + " is cut off; a tag ends with >");
            if (text_[at] == '>') {
                position_ = at + 1;
                return false;
            }
            if (text_.substr(at).starts_with("/>")) {
                position_ = at + 2;
                return true;
            }
            const std::string_view name = nameFrom(at);
            skipBlanks(at);
            const bool equals = at < text_.size() && text_[at] == '=';
            if (name.empty() || !startsName(name.front()) || !equals)
                fail("an attribute of " + tag() + " is broken; write name=\"value\"");
            skipBlanks(++at);
            const char quote = at < text_.size() ? text_[at] : '\0';
            const std::size_t end =
                quote == '"' || quote == '\'' ? text_.find(quote, at + 1) : std::string_view::npos;
            if (end == std::string_view::npos)
                fail("the value of " + std::string{name} + " in " + tag() +
                     " is not in quotes; write " + std::string{name} + "=\"value\"");
            if (std::ranges::find(names, name) != names.end())
                fail(std::string{name} + " stands twice in " + tag() + "; keep one");
            if (names.size() >= kMostAttributes) fail(tag() + " has more than 1,000 attributes");
            names.push_back(name);
            const std::string_view value = text_.substr(at + 1, end - at - 1);
            if (value.find('<') != std::string_view::npos)
                fail("the value of " + std::string{name} + " holds a <; write &lt;");
            countEntities(value);
            readName(name, value);
            if (name == "id") tree_.ids_.try_emplace(tree_.decode(value), index);
            at = end + 1;
        }
    }

    /// More are no drawing; finding a name that stands twice would take long.
    static constexpr std::size_t kMostAttributes = 1000;

    XmlTree& tree_;
    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t counted_ = 0;
    std::uint32_t line_ = 1;
    std::vector<Open> open_;
    std::size_t elementCount_ = 0;
    std::size_t entityBytes_ = 0;
    std::string_view default_; ///< The namespace of names without a prefix; empty: none was given.
    std::set<std::string_view> svgPrefixes_;
    std::map<std::string_view, std::string_view> usualPrefixes_;
};

XmlTree::XmlTree(std::string text) : text_(std::move(text)) { XmlScanner{*this}.scan(); }

std::vector<XmlAttribute> XmlTree::attributes(NodeIndex index) const {
    std::string_view rest = startTag(index);
    rest.remove_prefix(1 + tagName(index).size());
    std::vector<XmlAttribute> result;
    for (;;) { // The tag was checked when the tree was built.
        rest = trimmed(rest);
        if (rest.empty() || rest.front() == '>' || rest.front() == '/') return result;
        const std::size_t open = rest.find_first_of("\"'");
        const std::size_t close = rest.find(rest[open], open + 1);
        std::string_view name = trimmed(rest.substr(0, rest.find('=')));
        if (const auto usual = usualNames_.find(name); usual != usualNames_.end())
            name = usual->second;
        result.push_back(
            {name, rest.substr(open + 1, close - open - 1), rest.substr(0, close + 1)});
        rest.remove_prefix(close + 1);
    }
}

NodeIndex XmlTree::find(std::string_view id) const {
    const auto found = ids_.find(std::string{id});
    return found == ids_.end() ? kNoNode : found->second;
}

std::string_view XmlTree::tagName(NodeIndex node) const {
    const std::string_view tag = source(node).substr(1);
    return tag.substr(0, tag.find_first_of(" \t\r\n/>"));
}

std::string_view XmlTree::prefix() const {
    const std::string_view name = tagName(root_);
    return name.substr(0, name.find(':') + 1); // what is not found ends the name before it begins
}

std::string XmlTree::decode(std::string_view raw) const {
    std::string text;
    text.reserve(raw.size());
    while (!raw.empty()) {
        const std::size_t ampersand = std::min(raw.find('&'), raw.size());
        text += raw.substr(0, ampersand);
        raw.remove_prefix(ampersand);
        if (raw.empty()) break;
        const std::size_t semicolon = raw.substr(0, kLongestReference).find(';');
        const std::string_view name =
            semicolon == std::string_view::npos ? std::string_view{} : raw.substr(1, semicolon - 1);
        const auto* const known = std::ranges::find(kEntities, name, &Entity::name);
        const auto declared = entities_.find(name);
        bool replaced = true;
        if (name.starts_with('#'))
            replaced = appendCharacter(text, name);
        else if (known != std::end(kEntities))
            text += known->character;
        else if (declared != entities_.end())
            text += declared->second; // not decoded again: entities within entities end here
        else
            replaced = false;
        if (!replaced) text += '&';
        raw.remove_prefix(replaced ? semicolon + 1 : 1);
    }
    return text;
}

std::string XmlTree::textOf(NodeIndex node) const {
    std::string text;
    for (NodeIndex child = at(node).firstChild; child != kNoNode; child = at(child).nextSibling) {
        const Kind kind = at(child).kind;
        if (kind == Kind::Text)
            text += decode(source(child));
        else if (kind == Kind::CData)
            text += content(child);
        else if (kind == Kind::Element)
            text += textOf(child);
    }
    return text;
}

void appendAttribute(std::string& text, std::string_view name, std::string_view value) {
    const char quote = value.find('"') != std::string_view::npos ? '\'' : '"';
    text += ' ';
    text += name;
    text += '=';
    text += quote;
    const auto* from = value.begin();
    for (const auto* at = from; at != value.end(); ++at) {
        const std::string_view reference = referenceFor(*at, quote);
        if (reference.empty()) continue;
        text.append(from, at);
        text += reference;
        from = at + 1;
    }
    text.append(from, value.end());
    text += quote;
}

std::string attributeText(std::string_view name, std::string_view value) {
    std::string text;
    appendAttribute(text, name, value);
    return text;
}

} // namespace easel::svg
