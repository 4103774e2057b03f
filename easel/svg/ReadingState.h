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

/// Something put back when a scope ends.
template <typename Container> class Pushed {
public:
    Pushed(Container& container, typename Container::value_type value) : container_(container) {
        container_.push_back(std::move(value));
    }
    ~Pushed() { container_.pop_back(); }
    Pushed(const Pushed&) = delete;
    Pushed& operator=(const Pushed&) = delete;

private:
    Container& container_;
};

/// Another value until a scope ends.
template <typename T> class Exchanged {
public:
    Exchanged(T& target, T value)
        : target_(target), former_(std::exchange(target, std::move(value))) {}
    ~Exchanged() { target_ = std::move(former_); }
    Exchanged(const Exchanged&) = delete;
    Exchanged& operator=(const Exchanged&) = delete;

private:
    T& target_;
    T former_;
};

/// One level deeper; throws SvgError beyond the limit.
class Deeper {
public:
    Deeper(ReadingState& state, const Element& element);
    ~Deeper() { --state_.nesting; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

private:
    ReadingState& state_;
};

} // namespace easel::svg
