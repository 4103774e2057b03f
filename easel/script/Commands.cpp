#include "easel/script/Commands.h"

#include "easel/core/Text.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/document/SelectedArt.h"
#include "easel/script/Deeds.h"
#include "easel/script/System.h"
#include "easel/svg/Colour.h"

#include <algorithm>

namespace easel::script {
namespace {

constexpr const char* kSwitch[] = {"off", "on"};
constexpr const char* kThemes[] = {"light", "dark"};
constexpr int kMostSteps = 100'000;

// What many commands read: nothing, or a place.

template <auto Do> Action plain(Arguments&) {
    return [](Player& player) { std::invoke(Do, player); };
}
template <auto Do> Action atPlace(Arguments& arguments) {
    return [place = arguments.place("place")](Player& player) { std::invoke(Do, player, place); };
}

// Drawings

Action readOpen(Arguments& arguments) {
    return [name = arguments.text("file")](Player& player) {
        player.session().open(player.input(name));
    };
}

Action readReopen(Arguments& arguments) {
    return [name = arguments.text("file")](Player& player) {
        player.session().open(player.output(name));
    };
}

Action readNew(Arguments& arguments) {
    const double width = arguments.number("width");
    const double height = arguments.number("height");
    if (!(width >= 1 && height >= 1 && width <= kCanvasSide && height <= kCanvasSide))
        throw Mistake("a page is 1 to 16383 points wide and high");
    return [=](Player& player) {
        const AISize size{static_cast<AIReal>(width), static_cast<AIReal>(height)};
        player.host().open(std::make_unique<Document>(player.host().session, size));
    };
}

Action readSave(Arguments& arguments) {
    return [name = arguments.text("file")](Player& player) {
        static_cast<void>(player.document());
        player.session().save(player.output(name));
    };
}

void close(Player& player) { player.host().close(player.document()); }

Action readSwitch(Arguments& arguments) {
    constexpr int kMostDrawings = 1'000'000; // how many are open is known when it is done
    const int number = arguments.whole("number of a drawing", 1, kMostDrawings);
    return [number](Player& player) {
        Host& host = player.host();
        const auto& open = host.documents();
        if (static_cast<std::size_t>(number) > open.size())
            throw SessionError("only " + std::to_string(open.size()) + " drawings are open");
        host.activate(*open[static_cast<std::size_t>(number) - 1]);
    };
}

Art& layerNamed(Document& document, const std::string& title) {
    if (Art* const layer = findLayer(document, title)) return *layer;
    throw SessionError("there is no layer \"" + title + '"');
}

template <ai::int32 Flag, bool On> void setFlag(Document& document, const std::string& title) {
    setUserAttributes(layerNamed(document, title), Flag, On ? Flag : 0);
}

/// What the Layers panel does to the layer of that title.
struct LayerDeed {
    const char* name;
    const char* undoText;
    void (*change)(Document&, const std::string& title);
};
constexpr LayerDeed kLayerDeeds[] = {
    {"choose", "Choose Layer",
     [](Document& document, const std::string& title) {
         setCurrentLayer(document, layerNamed(document, title));
     }},
    {"add", "New Layer",
     [](Document& document, const std::string& title) {
         setCurrentLayer(document, createLayer(document, title, onTopOf(document.root())));
     }},
    {"delete", "Delete Layer",
     [](Document& document, const std::string& title) {
         deleteLayer(layerNamed(document, title));
     }},
    {"lock", "Lock Layer", setFlag<kArtLocked, true>},
    {"unlock", "Unlock Layer", setFlag<kArtLocked, false>},
    {"hide", "Hide Layer", setFlag<kArtHidden, true>},
    {"show", "Show Layer", setFlag<kArtHidden, false>},
};

Action readRename(Arguments& arguments) {
    const std::string title = arguments.text("title");
    return [title, name = arguments.text("new title")](Player& player) {
        player.edit("Rename Layer", [&](Document& document) {
            changeLayer(layerNamed(document, title),
                        [&](LayerProperties& layer) { layer.title = name; });
        });
    };
}

Action readLayer(Arguments& arguments) {
    if (arguments.take("rename")) return readRename(arguments);
    const LayerDeed& deed = arguments.row("deed with layers", kLayerDeeds);
    return [&deed, title = arguments.text("title")](Player& player) {
        const bool isChoice = &deed == &kLayerDeeds[0];
        player.edit(
            deed.undoText, [&](Document& document) { deed.change(document, title); },
            isChoice ? kSilentUndoContext : kStandardUndoContext);
    };
}

/// Art goes by the id of its element or by its name.
bool goesBy(const Art& art, const std::string& id) {
    return art.details().name == id || *art.content().id == id;
}

std::vector<Art*> artNamed(const Document& document, const std::string& id) {
    std::vector<Art*> found;
    const Art& root = document.root();
    for (Art* art = nextInPreorder(root, root); art != nullptr; art = nextInPreorder(*art, root))
        if (!art->isLayer() && goesBy(*art, id)) found.push_back(art);
    if (found.empty()) throw SessionError("no art has the id or name \"" + id + '"');
    return found;
}

Action readSelect(Arguments& arguments) {
    if (arguments.take("all"))
        return [](Player& player) { player.edit("Select All", selectAll, kSilentUndoContext); };
    std::vector<std::string> ids;
    if (!arguments.take("none")) do
            ids.push_back(arguments.text("id"));
        while (!arguments.atEnd());
    return [ids](Player& player) {
        const auto change = [&](Document& document) {
            deselectAll(document);
            for (const std::string& id : ids)
                for (Art* const art : artNamed(document, id))
                    select(*art, true);
        };
        player.edit("Select", change, kSilentUndoContext);
    };
}

Action readDelete(Arguments& arguments) {
    return [id = arguments.text("id")](Player& player) {
        const std::vector<Art*> named = artNamed(player.document(), id);
        if (!std::ranges::all_of(named, [](const Art* art) { return isEditable(*art); }))
            throw SessionError('"' + id + "\" is locked or hidden");
        player.edit("Clear", [&](Document&) {
            for (Art* const art : named)
                disposeArt(*art);
        });
    };
}

void clear(Player& player) { player.edit("Clear", deleteSelected); }

Action readNudge(Arguments& arguments) {
    const double right = arguments.number("way to the right");
    const double down = arguments.number("way down");
    return [=](Player& player) {
        player.edit("Move", [=](Document& document) { moveSelected(document, right, -down); });
    };
}

/// Fill or stroke in one colour, or not at all.
Action readPaint(Arguments& arguments) {
    constexpr const char* kWhat[] = {"fill", "stroke", "width"};
    const std::size_t what = arguments.choice("thing to paint", kWhat);
    std::function<void(ArtStyle&)> change;
    if (what == 2) {
        const double width = arguments.number("width");
        if (!(width >= 0 && width <= 1000)) throw Mistake("a stroke is 0 to 1000 points wide");
        change = [width](ArtStyle& style) { style.path.stroke.width = static_cast<AIReal>(width); };
    } else {
        const std::string name = arguments.text("colour");
        const auto colour = svg::parseColour(name);
        if (!colour && name != "none")
            throw Mistake('"' + name +
                          "\" is no colour; one is written #rrggbb, by its name, or none");
        change = [colour, isFill = what == 0](ArtStyle& style) {
            (isFill ? style.path.fillPaint : style.path.strokePaint) = colour ? 1 : 0;
            (isFill ? style.fillDefinition : style.strokeDefinition) = nullptr;
            AIColor& ink = isFill ? style.path.fill.color : style.path.stroke.color;
            if (colour) ink = rgbColor(colour->red, colour->green, colour->blue);
        };
    }
    return [change](Player& player) {
        player.edit("Paint", [&](Document& document) { restyleSelected(document, change); });
    };
}

// The tool box

void chooseTool(Player& player, const std::string& name) {
    Tools& tools = player.host().tools;
    try {
        const AIToolType number = tools.numberOf(name);
        player.host().selectTool(tools.handleOf(number), number);
    } catch (const ai::Error& error) {
        if (error.code != kBadParameterErr) throw;
        throw SessionError("there is no tool \"" + name + '"');
    }
}

Action readTool(Arguments& arguments) {
    if (arguments.take("options")) return [](Player& player) { player.host().editToolOptions(); };
    return [name = arguments.text("name")](Player& player) { chooseTool(player, name); };
}

Action readKey(Arguments& arguments) {
    constexpr const char* kTaps[] = {"[", "]"};
    const bool up = arguments.choice("key that a tool is told of", kTaps) == 1;
    const int count = arguments.atEnd() ? 1 : arguments.whole("number of taps", 1, 1000);
    return [=](Player& player) {
        for (int i = 0; i < count; ++i)
            up ? player.host().increaseDiameter() : player.host().decreaseDiameter();
    };
}

void finish(Player& player) { player.host().endPath(); }

// The mouse

Action readDrag(Arguments& arguments) {
    const Place place = arguments.place("place");
    const int steps = arguments.take("in") ? arguments.whole("number of steps", 1, kMostSteps) : 1;
    return [=](Player& player) { player.dragTo(place, steps); };
}

Action readRelease(Arguments& arguments) {
    std::optional<Place> place;
    if (!arguments.atEnd()) place = arguments.place("place");
    return [place](Player& player) { player.releaseAt(place); };
}

void click(Player& player, Place place) {
    player.pressAt(place);
    player.releaseAt(place);
}

// Menus and history

Action readMenu(Arguments& arguments) {
    return [name = arguments.text("item")](Player& player) {
        Host& host = player.host();
        host.openMenus();
        const AIMenuItemHandle item = menuItemNamed(host.menus, name);
        if (item == nullptr) throw SessionError("there is no menu item \"" + name + '"');
        if (!host.menus.items.at(item).enabled)
            throw SessionError("the menu item \"" + name + "\" is disabled");
        host.chooseMenuItem(item);
    };
}

/// Walks through the history, as far as "[COUNT|all]" says.
template <bool (Host::*Step)()> Action readWalk(Arguments& arguments) {
    const bool isUndo = Step == &Host::undo;
    const bool all = arguments.take("all");
    const int count =
        all || arguments.atEnd() ? 1 : arguments.whole("number of steps", 1, kMostSteps);
    return [=](Player& player) {
        static_cast<void>(player.document());
        for (int i = 0; all || i < count; ++i)
            if (!(player.host().*Step)()) {
                if (all) return;
                throw SessionError(isUndo ? "there is nothing to undo"
                                          : "there is nothing to redo");
            }
    };
}

Action readRemember(Arguments& arguments) {
    return [name = arguments.text("name")](Player& player) {
        player.remembered[name] = dump(player.document());
    };
}

// Window and settings

Action readWindow(Arguments& arguments) {
    const int width = arguments.whole("width", 1, 20'000);
    const int height = arguments.whole("height", 1, 20'000);
    return [=](Player& player) {
        static_cast<void>(player.document());
        player.host().resizeView(width, height);
    };
}

Action readZoom(Arguments& arguments) {
    const double factor = arguments.number("factor");
    if (!(factor >= double{kLeastZoom} && factor <= double{kMostZoom}))
        throw Mistake("the zoom goes from 1/32 to 64");
    return [factor](Player& player) {
        static_cast<void>(player.document());
        player.host().zoom(static_cast<AIReal>(factor));
    };
}

void centre(Player& player, Place place) { player.host().centreOn(player.soft(place)); }

Action readSmartGuides(Arguments& arguments) {
    const bool on = arguments.choice("state", kSwitch) == 1;
    return [on](Player& player) { player.host().cursorSnap.enabled = on; };
}

Action readTheme(Arguments& arguments) {
    const bool dark = arguments.choice("theme", kThemes) == 1;
    return [dark](Player& player) { player.host().setDarkTheme(dark); };
}

Action readConstrain(Arguments& arguments) {
    return [degrees = arguments.number("angle")](Player& player) {
        player.host().setConstrainAngle(degrees);
    };
}

/// Whole numbers are stored as integers unless they are written with a point.
Preferences::Value preferenceValue(Arguments& arguments) {
    if (arguments.take("on")) return true;
    if (arguments.take("off")) return false;
    Arguments peek = arguments;
    const std::string written = peek.text("value");
    const double number = arguments.number("value");
    if (written.find_first_of(".eE") != std::string::npos) return number;
    return static_cast<ai::int32>(std::clamp(number, -2147483648.0, 2147483647.0));
}

Action readPreference(Arguments& arguments) {
    const std::string prefix = arguments.text("prefix");
    const std::string name = arguments.text("name");
    return [=, value = preferenceValue(arguments)](Player& player) {
        player.preferences().put(prefix, name, value);
    };
}

Action readHost(Arguments& arguments) {
    const SwitchName& named = arguments.row("thing that hosts differ in", switchNames());
    const bool on = arguments.choice("state", kSwitch) == 1;
    return [&named, on](Player& player) { player.switches().*named.value = on; };
}

Action readAnswer(Arguments& arguments) {
    constexpr const char* kAnswers[] = {"no", "yes", "cancel"}; // as the host numbers them
    const auto answer = static_cast<AIAnswer>(arguments.choice("answer", kAnswers));
    return [answer](Player& player) { player.host().user.answers.push_back(answer); };
}

Action readWait(Arguments& arguments) {
    const int milliseconds = arguments.whole("number of milliseconds", 1, 60'000);
    return [milliseconds](Player& player) {
        player.host().clock.advance(milliseconds);
        letTimePass(milliseconds);
        player.host().idle();
    };
}

void redraw(Player& player) {
    static_cast<void>(player.document());
    player.host().redrawLater();
}

Action readPicture(Arguments& arguments) {
    const std::string name = arguments.text("file");
    const double scale = arguments.take("scale") ? arguments.number("scale") : 1.0;
    if (!(scale > 0)) throw Mistake("a scale is more than 0");
    return [=](Player& player) { paint::writePng(player.picture(scale), player.output(name)); };
}

constexpr CommandRow kCommands[] = {
    {"open", "FILE", "Opens the drawing FILE, which lies where the script does", readOpen},
    {"reopen", "FILE", "Opens the drawing FILE that was saved among the results", readReopen},
    {"new", "WIDTH HEIGHT", "Opens an empty drawing of that size, in points", readNew},
    {"save", "FILE", "Saves the drawing among the results", readSave},
    {"switch", "NUMBER",
     "Brings an open drawing to the front: 1 is the one that was opened first of those left",
     readSwitch, UnderDialog::Done},
    {"close", "", "Closes the drawing in front; the first of those left comes to the front",
     plain<close>, UnderDialog::Done},
    {"layer", "choose|add|delete|lock|unlock|hide|show TITLE, or rename TITLE NEW",
     "Does that to the layer of that title; a new one lies on top and is current", readLayer},
    {"select", "all|none|ID...",
     "Selects everything, nothing, or the art that has one of these ids or names", readSelect},
    {"delete", "ID", "Deletes the art of that id or name", readDelete},
    {"nudge", "RIGHT DOWN", "Moves what is selected by so many user units", readNudge},
    {"paint", "fill|stroke COLOUR|none, or width NUMBER",
     "Paints what is selected that way, and what the host's own tools draw from now on", readPaint},
    {"clear", "", "Deletes what is selected", plain<clear>},
    {"tool", "NAME|options",
     "Takes that tool in hand, or double-clicks the icon of the one in hand", readTool},
    {"key", "[|] [COUNT]", "Taps that key between drags, COUNT times", readKey},
    {"finish", "", "Ends the path that the pen is drawing", plain<finish>},
    {"move", "X,Y", "Moves the mouse there, its button up", atPlace<&Player::moveTo>},
    {"press", "X,Y", "Moves the mouse there and presses the button", atPlace<&Player::pressAt>},
    {"drag", "X,Y [in COUNT]", "Moves it there with the button down, in COUNT messages, or one",
     readDrag},
    {"release", "[X,Y]", "Lets the button go, there or where the mouse is", readRelease},
    {"click", "X,Y", "Presses and releases there", atPlace<click>},
    {"menu", "ITEM", "Chooses the menu item of that name or text", readMenu},
    {"undo", "[COUNT|all]", "Takes the last step back, or COUNT steps, or all",
     readWalk<&Host::undo>},
    {"redo", "[COUNT|all]", "Does the step again that was last taken back, or COUNT steps, or all",
     readWalk<&Host::redo>},
    {"remember", "NAME", "Keeps the whole drawing as it is, to be compared with later",
     readRemember, UnderDialog::Done},
    {"window", "WIDTH HEIGHT", "Makes the view that large, in pixels; at first it is 1280 by 800",
     readWindow},
    {"zoom", "FACTOR", "Shows a point as that many pixels, 1/32 to 64; the middle stays", readZoom},
    {"centre", "X,Y", "Scrolls that place into the middle of the view", atPlace<centre>},
    {"smart-guides", "on|off", "Turns the host's cursor snapping on or off; at first it is on",
     readSmartGuides, UnderDialog::Done},
    {"theme", "light|dark", "Changes the brightness of the interface", readTheme,
     UnderDialog::Done},
    {"constrain", "DEGREES", "Sets the host's constrain angle", readConstrain, UnderDialog::Done},
    {"preference", "PREFIX NAME on|off|NUMBER",
     "Stores a setting; a plug-in reads its own when it starts, so before everything else or a "
     "restart. Whole numbers are stored as integers unless written with a point",
     readPreference, UnderDialog::Done},
    {"restart", "",
     "Quits host and plug-in and starts them again; settings and open panels stay, drawings do not",
     plain<&Player::restart>},
    {"reload", "",
     "Unloads the plug-in's library, held or not, and loads it again at another address",
     plain<&Player::reload>},
    {"host", "NAME on|off",
     "Has the host be this way or the other where its interface does not say; the names are those "
     "in "
     "`easel/document/Switches.h`",
     readHost, UnderDialog::Done},
    {"answer", "yes|no|cancel", "Answers the next question that is asked; otherwise it is yes",
     readAnswer, UnderDialog::Done},
    {"wait", "MILLISECONDS", "Lets time pass", readWait, UnderDialog::Done},
    {"redraw", "", "Uncovers the window, so that it is painted anew", plain<redraw>,
     UnderDialog::Done},
    {"picture", "FILE [scale N]",
     "Keeps what the window shows among the results, with N pixels to one of the view", readPicture,
     UnderDialog::Done},
};

template <typename Row> std::string lineOf(const Row& row, const std::string& before) {
    std::string written = before + row.name + (*row.arguments != 0 ? " " : "") + row.arguments;
    for (std::size_t at = 0; (at = written.find('|', at)) != std::string::npos; at += 2)
        written.insert(at, "\\"); // a bare one would end the cell
    return "| `" + written + "` | " + row.meaning + " |\n";
}

} // namespace

std::span<const CommandRow> commands() { return kCommands; }

AIMenuItemHandle menuItemNamed(const Menus& menus, const std::string& name) {
    if (const AIMenuItemHandle item = menus.itemNamed(name)) return item;
    const std::u32string text = utf32FromUtf8(name);
    return menus.items.findIf([&](const MenuItem& each) { return each.text == text; });
}

std::string languageTables() {
    std::string text;
    for (const CommandRow& row : commands())
        text += lineOf(row, "");
    text += '\n';
    for (const DeedRow& row : deeds())
        text += lineOf(row, !row.only                   ? "panel|dialog "
                            : *row.only == Where::Panel ? "panel "
                                                        : "dialog ");
    text += '\n';
    for (const ExpectationRow& row : expectations())
        text += lineOf(row, "expect ");
    return text;
}

} // namespace easel::script
