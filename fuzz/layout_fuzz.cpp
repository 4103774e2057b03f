/// Any bytes as a layout text: reading ends, limits hold, what is printed reads back, what is
/// placed fits a window.

#include "fuzz/Require.h"
#include "toolkit/layout/Layout.h"
#include "toolkit/layout/Limits.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using facetta::fuzz::require;
using namespace NRDM::layout;

/// Sizes that differ from item to item and hang on nothing but the item.
class SomeSizes : public ItemSizes {
public:
    [[nodiscard]] ItemSize measure(const Element& item) const override {
        const int characters = static_cast<int>(textOf(item, Key::Name).size());
        ItemSize size{6 * characters + 8, 16 + 2 * static_cast<int>(item.kind), {}};
        if (item.kind != Kind::Slider) size.baseline = size.height - 5;
        return size;
    }

    [[nodiscard]] int heightAt(const Element&, int width, int natural) const override {
        return width > 100 ? natural : natural + 7;
    }

    [[nodiscard]] int titleHeight(const Element&) const override { return 14; }
};

struct Extent {
    std::size_t elements = 1;
    int depth = 1;
};

Extent extentOf(const Element& element) {
    Extent extent;
    for (const Element& child : element.children) {
        const Extent inner = extentOf(child);
        extent.elements += inner.elements;
        extent.depth = std::max(extent.depth, inner.depth + 1);
    }
    return extent;
}

void checkMessages(const Parsed& parsed) {
    const auto isError = [](const Message& message) { return message.severity == Severity::Error; };
    const auto errors = std::ranges::count_if(parsed.messages, isError);
    require(parsed.layout.has_value() == (errors == 0), "a layout exactly when there is no error");
    require(errors <= kMaxErrors, "the number of errors");
    require(std::ranges::is_sorted(parsed.messages, {}, &Message::position), "messages in order");
}

void checkReprint(const Layout& layout) {
    const std::string text = print(layout);
    if (text.size() > kMaxTextBytes) return; // long numbers take more room than they were worth
    require(parse(text).layout == layout, "what was printed reads back");
}

void checkPlacement(const Layout& layout) try {
    const Placement placement = place(layout, SomeSizes());
    for (const Placed& placed : placement) {
        const auto& [left, top, right, bottom] = placed.bounds;
        for (const int coordinate : {left, top, right, bottom})
            require(std::abs(coordinate) <= kMaxCoordinate, "window coordinates");
        require(left <= right && top <= bottom, "sides in their order");
    }
} catch (const Error&) {
    // Too large for any window, and said so.
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const Parsed parsed = parse(text);
    checkMessages(parsed);
    if (!parsed.layout) return 0;
    const Extent extent = extentOf(parsed.layout->dialog);
    require(extent.elements <= kMaxElements, "the number of elements");
    require(extent.depth <= kMaxDepth + 1, "the depth"); // the innermost block holds one more
    checkReprint(*parsed.layout);
    checkPlacement(*parsed.layout);
    return 0;
}
