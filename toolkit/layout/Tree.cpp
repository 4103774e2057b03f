#include "toolkit/layout/Tree.h"

namespace NRDM::layout {
namespace {

template <class Type> const Type* find(const Element& element, Key key) {
    const auto found = element.attributes.find(key);
    return found == element.attributes.end() ? nullptr : std::get_if<Type>(&found->second);
}

Alignment alignment(const Element& element, Key key, Alignment fallback) {
    return static_cast<Alignment>(integerOf(element, key).value_or(static_cast<int>(fallback)));
}

} // namespace

bool operator==(const Element& a, const Element& b) {
    return a.kind == b.kind && a.attributes == b.attributes && a.children == b.children;
}

std::optional<int> integerOf(const Element& element, Key key) {
    const double* number = find<double>(element, key);
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

std::optional<double> numberOf(const Element& element, Key key) {
    const double* number = find<double>(element, key);
    return number ? std::optional(*number) : std::nullopt;
}

std::optional<bool> truthOf(const Element& element, Key key) {
    const bool* truth = find<bool>(element, key);
    return truth ? std::optional(*truth) : std::nullopt;
}

std::string_view textOf(const Element& element, Key key) {
    const std::string* text = find<std::string>(element, key);
    return text ? std::string_view(*text) : std::string_view();
}

std::optional<std::vector<int>> lengthsOf(const Element& element, Key key) {
    if (const auto single = integerOf(element, key)) return std::vector{*single};
    const auto* list = find<std::vector<double>>(element, key);
    if (!list) return std::nullopt;
    std::vector<int> lengths;
    for (const double length : *list)
        lengths.push_back(static_cast<int>(length));
    return lengths;
}

std::string_view itemTypeOf(const Element& element) {
    const KindRecord& record = recordOf(element.kind);
    if (record.role == Role::Container && textOf(element, Key::Name).empty()) return {};
    const bool picture = integerOf(element, Key::ImageId) && !record.pictureItemType.empty();
    return picture ? record.pictureItemType : record.itemType;
}

Stringing stringingOf(const Element& element) {
    const KindRecord& record = recordOf(element.kind);
    if (record.role == Role::Item || record.role == Role::Entry) return Stringing::Leaf;
    const auto placement = integerOf(element, Key::Placement);
    return placement ? static_cast<Stringing>(*placement) : record.stringing;
}

Alignment alignmentOf(const Element& element, Axis axis) {
    const Key key = axis == Axis::X ? Key::Horizontal : Key::Vertical;
    return alignment(element, key, Alignment::Default);
}

Alignment childAlignmentOf(const Element& element, Axis axis) {
    const Key key = axis == Axis::X ? Key::ChildHorizontal : Key::ChildVertical;
    return alignment(element, key, Alignment::Near);
}

} // namespace NRDM::layout
