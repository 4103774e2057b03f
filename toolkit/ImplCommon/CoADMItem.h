#pragma once

#include "toolkit/ImplCommon/INRDMList.h"
#include "toolkit/ImplCommon/ItemTypes.h"
#include "toolkit/ImplCommon/Notifier.h"
#include "toolkit/ImplCommon/Numbers.h"
#include "toolkit/ImplCommon/Peers.h"

#include <limits>
#include <memory>
#include <optional>
#include <string>

namespace NRDM {

/// A client's procedures for an item; null where the item is to do as its type does.
struct ItemProcedures {
    ADMItemNotifyProc notify = nullptr;
    ADMItemDrawProc draw = nullptr; ///< of user items
    ADMItemTrackProc track = nullptr;
    ADMItemDestroyProc destroy = nullptr;
};

/// The object behind an item reference: all that an item is and does, but for its window.
///
/// What code sets is never notified. What a user does (`ItemEvents`) is, along the route that
/// Notifier.h tells. An item may be destroyed by what it calls: the event in progress keeps the
/// object until it has returned.
class CoADMItem final : public ItemEvents, public std::enable_shared_from_this<CoADMItem> {
public:
    CoADMItem(CoADMDialog& dialog, int id, const ItemType& type, const Bounds& bounds);
    ~CoADMItem() = default;
    CoADMItem(const CoADMItem&) = delete;
    CoADMItem& operator=(const CoADMItem&) = delete;

    [[nodiscard]] int id() const noexcept { return id_; }
    [[nodiscard]] CoADMDialog& dialog() const noexcept { return dialog_; }
    [[nodiscard]] const ItemType& type() const noexcept { return type_; }
    [[nodiscard]] ControlKind kind() const noexcept { return type_.kind; }
    [[nodiscard]] const ItemView& view() const noexcept { return view_; }

    /// Null for types without one.
    [[nodiscard]] INRDMList* list() const noexcept { return list_.get(); }

    ItemProcedures procedures;
    ADMUserData userData = nullptr;
    ADMActionMask mask = kADMAllEventsMask; ///< of the events that reach the track procedure
    SPPluginRef plugin;                     ///< whose pictures and cursors it shows

    // Look.
    void setStyle(ADMItemStyle style);
    void setFont(ADMFont font);
    void setJustify(ADMJustify justify);
    void setPictures(const PictureIds& pictures);
    void setCursor(int cursor);
    void setTip(std::string tip);
    [[nodiscard]] const std::string& tip() const noexcept { return tip_; }
    void enableTip(bool enabled);
    [[nodiscard]] bool isTipEnabled() const noexcept { return tipEnabled_; }
    /// Tells the item, unless its dialog is still being made.
    void setBounds(const Bounds& bounds);
    /// Does Enter press it?
    void markDefault(bool isDefault);

    // State.
    void show(bool shown);
    void enable(bool enabled);
    /// Gives it the keyboard, or takes that away.
    void activate(bool active);
    [[nodiscard]] bool isActive() const;
    /// An unknown item has no single value: a box in its third state, an empty field. Any value
    /// makes it known.
    void setKnown(bool known);

    // Text: a caption, or the contents of a field while they are typed. The text of a field with a
    // number is that of the number.
    void setText(std::string text);
    [[nodiscard]] const std::string& text() const;
    void setMaximumLength(int characters);
    void selectAll();

    // Number. Values and limits are 32-bit reals, as the interface has them.
    void setForm(const NumberForm& form);
    /// What `text` means here; nothing when it cannot be read.
    [[nodiscard]] std::optional<double> numberIn(const std::string& text) const;
    [[nodiscard]] const NumberForm& form() const noexcept { return form_; }
    /// Within the limits. A plain edit becomes a field with a number.
    void setValue(float value);
    [[nodiscard]] float value() const noexcept { return value_; }
    void setLowest(float lowest);
    [[nodiscard]] float lowest() const noexcept { return lowest_; }
    void setHighest(float highest);
    [[nodiscard]] float highest() const noexcept { return highest_; }
    void setSmallIncrement(float increment);
    void setLargeIncrement(float increment);
    [[nodiscard]] float smallIncrement() const;
    [[nodiscard]] float largeIncrement() const;
    [[nodiscard]] bool isOn() const noexcept { return value_ != 0; }

    /// Tells a change the way that Notifier.h describes.
    void notify(const char* type);
    /// What an item does by itself when it is told a change.
    void handle(CoADMNotifier& notifier);

    /// Of its list.
    void listChanged();

    /// Drops what is typed, without a word.
    void dropTyped();
    [[nodiscard]] bool hasTyped() const noexcept { return view_.typed.has_value(); }

    void attach(std::unique_ptr<ItemPeer> peer) { peer_ = std::move(peer); }
    [[nodiscard]] ItemPeer* peer() const noexcept { return peer_.get(); }
    /// Calls the destroy procedure and takes the window away; the object is of no more use.
    void close();
    [[nodiscard]] bool isClosed() const noexcept { return closed_; }

    // ItemEvents
    void pressed() override;
    void clicked() override;
    void typed(const std::string& text) override;
    bool commit() override;
    void revert() override;
    void step(int steps, bool large, Phase phase) override;
    void slide(double value, Phase phase) override;
    void choose(int entry) override;
    void activated(bool active) override;
    void draw(CoADMDrawer& drawer) override;
    bool track(const TrackInput& input) override;

private:
    /// Keeps the item and its dialog until an event has been dealt with.
    struct Keeper;

    void changed(Aspect aspects);
    void setLook(int& member, int value);
    [[nodiscard]] bool isRefused() const; ///< Is the user kept from it?
    void makeNumeric();
    void refreshValue();
    void refreshText();
    void switchOthersOff();
    [[nodiscard]] std::optional<float> typedValue() const;
    bool commitText(const std::string& text);
    bool commitNumber(const std::string& text);
    void refuse();
    [[nodiscard]] float within(double value) const; ///< the limits
    void changeTo(float value, Phase phase);

    CoADMDialog& dialog_;
    int id_;
    const ItemType& type_;
    ItemView view_;
    std::string tip_;
    bool tipEnabled_ = true;
    std::unique_ptr<INRDMList> list_;
    std::unique_ptr<ItemPeer> peer_;
    bool closed_ = false;

    NumberForm form_;
    bool numeric_;
    float value_ = 0;
    float lowest_ = std::numeric_limits<float>::lowest();
    float highest_ = std::numeric_limits<float>::max();
    std::optional<float> smallIncrement_; ///< else the customary one of its unit
    std::optional<float> largeIncrement_;

    std::optional<float> valueBefore_; ///< what a change in progress started from
};

} // namespace NRDM
