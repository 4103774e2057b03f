#pragma once

/// Between the model of dialogs and items and the windows that show them. The model decides
/// everything: values, limits, groups, focus, what is notified. A peer shows what its view says and
/// reports what the user does; it keeps nothing that the model knows.
///
/// 1. The model asks `Peers` for a dialog, and the dialog for one peer an item. A peer reads its
///    view whenever it draws; the view and the events live longer than the peer.
/// 2. After a change the model calls `changed` with what it was. A peer never reports a change that
///    came from the model.
/// 3. The user acts, the peer calls an event. The model may change or destroy items meanwhile, the
///    peer's own included, and the dialog; peers take care of that.
///
/// Lengths are units of the dialog, y downwards; texts are UTF-8. Peers throw
/// `NRDMResourceException` when the system has no window to give; an event may throw anything,
/// which is reported to `Peers::fail` and goes no further.

#include "host/Handles.h"
#include "host/Types.h"
#include "toolkit/layout/Layout.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace NRDM {

struct Place {
    int x = 0;
    int y = 0;
};

/// The controls there are. Text and picture variants are one kind.
enum class ControlKind {
    PushButton,
    CheckBox,
    RadioButton,
    Label,
    MultiLineLabel,
    Edit,
    EditPopup, ///< with a list beside it
    SpinEdit,
    SpinEditPopup, ///< with a list beside it
    EditSlider,    ///< an arrow beside it opens a slider
    SpinEditSlider,
    Frame,
    Slider,
    ListBox,
    PopupList,
    PopupMenu,
    Group, ///< nothing to see
    User,  ///< drawn by `ItemEvents::draw`
};

/// Resources of the item's plug-in, numbered as for a light interface; 0 for none. A state without
/// a picture shows the normal one.
struct PictureIds {
    int normal = 0;
    int selected = 0;
    int disabled = 0;
    int rollover = 0;

    bool operator==(const PictureIds&) const = default;
};

struct EntryView {
    std::string text;
    bool enabled = true;
    bool separator = false;
    bool checked = false;
};

/// What a control shows.
struct ItemView {
    ControlKind kind = ControlKind::Label;
    int id = 0; ///< the client's number of it
    Bounds bounds;
    std::string text; ///< caption, or contents of a field; "&" marks the access key of a caption
    /// Into a field by the user, and not taken over yet.
    std::optional<std::string> typed;
    std::string tip; ///< empty for none
    int font = 0;    ///< ADM's number
    int justify = 0; ///< 0 left, 1 centre, 2 right
    int style = 0;   ///< ADM's bits for the kind
    int cursor = 0;  ///< ADM's number, 0 for the kind's own
    bool visible = true;
    bool enabled = true;
    bool known = true;
    bool hasPicture = false; ///< shows `pictures` instead of `text`
    bool isDefault = false;  ///< Enter presses this button
    PictureIds pictures;
    double value = 0; ///< of a slider; for boxes, radio buttons: not 0 is on
    double lowest = 0;
    double highest = 100;
    double smallIncrement = 1;
    double largeIncrement = 10;
    int maximumLength = 256; ///< characters that may be typed
    std::vector<EntryView> entries;
    int chosen = -1; ///< position of the entry shown, or -1
};

/// What of a view has changed, to be combined.
enum class Aspect : unsigned {
    Text = 1,
    Value = 2,
    Entries = 4,
    Enabled = 8,
    Visible = 16,
    Bounds = 32,
    Look = 64, ///< font, style, justification, pictures, known, default
    Tip = 128,
};
constexpr Aspect operator|(Aspect a, Aspect b) {
    return static_cast<Aspect>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool has(Aspect set, Aspect one) {
    return (static_cast<unsigned>(set) & static_cast<unsigned>(one)) != 0;
}

enum class Phase { InProgress, Complete };

/// Keys that mean something to a dialog or to a field.
enum class DialogKey { Tab, BackTab, Enter, Escape, Previous, Next, Access };

/// Input for track procedures: ADM's action and modifier bits.
struct TrackInput {
    int action = 0;
    unsigned modifiers = 0;
    Place place; ///< from the top left of the item or dialog
};

/// What stands behind ADM's drawer references, lent for the time of one call.
class CoADMDrawer;

/// What a user does to an item.
class ItemEvents {
public:
    /// The mouse goes down on a button, before the keyboard leaves the field that is typed in.
    virtual void pressed() = 0;

    /// A push button was pressed and released, a box or radio button clicked, or chosen by a key.
    virtual void clicked() = 0;

    /// The text of a field was altered by a key; it is not taken over yet.
    virtual void typed(const std::string& text) = 0;

    /// The field is done with: Enter, Tab, loss of focus. False when the text was refused and the
    /// focus should stay.
    virtual bool commit() = 0;

    /// The last good text comes back.
    virtual void revert() = 0;

    /// Arrows of a spin edit, arrow and page keys, the wheel: up is positive. A held arrow reports
    /// steps in progress and one completion with no step when it is let go.
    virtual void step(int steps, bool large, Phase phase) = 0;

    /// A slider was moved to `value`, not yet rounded to the item's precision.
    virtual void slide(double value, Phase phase) = 0;

    virtual void choose(int entry) = 0;

    /// The focus came or went by the user's hand.
    virtual void activated(bool active) = 0;

    virtual void draw(CoADMDrawer& drawer) = 0;

    /// True when the item has a use for the event, and for a release asks for a notification.
    virtual bool track(const TrackInput& input) = 0;

protected:
    ~ItemEvents() = default;
};

class ItemPeer {
public:
    virtual ~ItemPeer() = default;

    virtual void changed(Aspect aspects) = 0;

    /// Takes the keyboard; a field selects all of its text.
    virtual void focus() = 0;
    virtual void selectAll() = 0;

    /// Marks the item for painting, and paints what is marked.
    virtual void invalidate() = 0;
    virtual void update() = 0;

    virtual void showTip(bool shown) = 0;

    /// The window itself, an HWND; null when there is none.
    [[nodiscard]] virtual void* window() const = 0;
};

enum class DialogKind { Modal, Panel, Floating };

struct DialogView {
    DialogKind kind = DialogKind::Modal;
    std::string title;
    Extent size; ///< of the client area
    int font = 0;
    bool visible = false;
    bool enabled = true;
    void* parent = nullptr; ///< the window it belongs to: a modal dialog's owner, a panel's host
    void* keyboardOwner = nullptr; ///< of a panel: gets the keyboard when nobody had it before
};

/// What a user does to a dialog.
class DialogEvents {
public:
    /// True when the key has been used. `letter` is the capital letter of an access key.
    virtual bool key(DialogKey key, char32_t letter) = 0;

    /// The close box, or Alt+F4.
    virtual void closeRequested() = 0;
    virtual void resized(Extent size) = 0;
    virtual void draw(CoADMDrawer& drawer) = 0;
    virtual void timerFired(int timer) = 0;
    virtual bool track(const TrackInput& input) = 0;

protected:
    ~DialogEvents() = default;
};

class DialogPeer {
public:
    virtual ~DialogPeer() = default;

    virtual std::unique_ptr<ItemPeer> createItem(const ItemView& view, ItemEvents& events) = 0;

    /// Takes the window away, after those of the items, and ends a loop that runs. The object may
    /// be on the stack meanwhile, and does nothing more.
    virtual void close() noexcept = 0;
    /// False once somebody else has taken the window away, as a host does with what lies in its
    /// own.
    [[nodiscard]] virtual bool isAlive() const = 0;

    /// Title, size, visible and enabled are taken from the view anew.
    virtual void changed() = 0;
    virtual void invalidate() = 0;
    virtual void invalidate(const Bounds& area) = 0;
    virtual void update() = 0;
    virtual void activate() = 0;
    /// A panel that has the keyboard gives it back to whoever had it before, as a rule the
    /// document.
    virtual void returnKeyboard() = 0;

    /// Shows the dialog with all other windows of the thread disabled, and serves events until
    /// `endModal`; whatever the events of this dialog threw comes out here.
    virtual void runModal() = 0;

    /// Lets `runModal` return once the event in progress has been dealt with. False when no loop
    /// runs.
    virtual bool endModal() = 0;

    /// `timerFired` comes every `milliseconds` until the timer is stopped.
    virtual void startTimer(int timer, int milliseconds) = 0;
    virtual void stopTimer(int timer) = 0;

    /// Pixels of the screen in a unit of the dialog.
    [[nodiscard]] virtual double pixelsInUnit() const = 0;
    /// The client area's corner on the screen, in pixels of the screen.
    [[nodiscard]] virtual Place screenCorner() const = 0;
    virtual void moveTo(Place corner) = 0;

    [[nodiscard]] virtual void* window() const = 0;
};

/// Makes peers, and answers what only the screen knows.
class Peers {
public:
    virtual ~Peers() = default;

    virtual std::unique_ptr<DialogPeer> createDialog(const DialogView& view,
                                                     DialogEvents& events) = 0;
    /// The size an item asks for.
    [[nodiscard]] virtual layout::ItemSize measure(const ItemView& view,
                                                   DialogKind where) const = 0;

    /// The height of a wrapped text of `width`.
    [[nodiscard]] virtual int heightAt(const ItemView& view, DialogKind where, int width) const = 0;

    /// Told of an exception that an event let out; called inside its handler.
    virtual void fail() noexcept = 0;
    virtual void beep() = 0;

    /// The host's colours are others now: everything open is painted anew.
    virtual void themeChanged() = 0;
};

struct Themes;

/// What the makers of windows take from the toolkit.
struct Surroundings {
    const Themes& themes;    ///< kept up to date while the peers live
    SPPluginRef plugin;      ///< whose resources hold the pictures
    void (*fail)() noexcept; ///< for `Peers::fail`
};

/// The peers of the system that the toolkit is built for.
[[nodiscard]] std::unique_ptr<Peers> systemPeers(const Surroundings& surroundings);

} // namespace NRDM
