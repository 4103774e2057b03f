#include "toolkit/ImplCommon/CoADMItem.h"

#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Exceptions.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace NRDM {
namespace {

/// Of a slider, until a client sets its own.
constexpr float kSliderLowest = 0;
constexpr float kSliderHighest = 100;

float requireNumber(float value) {
    if (std::isnan(value)) throw NRDMParameterException();
    return value;
}

std::vector<EntryView> viewOf(const INRDMList& list) {
    std::vector<EntryView> entries;
    for (int i = 0; i < list.count(); ++i) {
        const INRDMEntry& entry = *list.at(i);
        entries.push_back(
            {entry.text(), entry.isEnabled(), entry.isSeparator(), entry.isChecked()});
    }
    return entries;
}

} // namespace

CoADMItem::CoADMItem(CoADMDialog& dialog, int id, const ItemType& type, const Bounds& bounds)
    : plugin(dialog.plugin()), dialog_(dialog), id_(id), type_(type),
      numeric_(isField(type.kind) && type.kind >= ControlKind::SpinEdit) {
    view_.kind = type.kind;
    view_.bounds = bounds;
    view_.hasPicture = type.hasPicture;
    if (hasList(type.kind)) list_ = std::make_unique<INRDMList>(*this);
    if (type.kind == ControlKind::Slider) {
        lowest_ = kSliderLowest;
        highest_ = kSliderHighest;
    }
    refreshValue();
}

void CoADMItem::changed(Aspect aspects) {
    if (peer_) peer_->changed(aspects);
}

void CoADMItem::setLook(int& member, int value) {
    if (member == value) return;
    member = value;
    changed(Aspect::Look);
}

void CoADMItem::setStyle(ADMItemStyle style) {
    setLook(view_.style, style);
    if (kind() == ControlKind::Edit && (style & kADMNumericEditStyle) != 0) makeNumeric();
}

void CoADMItem::setFont(ADMFont font) { setLook(view_.font, font); }

void CoADMItem::setJustify(ADMJustify justify) {
    if (justify < 0 || justify > 2) throw NRDMParameterException();
    setLook(view_.justify, justify);
}

void CoADMItem::setPictures(const PictureIds& pictures) {
    if (view_.pictures == pictures) return;
    view_.pictures = pictures;
    changed(Aspect::Look);
}

void CoADMItem::setCursor(int cursor) { setLook(view_.cursor, cursor); }

void CoADMItem::setTip(std::string tip) {
    tip_ = std::move(tip);
    enableTip(tipEnabled_);
}

void CoADMItem::enableTip(bool enabled) {
    tipEnabled_ = enabled;
    view_.tip = enabled && dialog_.dialogs().areTipsEnabled() ? tip_ : std::string();
    changed(Aspect::Tip);
}

void CoADMItem::setBounds(const Bounds& bounds) {
    if (view_.bounds == bounds) return;
    view_.bounds = bounds;
    changed(Aspect::Bounds);
    if (dialog_.isMade()) notify(kADMBoundsChangedNotifier);
}

void CoADMItem::markDefault(bool isDefault) {
    if (view_.isDefault == isDefault) return;
    view_.isDefault = isDefault;
    changed(Aspect::Look);
}

void CoADMItem::show(bool shown) {
    if (view_.visible == shown) return;
    view_.visible = shown;
    changed(Aspect::Visible);
}

void CoADMItem::enable(bool enabled) {
    if (view_.enabled == enabled) return;
    view_.enabled = enabled;
    changed(Aspect::Enabled);
}

void CoADMItem::activate(bool active) {
    if (!active) return dialog_.setActive(nullptr);
    if (!dialog_.canFocus(*this)) return;
    dialog_.setActive(this);
    if (peer_) peer_->focus();
}

bool CoADMItem::isActive() const { return dialog_.active() == this; }

void CoADMItem::setKnown(bool known) {
    if (view_.known == known) return;
    view_.known = known;
    dropTyped();
    refreshText();
    changed(Aspect::Look | Aspect::Text | Aspect::Value);
}

void CoADMItem::setText(std::string text) {
    const bool shown = view_.known && !typed_ && view_.text == text;
    typed_.reset();
    if (numeric_) {
        // A text that is no number leaves the number as it is.
        if (const auto value = dialog_.dialogs().numberIn(*this, text))
            setValue(static_cast<float>(*value));
        return;
    }
    if (shown) return;
    view_.text = std::move(text);
    view_.known = true;
    changed(Aspect::Text);
}

const std::string& CoADMItem::text() const { return typed_ ? *typed_ : view_.text; }

void CoADMItem::setMaximumLength(int characters) {
    if (characters < 0) throw NRDMParameterException();
    setLook(view_.maximumLength, characters);
}

void CoADMItem::selectAll() {
    if (peer_) peer_->selectAll();
}

void CoADMItem::makeNumeric() {
    if (numeric_ || !isField(kind())) return;
    numeric_ = true;
    refreshText();
    changed(Aspect::Text);
}

void CoADMItem::setForm(const NumberForm& form) {
    if (!isUnit(form.units) || form.precision < kADMIntegerNumeric ||
        form.precision > kMostDecimals)
        throw NRDMParameterException();
    form_ = form;
    refreshValue();
    refreshText();
    changed(Aspect::Text | Aspect::Value);
}

void CoADMItem::setValue(float value) {
    value_ = within(requireNumber(value));
    const bool shown = view_.known && !typed_ && view_.value == value_;
    const std::string shownText = view_.text;
    view_.known = true;
    typed_.reset();
    makeNumeric();
    if (kind() == ControlKind::RadioButton && isOn()) switchOthersOff();
    refreshValue();
    refreshText();
    // Panels set all their values whenever one may have changed: most need no painting.
    if (!shown || view_.text != shownText) changed(Aspect::Text | Aspect::Value);
}

float CoADMItem::within(double value) const {
    const double highest = std::max(lowest_, highest_);
    return static_cast<float>(std::clamp<double>(value, lowest_, highest));
}

void CoADMItem::setLowest(float lowest) {
    lowest_ = requireNumber(lowest);
    makeNumeric();
    refreshValue();
    changed(Aspect::Value);
}

void CoADMItem::setHighest(float highest) {
    highest_ = requireNumber(highest);
    makeNumeric();
    refreshValue();
    changed(Aspect::Value);
}

void CoADMItem::setSmallIncrement(float increment) {
    smallIncrement_ = requireNumber(increment);
    refreshValue();
}

void CoADMItem::setLargeIncrement(float increment) {
    largeIncrement_ = requireNumber(increment);
    refreshValue();
}

float CoADMItem::smallIncrement() const {
    return smallIncrement_.value_or(dialog_.dialogs().incrementsOf(form_.units).small);
}

float CoADMItem::largeIncrement() const {
    return largeIncrement_.value_or(dialog_.dialogs().incrementsOf(form_.units).large);
}

void CoADMItem::refreshValue() {
    view_.value = value_;
    view_.lowest = lowest_;
    view_.highest = highest_;
    view_.smallIncrement = smallIncrement();
    view_.largeIncrement = largeIncrement();
}

void CoADMItem::refreshText() {
    if (!numeric_) return;
    const auto& customs = dialog_.dialogs().customs;
    view_.text = view_.known ? textOf(value_, form_, customs) : std::string();
}

void CoADMItem::switchOthersOff() {
    for (CoADMItem* const other : dialog_.groupOf(*this)) {
        if (other == this || !other->isOn()) continue;
        other->value_ = 0;
        other->refreshValue();
        other->changed(Aspect::Value);
    }
}

void CoADMItem::listChanged() {
    const INRDMEntry* const chosen = list_->chosen();
    view_.entries = viewOf(*list_);
    view_.chosen = chosen != nullptr ? chosen->index() : -1;
    changed(Aspect::Entries);
    if (id_ == kADMMenuItemID) dialog_.menuChanged();
}

void CoADMItem::dropTyped() {
    if (!typed_) return;
    typed_.reset();
    changed(Aspect::Text);
}

void CoADMItem::notify(const char* type) {
    const auto self = shared_from_this();
    const auto dialog = dialog_.shared_from_this();
    CoADMNotifier notifier(dialog_, this, type);
    if (procedures.notify != nullptr)
        procedures.notify(this, &notifier);
    else
        handle(notifier);
}

void CoADMItem::handle(CoADMNotifier& notifier) {
    if (std::exchange(notifier.handledByItem, true)) return;
    if (kind() == ControlKind::RadioButton && isOn() && notifier.type() == kADMUserChangedNotifier)
        switchOthersOff();
    dialog_.receive(notifier);
}

void CoADMItem::close() {
    if (std::exchange(closed_, true)) return;
    struct Ending { // whatever the client's procedure throws, the window goes
        CoADMItem& item;
        ~Ending() {
            if (item.isActive()) item.dialog_.setActive(nullptr);
            item.peer_.reset();
        }
    };
    const Ending ending{*this};
    if (procedures.destroy != nullptr) procedures.destroy(this);
}

} // namespace NRDM
