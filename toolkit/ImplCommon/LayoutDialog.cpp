#include "toolkit/ImplCommon/LayoutDialog.h"

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Resources.h"

#include <map>
#include <string>

namespace NRDM {
namespace {

using layout::Element;
using layout::Key;
using layout::Kind;

using ItemsOfElements = std::map<const Element*, CoADMItem*>;

/// Calls `apply` with the attribute `key` as a whole number, when there is one.
template <typename Apply> void withInteger(const Element& element, Key key, Apply apply) {
    if (const auto value = integerOf(element, key)) apply(*value);
}
template <typename Apply> void withNumber(const Element& element, Key key, Apply apply) {
    if (const auto value = numberOf(element, key)) apply(static_cast<float>(*value));
}

void setLook(CoADMItem& item, const Element& element, int dialogFont) {
    withInteger(element, Key::Style, [&](int style) { item.setStyle(style); });
    item.setFont(integerOf(element, Key::Font).value_or(dialogFont));
    withInteger(element, Key::Justify, [&](int justify) { item.setJustify(justify); });
    item.setText(std::string(textOf(element, Key::Name)));
    item.setPictures({.normal = integerOf(element, Key::ImageId).value_or(0),
                      .selected = integerOf(element, Key::SelectedImageId).value_or(0),
                      .disabled = integerOf(element, Key::DisabledImageId).value_or(0),
                      .rollover = integerOf(element, Key::RolloverImageId).value_or(0)});
}

/// The value comes last, so that it is written and brought within its limits once.
void setNumber(CoADMItem& item, const Element& element) {
    NumberForm form = item.form();
    form.units = integerOf(element, Key::Units).value_or(form.units);
    form.precision = integerOf(element, Key::Precision).value_or(form.precision);
    item.setForm(form);
    withNumber(element, Key::MinValue, [&](float lowest) { item.setLowest(lowest); });
    withNumber(element, Key::MaxValue, [&](float highest) { item.setHighest(highest); });
    withNumber(element, Key::SmallIncrement, [&](float step) { item.setSmallIncrement(step); });
    withNumber(element, Key::LargeIncrement, [&](float step) { item.setLargeIncrement(step); });
    withNumber(element, Key::ItemValue, [&](float value) { item.setValue(value); });
}

void addEntries(INRDMList& list, const Element& element) {
    for (const Element& child : element.children) {
        INRDMEntry& entry = list.insert(list.count());
        withInteger(child, Key::EntryId, [&](int id) { entry.setId(id); });
        entry.makeSeparator(truthOf(child, Key::Separator).value_or(false));
        entry.setText(std::string(textOf(child, Key::Name)));
        entry.enable(truthOf(child, Key::Enabled).value_or(true));
    }
}

void createItem(CoADMDialog& dialog, const Element& element, ItemsOfElements& items) {
    CoADMItem& item = *dialog.createItem(integerOf(element, Key::ItemId).value_or(kADMUniqueItemID),
                                         itemTypeOf(element), {}, nullptr, nullptr);
    items[&element] = &item;
    setLook(item, element, dialog.view().font);
    setNumber(item, element);
    if (INRDMList* const list = item.list()) {
        withInteger(element, Key::MenuId, [&](int id) { list->setMenu(dialog.plugin(), id); });
        addEntries(*list, element);
    }
    item.enable(truthOf(element, Key::Enabled).value_or(true));
    if (const auto visible = truthOf(element, Key::Visible)) item.show(*visible);
}

void createItems(CoADMDialog& dialog, const Element& element, ItemsOfElements& items) {
    if (!itemTypeOf(element).empty()) createItem(dialog, element, items);
    for (const Element& child : element.children)
        if (child.kind != Kind::Entry) createItems(dialog, child, items);
}

/// What the screen says of the items.
class Sizes final : public layout::ItemSizes {
public:
    Sizes(CoADMDialog& dialog, const ItemsOfElements& items) : dialog_(dialog), items_(items) {}

    [[nodiscard]] layout::ItemSize measure(const Element& element) const override {
        return dialog_.dialogs().peers().measure(items_.at(&element)->view(), dialog_.view().kind);
    }

    [[nodiscard]] int heightAt(const Element& element, int width, int natural) const override {
        const ItemView& view = items_.at(&element)->view();
        if (view.kind != ControlKind::MultiLineLabel) return natural;
        return dialog_.dialogs().peers().heightAt(view, dialog_.view().kind, width);
    }

    [[nodiscard]] int titleHeight(const Element& group) const override {
        return measure(group).height;
    }

private:
    CoADMDialog& dialog_;
    const ItemsOfElements& items_;
};

} // namespace

std::optional<layout::Layout> readLayout(SPPluginRef plugin, int id) {
    const Bytes bytes = findResource(resourceLibrary(plugin), ResourceKind::Layout, id);
    if (bytes.empty()) return std::nullopt;
    const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return layout::load(text, std::to_string(id));
}

void fill(CoADMDialog& dialog, const layout::Layout& layout) {
    dialog.setTitle(std::string(textOf(layout.dialog, Key::Name)));
    withInteger(layout.dialog, Key::Font, [&](int font) { dialog.setFont(font); });
    ItemsOfElements items;
    createItems(dialog, layout.dialog, items);
    const layout::Placement placement = place(layout, Sizes(dialog, items));
    dialog.setSize(sizeOf(placement.front().bounds));
    for (const auto& [element, bounds, outset] : placement) {
        const auto found = items.find(element);
        if (found != items.end()) found->second->setBounds(bounds);
    }
}

} // namespace NRDM
