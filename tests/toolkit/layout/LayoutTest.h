#pragma once

/// What the tests of layouts share: items of stated sizes, and placements as text.

#include "toolkit/layout/Layout.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>

namespace NRDM::layout::tests {

enum class Baselines { No, Yes };

/// Sizes in a font whose characters are all 6 pixels wide. A `&` marks an access key and takes no
/// room.
class PlainSizes : public ItemSizes {
public:
    explicit PlainSizes(Baselines baselines = Baselines::No) : baselines_(baselines) {}

    [[nodiscard]] ItemSize measure(const Element& item) const override {
        ItemSize size = sizeOf(item);
        if (baselines_ == Baselines::No) size.baseline.reset();
        return size;
    }

private:
    static ItemSize sizeOf(const Element& item) {
        const std::string_view name = textOf(item, Key::Name);
        const int text = 6 * static_cast<int>(name.size() - std::ranges::count(name, '&'));
        switch (item.kind) {
        case Kind::Checkbox:
            return {text + 20, 18, 14};
        case Kind::StaticText:
            return {text, 16, 13};
        case Kind::SpinEdit:
        case Kind::SpinEditPopup:
            return {96, 22, 16};
        case Kind::Button:
            return {text + 20, 24, 16};
        default:
            return {};
        }
    }

    Baselines baselines_;
};

inline std::ostream& operator<<(std::ostream& out, const Extent& size) {
    return out << size.width << 'x' << size.height;
}
inline std::string written(const Bounds& bounds) {
    std::ostringstream out;
    out << bounds.left << ',' << bounds.top << ' ' << sizeOf(bounds);
    return out.str();
}

/// The size of the client area, then the rectangles of all that is in it, in the order of the
/// tree: `290x20: 0,0 90x20; 100,0 90x20`.
inline std::string written(const Placement& placement) {
    std::ostringstream out;
    out << sizeOf(placement.front().bounds);
    for (std::size_t i = 1; i < placement.size(); ++i)
        out << (i == 1 ? ": " : "; ") << written(placement[i].bounds);
    return out.str();
}

/// `messages` as lines `error(2,5): text`.
inline std::string written(const Messages& messages) {
    std::string lines;
    for (const Message& message : messages)
        lines += format(message, "") + '\n';
    return lines;
}

/// A layout whose dialog has `attributes` and `elements`.
inline std::string dialog(std::string_view attributes, std::string_view elements) {
    return "layout Test { view dialog(" + std::string(attributes) + ") { " + std::string(elements) +
           " } }";
}

/// The rectangles that `text` gives, or what is wrong with it.
inline std::string placed(std::string_view text, const ItemSizes& sizes = PlainSizes()) {
    const Parsed parsed = parse(text);
    return parsed.layout ? written(place(*parsed.layout, sizes)) : written(parsed.messages);
}

} // namespace NRDM::layout::tests
