#pragma once

/// A layout as a tree of elements: what `parse` gives and `place` takes.

#include "toolkit/layout/Messages.h"
#include "toolkit/layout/Value.h"
#include "toolkit/layout/Vocabulary.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace NRDM::layout {

/// One element of a layout. Each attribute has the type its key asks for: whole numbers are whole
/// and in range, lists have the lengths they may have.
struct Element {
    Kind kind = Kind::Dialog;
    Position position; ///< of the kind's word in the text
    std::map<Key, Value> attributes;
    std::vector<Element> children; ///< in the order of the text; of a list item its entries
};

/// The same kinds, attributes and children; where they stand in their texts does not count.
[[nodiscard]] bool operator==(const Element& a, const Element& b);

struct Layout {
    std::string name; ///< says in messages which layout is meant
    Element dialog;

    bool operator==(const Layout&) const = default;
};

/// The attribute `key` of `element`, or nothing. The key must be of the type asked for.
[[nodiscard]] std::optional<int> integerOf(const Element& element, Key key);
[[nodiscard]] std::optional<double> numberOf(const Element& element, Key key);
[[nodiscard]] std::optional<bool> truthOf(const Element& element, Key key);

/// The text lives as long as the element; empty when the attribute is absent.
[[nodiscard]] std::string_view textOf(const Element& element, Key key);

/// The lengths in a list, or the one length that stands for a list of one.
[[nodiscard]] std::optional<std::vector<int>> lengthsOf(const Element& element, Key key);

/// ADM's name of the type of item to create for `element`; empty when it makes none. A group or
/// cluster makes a frame when it has a name, a button or box shows a picture when it has one.
[[nodiscard]] std::string_view itemTypeOf(const Element& element);

/// How `element` strings its children.
[[nodiscard]] Stringing stringingOf(const Element& element);

/// How `element` is aligned in its parent, and how it aligns those children that do not say.
[[nodiscard]] Alignment alignmentOf(const Element& element, Axis axis);
[[nodiscard]] Alignment childAlignmentOf(const Element& element, Axis axis);

} // namespace NRDM::layout
