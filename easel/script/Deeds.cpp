#include "easel/script/Deeds.h"

#include "easel/core/Text.h"
#include "easel/script/Dialogs.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace easel::script {
namespace {

using facetta::door::Key;
using facetta::door::Modifiers;

constexpr int kMostTimes = 1000;

std::string inQuotes(const std::string& text) { return '"' + text + '"'; }

// The panel of the host, and what the plug-in shows in it

AIPanelRef hostPanel(Player& player) {
    const AIPanelRef panel = player.host().panels.all().findIf([](const Panel&) { return true; });
    if (panel == nullptr) throw SessionError("no plug-in has a panel");
    return panel;
}

/// Panel or dialog as it can be seen.
Dialog& seen(Player& player, Where where) {
    if (where == Where::Panel) static_cast<void>(hostPanel(player));
    Dialog* const dialog = where == Where::Panel ? panelDialog(player.host()) : modalDialog();
    if (dialog == nullptr)
        throw SessionError(where == Where::Panel ? "the panel is empty" : "no dialog is open");
    return *dialog;
}

bool isShown(Player& player) { return player.host().panels.at(hostPanel(player)).shown != 0; }

/// Panel or dialog as it can be used.
Dialog& usable(Player& player, Where where) {
    Dialog& dialog = seen(player, where);
    if (where == Where::Panel && !isShown(player)) throw SessionError("the panel is hidden");
    return dialog;
}

// Items

/// An item as a script names it.
struct ItemName {
    Word word;

    [[nodiscard]] std::string text() const {
        return word.quoted ? "item " + inQuotes(word.text) : "item " + word.text;
    }
    [[nodiscard]] bool means(const SeenItem& item) const {
        return word.quoted ? item.text == word.text : std::to_string(item.id) == word.text;
    }
};

ItemName readItem(Arguments& arguments) {
    ItemName item{arguments.word("item")};
    const bool isNumber = item.word.text.find_first_not_of("0123456789") == std::string::npos;
    if (item.word.quoted || (isNumber && !item.word.text.empty())) return item;
    throw Mistake(inQuotes(item.word.text) +
                  " is no item; one goes by its number, or by its text between quotes");
}

SeenItem find(const Dialog& dialog, const ItemName& name) {
    const std::vector<SeenItem> items = dialog.items();
    const auto fits = [&](const SeenItem& item) { return name.means(item); };
    // If two have the same text, the visible one is meant.
    auto found =
        std::ranges::find_if(items, [&](const SeenItem& item) { return fits(item) && item.shown; });
    if (found == items.end()) found = std::ranges::find_if(items, fits);
    if (found == items.end()) throw SessionError("there is no " + name.text());
    return *found;
}

/// The item, if a user could do anything with it.
SeenItem usable(const Dialog& dialog, const ItemName& name) {
    const SeenItem item = find(dialog, name);
    if (!item.shown) throw SessionError(name.text() + " cannot be seen");
    if (!item.enabled) throw SessionError(name.text() + " is disabled");
    return item;
}

// Deeds with items

/// The work of a deed with an item of `dialog`. Other work of the host waits until it is done.
template <typename Work> Deed withItem(const ItemName& name, Work work) {
    return [=](Player& player, Where where) {
        Dialog& dialog = usable(player, where);
        work(player, dialog, usable(dialog, name));
        player.host().idle();
    };
}

struct KeyName {
    const char* name;
    Key key;
};
constexpr KeyName kKeys[] = {
    {"enter", Key::Enter},        {"tab", Key::Tab},     {"escape", Key::Escape},
    {"space", Key::Space},        {"up", Key::Up},       {"down", Key::Down},
    {"left", Key::Left},          {"right", Key::Right}, {"page-up", Key::PageUp},
    {"page-down", Key::PageDown}, {"home", Key::Home},   {"end", Key::End}};

bool isLetter(Key key) { return static_cast<unsigned>(key) >= 'A'; }

/// A key by its name, or a letter.
Key readKeyName(Arguments& arguments) {
    const std::string name = arguments.text("key");
    std::string known;
    for (const KeyName& each : kKeys) {
        if (name == each.name) return each.key;
        known += std::string(each.name) + ", ";
    }
    const char letter = name.size() == 1 ? name.front() : ' ';
    if (letter >= 'a' && letter <= 'z') return static_cast<Key>(letter - 'a' + 'A');
    throw Mistake("there is no key " + inQuotes(name) + "; keys are " + known +
                  "and with alt a letter");
}

void press(Player& player, Dialog& dialog, Key key) {
    const Modifiers modifiers{player.isHeld(kShiftKey), player.isHeld(kAltKey)};
    if (isLetter(key) && !modifiers.alt) throw SessionError("a letter is a key only with alt");
    if (!dialog.press(key, modifiers)) throw SessionError("the keyboard is not in the panel");
}

Deed readClick(Arguments& arguments) {
    const ItemName name = readItem(arguments);
    return withItem(name, [=](Player&, Dialog& dialog, const SeenItem& item) {
        if (item.position) throw SessionError(name.text() + " is a slider; \"slide\" moves it");
        dialog.click(item.id);
    });
}

Deed readType(Arguments& arguments) {
    const ItemName name = readItem(arguments);
    const std::string text = arguments.text("text");
    std::optional<Key> key;
    if (arguments.take("then")) key = readKeyName(arguments);
    return withItem(name, [=](Player& player, Dialog& dialog, const SeenItem& item) {
        dialog.click(item.id);
        if (!dialog.type(text)) throw SessionError(name.text() + " is no field, nor its label");
        if (key) press(player, dialog, *key);
    });
}

Deed readSpin(Arguments& arguments) {
    constexpr const char* kDirections[] = {"down", "up"};
    const ItemName name = readItem(arguments);
    const bool up = arguments.choice("direction", kDirections) == 1;
    const int times = arguments.atEnd() ? 1 : arguments.whole("number of clicks", 1, kMostTimes);
    return withItem(name, [=](Player& player, Dialog& dialog, const SeenItem& item) {
        for (int i = 0; i < times; ++i)
            if (!dialog.spin(item.id, up, player.isHeld(kShiftKey)))
                throw SessionError(name.text() + " has no arrows");
    });
}

Deed readSlide(Arguments& arguments) {
    const ItemName name = readItem(arguments);
    const double value = arguments.number("value");
    const int moves = arguments.take("in") ? arguments.whole("number of moves", 1, kMostTimes) : 1;
    return withItem(name, [=](Player&, Dialog& dialog, const SeenItem& item) {
        if (!dialog.slide(item.id, value, moves)) throw SessionError(name.text() + " is no slider");
    });
}

Deed readChoose(Arguments& arguments) {
    const ItemName name = readItem(arguments);
    const std::string entry = arguments.text("entry");
    return withItem(name, [=](Player&, Dialog& dialog, const SeenItem& item) {
        if (!dialog.choose(item.id, entry))
            throw SessionError(name.text() + " has no entry " + inQuotes(entry) +
                               " that can be chosen");
    });
}

Deed readKey(Arguments& arguments) {
    const Key key = readKeyName(arguments);
    const int times = arguments.atEnd() ? 1 : arguments.whole("number of taps", 1, kMostTimes);
    return [=](Player& player, Where where) {
        // A tap may close the dialog, so the next one looks it up again.
        for (int i = 0; i < times; ++i)
            press(player, usable(player, where), key);
        player.host().idle();
    };
}

// Deeds with the whole

/// Does something with the host's panel.
template <auto Do, auto Value> Deed withPanel(Arguments&) {
    return [](Player& player, Where) {
        (player.host().panels.*Do)(hostPanel(player), Value);
        player.host().idle();
    };
}

/// The states that the plug-in gives its panel, as the host counts them.
constexpr ai::int16 kCompact = 1;
constexpr ai::int16 kFull = 2;

Deed readClose(Arguments&) {
    return [](Player& player, Where where) {
        Dialog& dialog = usable(player, where);
        if (where == Where::Dialog)
            dialog.clickCloseBox();
        else
            player.host().panels.show(hostPanel(player), false);
        player.host().idle();
    };
}

/// Null if the menu has no such entry.
const FlyoutItem* findEntry(const FlyoutMenu& menu, const std::string& text) {
    const auto found = std::ranges::find_if(menu.items, [&](const FlyoutItem& item) {
        return !item.isSeparator && utf8FromUtf32(item.text) == text;
    });
    return found != menu.items.end() ? &*found : nullptr;
}

const FlyoutMenu& openFlyout(Player& player) {
    static_cast<void>(usable(player, Where::Panel));
    const AIPanelRef panel = hostPanel(player);
    if (player.host().panels.at(panel).flyout == nullptr)
        throw SessionError("the panel has no flyout menu");
    return player.host().panels.openFlyout(panel);
}

Deed readFlyout(Arguments& arguments) {
    return [text = arguments.text("entry")](Player& player, Where) {
        const FlyoutItem* const entry = findEntry(openFlyout(player), text);
        const ai::uint32 id = entry != nullptr && entry->enabled != 0 ? entry->id : 0;
        player.host().panels.chooseFromFlyout(hostPanel(player), id); // 0: the menu closes
        player.host().idle();
        if (entry == nullptr) throw SessionError("the flyout menu has no entry " + inQuotes(text));
        if (id == 0) throw SessionError("the entry " + inQuotes(text) + " is disabled");
    };
}

constexpr DeedRow kDeeds[] = {
    {"click", "ITEM", "Clicks on the item: its number, or its text between quotes", readClick},
    {"type", "ITEM TEXT [then KEY]",
     "Clicks on the field or its label, types over all that is there, and strikes KEY; without one "
     "nothing is taken over yet",
     readType},
    {"spin", "ITEM up|down [COUNT]",
     "Clicks on the arrow beside the field, COUNT times; with shift these are large steps",
     readSpin},
    {"slide", "ITEM VALUE [in COUNT]",
     "Drags the slider to the pixel nearest to VALUE, in COUNT moves, or one", readSlide},
    {"choose", "ITEM ENTRY",
     "Opens the list that the item has and clicks on the entry of that text", readChoose},
    {"key", "KEY [COUNT]",
     "Strikes a key where the keyboard is: enter, tab, escape, space, up, down, left, right, "
     "page-up, page-down, home, end; with alt a letter is an access key",
     readKey},
    {"close", "", "Clicks on the close box", readClose},
    {"show", "", "Has the host show the panel, as its workspace does",
     withPanel<&Panels::show, true>, Where::Panel},
    {"hide", "", "Has the host hide it", withPanel<&Panels::show, false>, Where::Panel},
    {"collapse", "", "Has the host make it compact, as its arrow in the title does",
     withPanel<&Panels::setState, kCompact>, Where::Panel},
    {"expand", "", "Has the host make it full", withPanel<&Panels::setState, kFull>, Where::Panel},
    {"flyout", "ENTRY", "Opens the flyout menu and chooses the entry of that text", readFlyout,
     Where::Panel},
};

// What is seen of an item

/// The number that a text begins with.
std::optional<double> numberIn(const std::string& text) {
    double number = 0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), number);
    return code == std::errc{} ? std::optional(number) : std::nullopt;
}

/// Of a slider its place, of anything else the number that is shown.
std::optional<double> valueOf(const SeenItem& item) {
    return item.position ? item.position : numberIn(item.text);
}

/// The two words for something that either is or is not.
template <typename Seen> struct StateWords {
    const char* yes;
    const char* no;
    bool Seen::*is;
};
template <typename Seen> using WantedStates = std::vector<std::pair<const StateWords<Seen>*, bool>>;

void note(Finding& finding, bool met, const std::string& wanted, const std::string& found) {
    finding.met = finding.met && met;
    finding.wanted += (finding.wanted.empty() ? "" : " ") + wanted;
    finding.found += (finding.found.empty() ? "" : " ") + found;
}

template <typename Seen>
void noteStates(Finding& finding, const WantedStates<Seen>& wanted, const Seen& seen) {
    for (const auto& [words, yes] : wanted) {
        const bool is = seen.*words->is;
        note(finding, is == yes, yes ? words->yes : words->no, is ? words->yes : words->no);
    }
}

constexpr StateWords<SeenItem> kStates[] = {{"on", "off", &SeenItem::on},
                                            {"enabled", "disabled", &SeenItem::enabled},
                                            {"shown", "hidden", &SeenItem::shown},
                                            {"focused", "unfocused", &SeenItem::focused}};

struct WantedItem {
    std::optional<std::string> text;
    std::optional<std::string> tip;
    std::optional<double> value;
    double tolerance = 0;
    WantedStates<SeenItem> states;
};

WantedItem readWantedItem(Arguments& arguments) {
    WantedItem wanted;
    const auto takeState = [&] {
        for (const StateWords<SeenItem>& words : kStates) {
            for (const bool yes : {true, false}) {
                if (!arguments.take(yes ? words.yes : words.no)) continue;
                wanted.states.emplace_back(&words, yes);
                return true;
            }
        }
        return false;
    };
    do {
        if (arguments.take("text")) {
            wanted.text = arguments.text("text");
        } else if (arguments.take("tip")) {
            wanted.tip = arguments.text("tip");
        } else if (arguments.take("value")) {
            wanted.value = arguments.number("value");
            if (arguments.take("within")) wanted.tolerance = arguments.number("tolerance");
        } else if (!takeState()) {
            throw Mistake(inQuotes(arguments.text("state")) +
                          " is nothing to see of an item; choose of text, value, tip, on, off, "
                          "enabled, disabled, shown, hidden, focused, unfocused");
        }
    } while (!arguments.atEnd());
    return wanted;
}

Finding compare(const WantedItem& wanted, const SeenItem& item) {
    constexpr double kRounding = 1e-9;
    Finding finding{true, {}, {}};
    if (wanted.text)
        note(finding, item.text == *wanted.text, "text " + inQuotes(*wanted.text),
             "text " + inQuotes(item.text));
    if (wanted.value) {
        const std::optional<double> value = valueOf(item);
        note(finding, value && std::abs(*value - *wanted.value) <= wanted.tolerance + kRounding,
             "value " + svg::formatNumber(*wanted.value),
             value ? "value " + svg::formatNumber(*value) : "no value");
    }
    if (wanted.tip)
        note(finding, item.tip == *wanted.tip, "tip " + inQuotes(*wanted.tip),
             "tip " + inQuotes(item.tip));
    noteStates(finding, wanted.states, item);
    return finding;
}

// What is seen of menus

struct MenuState {
    bool enabled = false;
    bool checked = false;
};

constexpr StateWords<MenuState> kMenuWords[] = {{"enabled", "disabled", &MenuState::enabled},
                                                {"checked", "unchecked", &MenuState::checked}};

/// A look at an entry by its text; nothing when there is none.
using Look = std::optional<MenuState> (*)(Player&, const std::string&);

Check readEntryState(Arguments& arguments, Look look) {
    const std::string text = arguments.text("entry");
    WantedStates<MenuState> wanted;
    const bool absent = arguments.take("absent");
    while (!absent && (wanted.empty() || !arguments.atEnd())) {
        constexpr const char* kWords[] = {"enabled", "disabled", "checked", "unchecked"};
        const std::size_t word = arguments.choice("state of an entry", kWords);
        wanted.emplace_back(&kMenuWords[word / 2], word % 2 == 0);
    }
    return [=](Player& player) -> Finding {
        const std::optional<MenuState> state = look(player, text);
        if (!state || absent)
            return {!state && absent, absent ? "no entry " + inQuotes(text) : "it in the menu",
                    state ? "one" : "no entry " + inQuotes(text)};
        Finding finding{true, {}, {}};
        noteStates(finding, wanted, *state);
        return finding;
    };
}

} // namespace

std::span<const DeedRow> deeds() { return kDeeds; }

Check readPanelState(Arguments& arguments) {
    constexpr const char* kStateNames[] = {"full", "compact", "hidden"};
    const std::string wanted = kStateNames[arguments.choice("state of a panel", kStateNames)];
    std::string size;
    if (!arguments.atEnd()) {
        const int width = arguments.whole("width", 0, 20'000);
        size = ' ' + std::to_string(width) + ' ' +
               std::to_string(arguments.whole("height", 0, 20'000));
    }
    return [=](Player& player) -> Finding {
        const Panel& panel = player.host().panels.at(hostPanel(player));
        const char* const state = panel.shown == 0          ? "hidden"
                                  : panel.state == kCompact ? "compact"
                                                            : "full";
        const std::string found = std::string(state) + ' ' +
                                  std::to_string(std::lround(panel.size.width)) + ' ' +
                                  std::to_string(std::lround(panel.size.height));
        const bool met = size.empty() ? state == wanted : found == wanted + size;
        return {met, wanted + size, found};
    };
}

Check readDialogTitle(Arguments& arguments) {
    constexpr const char* kNone = "none";
    const std::string wanted = arguments.take(kNone) ? kNone : inQuotes(arguments.text("title"));
    return [wanted](Player&) -> Finding {
        const Dialog* const dialog = modalDialog();
        const std::string found = dialog != nullptr ? inQuotes(dialog->title()) : kNone;
        return {found == wanted, wanted, found};
    };
}

template <Where place> Check readItemState(Arguments& arguments) {
    const ItemName name = readItem(arguments);
    return [name, wanted = readWantedItem(arguments)](Player& player) {
        SeenItem item = find(seen(player, place), name);
        if (place == Where::Panel) item.shown = item.shown && isShown(player);
        return compare(wanted, item);
    };
}
template Check readItemState<Where::Panel>(Arguments& arguments);
template Check readItemState<Where::Dialog>(Arguments& arguments);

Check readFlyoutEntry(Arguments& arguments) {
    return readEntryState(
        arguments, [](Player& player, const std::string& text) -> std::optional<MenuState> {
            const FlyoutItem* const entry = findEntry(openFlyout(player), text);
            std::optional<MenuState> state;
            if (entry != nullptr)
                state =
                    MenuState{entry->enabled != 0, entry->mark != AIPanelFlyoutMenuItemMark::None};
            player.host().panels.chooseFromFlyout(hostPanel(player), 0);
            return state;
        });
}

Check readMenuEntry(Arguments& arguments) {
    return readEntryState(
        arguments, [](Player& player, const std::string& name) -> std::optional<MenuState> {
            player.host().openMenus();
            const AIMenuItemHandle item = menuItemNamed(player.host().menus, name);
            if (item == nullptr) return std::nullopt;
            const MenuItem& seenItem = player.host().menus.items.at(item);
            return MenuState{seenItem.enabled, seenItem.checked};
        });
}

} // namespace easel::script
