#pragma once

#include "easel/svg/Content.h"
#include "easel/svg/Element.h"
#include "easel/svg/Shapes.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace easel::svg {

/// The most elements that references (a use, a clip path, a pattern) may add to those of the file.
constexpr std::size_t kMostReferences = 500'000;
constexpr std::size_t kMostReferencedElements = 2'000'000;

/// What an element is read under.
struct Context {
    Style style;
    Matrix matrix; ///< From the element's coordinates to the drawing's.
    Viewport viewport;
};

/// What reading one file shares: its text, its style sheets, what was already read of its
/// definitions, and how much more may be read.
class ReadingState {
public:
    ReadingState(Session& itsSession, std::string drawing)
        : session(itsSession), text(std::make_shared<const XmlTree>(std::move(drawing))),
          tree(*text) {}

    /// Counts one more element; throws SvgError where the limits are passed.
    void countElement(const Element& element);
    /// Throws SvgError where nothing can be nested deeper.
    void checkNesting(const Element& element) const;
    /// Counts one more reference.
    void countReference(const Element& element);
    /// Says each thing about an element once.
    void warn(const Element& element, const std::string& message);

    Session& session; ///< Of the documents that are made.
    std::shared_ptr<const XmlTree> text;
    const XmlTree& tree;
    StyleSheet sheet;
    std::vector<ElementName> path; ///< From the root to the element being read.
    std::vector<std::string> warnings;

    /// The elements whose content is being read because something refers to them; a reference to
    /// one of them would never end.
    std::vector<NodeIndex> referring;
    int nesting = 0; ///< Of elements, those entered through references too.

    /// Drawings within the drawing, by element and the style that they inherit.
    std::map<std::pair<NodeIndex, std::string>, std::shared_ptr<const DrawingContent>> drawings;
    std::unordered_map<NodeIndex, std::shared_ptr<const GradientContent>> gradients;

private:
    std::size_t elements_ = 0;
    std::size_t references_ = 0;
    std::size_t ruleChecks_ = 0;
};

/// What the element's own attributes make of what its parent hands down. `path` leads to it. Throws
/// SvgError for a transform that is none.
[[nodiscard]] Context contextOf(const Element& element, const StyleSheet& sheet,
                                const std::vector<ElementName>& path, const Context& parent);

/// What the root hands down; `size` is that of its view box.
[[nodiscard]] Context rootContext(const Element& root, const StyleSheet& sheet, Point size);

/// Adds the entries that an attribute of the element holds. Throws SvgError where they are broken.
void readEntries(const Element& element, std::string_view json, Dictionary& target);

/// Puts something back when a scope ends.
template <typename Back> class [[nodiscard]] PutBack {
public:
    explicit PutBack(Back back) : back_(std::move(back)) {}
    ~PutBack() { back_(); }
    PutBack(const PutBack&) = delete;
    PutBack& operator=(const PutBack&) = delete;

private:
    Back back_;
};

/// One more at the end of the container.
template <typename Container>
auto pushed(Container& container, typename Container::value_type value) {
    container.push_back(std::move(value));
    return PutBack{[&container] { container.pop_back(); }};
}

/// One level deeper; throws SvgError beyond the limit.
inline auto deeper(ReadingState& state, const Element& element) {
    state.checkNesting(element);
    ++state.nesting;
    return PutBack{[&state] { --state.nesting; }};
}

} // namespace easel::svg
