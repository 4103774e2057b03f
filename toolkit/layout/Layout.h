#pragma once

/// The layout language and its engine: text in, rectangles out. No window in it.
///
/// 1. `load` turns the text of a layout into a tree, or throws with line and column.
/// 2. The caller creates an item for each element that has an item type (`itemTypeOf`), in the
///    order of the tree.
/// 3. `place` asks the caller how large each item is and answers with every rectangle.
///
/// docs/layouts.md tells the language to those who write layouts.

#include "toolkit/layout/Bounds.h"
#include "toolkit/layout/Messages.h"
#include "toolkit/layout/Tree.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace NRDM::layout {

/// What a text means, and all that is to be said about it in the order of the text. There is a
/// layout exactly when no message is an error.
struct Parsed {
    std::optional<Layout> layout;
    Messages messages;
};

[[nodiscard]] Parsed parse(std::string_view text);

/// The layout in `text`, or throws `Error` for the first thing wrong with it. `source` names the
/// text in the error: a resource's id or a file. Warnings are passed over.
[[nodiscard]] Layout load(std::string_view text, std::string_view source);

/// `layout` as a text, every value worked out. Its parse is an equal layout, as long as the text
/// keeps to the limits.
[[nodiscard]] std::string print(const Layout& layout);

/// How far an element draws outside its rectangle, in pixels.
struct Outset {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const Outset&) const = default;
};

/// The size an item asks for, in pixels.
struct ItemSize {
    int width = 0;
    int height = 0;
    /// Distance of the first line of text below the item's top; nothing when there is no text.
    std::optional<int> baseline;
};

/// What only the creator of the items knows: their sizes in the fonts of the screen.
class ItemSizes {
public:
    virtual ~ItemSizes() = default;

    /// The natural size of `item`. The attributes `width`, `height` and `baseline` count above it.
    [[nodiscard]] virtual ItemSize measure(const Element& item) const = 0;

    /// The height of `item` now that its final width is known, when it depends on it; `natural`
    /// is what it was. Not asked when the item has a `height`.
    [[nodiscard]] virtual int heightAt(const Element& item, int width, int natural) const;

    /// Room for the name of a group or cluster above its elements, unless `frame_top` says it.
    [[nodiscard]] virtual int titleHeight(const Element& group) const;
};

struct Placed {
    const Element* element; ///< of the layout that was placed, which must live on
    Bounds bounds;          ///< from the top left corner of the dialog's client area
    Outset outset;
};

/// Where everything goes: every element but entries, in the order of the tree. The first one is
/// the dialog, its size the size of the client area.
using Placement = std::vector<Placed>;

/// Places `layout`. Throws `Error` when it grows beyond what window coordinates hold.
[[nodiscard]] Placement place(const Layout& layout, const ItemSizes& sizes);

} // namespace NRDM::layout
