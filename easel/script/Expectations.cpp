#include "easel/core/Text.h"
#include "easel/document/Attributes.h"
#include "easel/document/Dump.h"
#include "easel/document/Layers.h"
#include "easel/script/Commands.h"
#include "easel/script/Deeds.h"
#include "easel/script/ShownAxes.h"
#include "easel/session/Inventory.h"
#include "easel/svg/Content.h"
#include "easel/svg/Numbers.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

namespace easel::script {
namespace {

using Kind = DrawCommand::Kind;

constexpr const char* kNone = "none";
constexpr const char* kAnswers[] = {"no", "yes"};

std::string quoted(const std::string& text) { return '"' + text + '"'; }

/// At most three digits after the point.
std::string rounded(double value) { return svg::formatNumber(std::round(value * 1e3) / 1e3); }

std::string textOf(svg::Point point) { return rounded(point.x) + ',' + rounded(point.y); }

Finding compare(const std::string& wanted, const std::string& found) {
    return {wanted == found, wanted, found};
}

Finding compareNumbers(double wanted, double tolerance, std::optional<double> found) {
    return {found && std::abs(*found - wanted) <= tolerance, rounded(wanted),
            found ? rounded(*found) : kNone};
}

std::string noneOr(Arguments& arguments, const char* what) {
    return arguments.take(kNone) ? kNone : quoted(arguments.text(what));
}

// What the menus say

/// A text that is to be just that one.
template <std::string (*Found)(Player&)> Check readText(Arguments& arguments) {
    return [text = arguments.text("text")](Player& player) {
        return compare(quoted(text), quoted(Found(player)));
    };
}

std::string undoText(Player& player) {
    static_cast<void>(player.document());
    return player.host().undoText();
}

std::string redoText(Player& player) { return player.document().undo().redoText(); }

// Axes

struct WantedAxes {
    int count = 0; ///< 0: none.
    std::optional<double> angle;
    std::optional<Place> origin;

    [[nodiscard]] std::string text() const {
        if (count == 0) return kNone;
        return std::to_string(count) + (angle ? " angle " + rounded(*angle) : "") +
               (origin ? " origin " + script::textOf(*origin) : "");
    }
};

WantedAxes readWantedAxes(Arguments& arguments) {
    WantedAxes wanted;
    if (arguments.take(kNone)) return wanted;
    wanted.count = arguments.whole("number of axes", 1, 1000);
    if (arguments.take("angle")) wanted.angle = arguments.number("angle");
    if (arguments.take("origin")) wanted.origin = arguments.place("place");
    return wanted;
}

/// Of two directions, degrees.
double anglesApart(double a, double b) { return std::abs(std::remainder(a - b, 360.0)); }

Finding compareShown(Player& player, const WantedAxes& wanted) {
    constexpr double kPixels = 1.0;   // drawn places are whole pixels
    constexpr double kDegrees = 0.25; // which is what that does to a line across a window
    const std::optional<ShownAxes> shown = shownAxes(player.shown());
    if (!shown) return {wanted.count == 0, wanted.text(), kNone};
    const std::optional<double> angle = shown->angleDegrees;
    const bool sameAngle =
        !wanted.angle || (angle && anglesApart(*wanted.angle, *angle) < kDegrees);
    const bool sameOrigin =
        !wanted.origin || length(player.pixels(*wanted.origin) - shown->origin) <= kPixels;
    const std::string found = std::to_string(shown->count) +
                              (angle ? " angle " + rounded(*angle) : " without a first axis") +
                              " origin " + textOf(player.userUnits(shown->origin)) + " (" +
                              textOf(shown->origin) + "px)";
    return {shown->count == wanted.count && sameAngle && sameOrigin, wanted.text(), found};
}

Check readShownAxes(Arguments& arguments) {
    return [wanted = readWantedAxes(arguments)](Player& player) {
        return compareShown(player, wanted);
    };
}

/// The current layer without a title.
Art& layerOf(Player& player, const std::string& title) {
    Document& document = player.document();
    Art* const layer = title.empty() ? document.state().currentLayer : findLayer(document, title);
    if (layer == nullptr) throw SessionError("there is no layer " + quoted(title));
    return *layer;
}

std::string readLayerTitle(Arguments& arguments) {
    return arguments.take("on") ? arguments.text("title") : "";
}

Check readLayerAxes(Arguments& arguments) {
    const WantedAxes wanted = readWantedAxes(arguments);
    const double tolerance = arguments.take("within") ? arguments.number("tolerance") : 0.001;
    return [=, title = readLayerTitle(arguments)](Player& player) -> Finding {
        const std::optional<LayerAxes> axes = axesOn(layerOf(player, title));
        if (!axes) return {wanted.count == 0, wanted.text(), kNone};
        svg::Point origin;
        if (wanted.origin) origin = player.userUnits(player.pixels(*wanted.origin));
        const bool same =
            axes->count == wanted.count &&
            (!wanted.angle || anglesApart(*wanted.angle, axes->angleDegrees) <= tolerance) &&
            (!wanted.origin || length(origin - axes->origin) <= tolerance);
        return {same, wanted.text(),
                std::to_string(axes->count) + " angle " + rounded(axes->angleDegrees) + " origin " +
                    textOf(axes->origin)};
    };
}

// The cursor and what is drawn

Check readCursor(Arguments& arguments) {
    return [id = arguments.whole("cursor", -10, 1'000'000)](Player& player) {
        return compare(std::to_string(id), std::to_string(player.host().user.cursor));
    };
}

std::string listOf(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "" : " ") + quoted(text);
    return list.empty() ? kNone : list;
}

std::vector<std::string> shownTexts(const DisplayList& list) {
    std::vector<std::string> texts;
    for (const DrawCommand& command : list)
        if (command.kind == Kind::Text) texts.push_back(utf8FromUtf32(command.text));
    return texts;
}

/// The text that is drawn beside the mouse.
std::string shownHint(Player& player) {
    constexpr double kBeside = 24; // pixels
    const svg::Point mouse = player.pixels(player.mouse());
    for (const DrawCommand& command : player.shown()) {
        if (command.kind != Kind::Text) continue;
        const AIPoint at = command.points.front();
        const svg::Point place{static_cast<double>(at.h), static_cast<double>(at.v)};
        if (length(place - mouse) < kBeside) return quoted(utf8FromUtf32(command.text));
    }
    return kNone;
}

Check readHint(Arguments& arguments) {
    return [wanted = noneOr(arguments, "text")](Player& player) {
        return compare(wanted, shownHint(player));
    };
}

Check readTextShown(Arguments& arguments) {
    return [text = arguments.text("text")](Player& player) -> Finding {
        const std::vector<std::string> texts = shownTexts(player.shown());
        const bool there = std::find(texts.begin(), texts.end(), text) != texts.end();
        return {there, "the text " + quoted(text), listOf(texts)};
    };
}

struct DrawnKind {
    const char* name;
    bool (*is)(const DrawCommand&);
};
template <Kind Wanted> bool isKind(const DrawCommand& command) { return command.kind == Wanted; }
constexpr DrawnKind kDrawnKinds[] = {
    {"lines",
     [](const DrawCommand& each) { return each.kind == Kind::Line && !each.style.dashed; }},
    {"dashed-lines",
     [](const DrawCommand& each) { return each.kind == Kind::Line && each.style.dashed; }},
    {"rects", isKind<Kind::Rect>},
    {"polygons", isKind<Kind::Polygon>},
    {"ellipses", isKind<Kind::Ellipse>},
    {"curves", isKind<Kind::Bezier>},
    {"texts", isKind<Kind::Text>},
    {"things", [](const DrawCommand& each) {
         return each.kind != Kind::ClipStart && each.kind != Kind::ClipEnd &&
                each.kind != Kind::ClipClear;
     }}};

Check readDrawn(Arguments& arguments) {
    const int count = arguments.whole("number", 0, 1'000'000);
    const DrawnKind& kind = arguments.row("kind of drawn things", kDrawnKinds);
    return [count, &kind](Player& player) {
        const auto drawn = std::count_if(player.shown().begin(), player.shown().end(), kind.is);
        return compare(std::to_string(count) + ' ' + kind.name,
                       std::to_string(drawn) + ' ' + kind.name);
    };
}

Check readLineThrough(Arguments& arguments) {
    return [place = arguments.place("place")](Player& player) -> Finding {
        const svg::Point point = player.pixels(place);
        const auto through = [&](const DrawCommand& command) {
            return command.kind == Kind::Line && passesThrough(command, point);
        };
        return {std::ranges::any_of(player.shown(), through),
                "a line through " + script::textOf(place), "no such line"};
    };
}

/// By the number of times that the polygon winds around the point.
bool covers(const DrawCommand& polygon, svg::Point point) {
    int winding = 0;
    const std::vector<AIPoint>& corners = polygon.points;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const AIPoint a = corners[i];
        const AIPoint b = corners[(i + 1) % corners.size()];
        if ((a.v <= point.y) == (b.v <= point.y)) continue;
        const double crossing = a.h + (point.y - a.v) / (b.v - a.v) * (b.h - a.h);
        if (crossing > point.x) winding += a.v < b.v ? 1 : -1;
    }
    return winding != 0;
}

Check readCovered(Arguments& arguments) {
    const bool wanted = arguments.choice("answer", kAnswers) == 1;
    return [wanted, place = arguments.place("place")](Player& player) {
        const svg::Point point = player.pixels(place);
        const auto masks = [&](const DrawCommand& command) {
            return command.kind == Kind::Polygon && command.fill && covers(command, point);
        };
        const bool found = std::ranges::any_of(player.shown(), masks);
        return compare(kAnswers[wanted ? 1 : 0], kAnswers[found ? 1 : 0]);
    };
}

// Art

struct Countable {
    const char* name;
    int (*count)(const Document&);
};

int countPaths(const Document& document, bool (*counts)(const Art&)) {
    int number = 0;
    const Art& root = document.root();
    for (const Art* art = nextInPreorder(root, root); art != nullptr;
         art = nextInPreorder(*art, root))
        if (art->type() == kPathArt && counts(*art)) ++number;
    return number;
}

constexpr Countable kCountables[] = {
    {"paths",
     [](const Document& document) {
         return countPaths(document, [](const Art&) { return true; });
     }},
    {"originals",
     [](const Document& document) {
         return countPaths(document,
                           [](const Art& art) { return !isCopy(art) && !art.content().guide; });
     }},
    {"copies", [](const Document& document) { return inventoryOf(document).copies; }},
    {"guides", [](const Document& document) { return inventoryOf(document).guides; }},
    {"axis-guides", [](const Document& document) { return inventoryOf(document).axisGuides; }},
    {"segments", [](const Document& document) { return inventoryOf(document).segments; }},
    {"selected",
     [](const Document& document) {
         return countPaths(document,
                           [](const Art& art) { return selectionOf(art) != Selected::No; });
     }},
};

Check readArt(Arguments& arguments) {
    const int count = arguments.whole("number", 0, 1'000'000);
    const Countable& what = arguments.row("kind of art", kCountables);
    return [count, &what](Player& player) {
        return compare(std::to_string(count) + ' ' + what.name,
                       std::to_string(what.count(player.document())) + ' ' + what.name);
    };
}

/// Which paths have an anchor there.
std::string anchorsAt(const Document& document, AIRealPoint place, double tolerance) {
    bool original = false;
    bool copy = false;
    const Art& root = document.root();
    for (const Art* art = nextInPreorder(root, root); art != nullptr;
         art = nextInPreorder(*art, root)) {
        const auto near = [&](const AIPathSegment& segment) {
            return std::hypot(static_cast<double>(segment.p.h - place.h),
                              static_cast<double>(segment.p.v - place.v)) <= tolerance;
        };
        const auto segments = art->segments();
        if (art->content().guide || std::none_of(segments.begin(), segments.end(), near)) continue;
        bool isOfCopy = false;
        for (const Art* up = art; up != nullptr; up = up->parent())
            isOfCopy = isOfCopy || isCopy(*up);
        (isOfCopy ? copy : original) = true;
    }
    if (original && copy) return "original and copy";
    if (original) return "original";
    return copy ? "copy" : kNone;
}

Check readAnchor(Arguments& arguments) {
    constexpr const char* kWhose[] = {"original", "copy", kNone};
    const std::string wanted = kWhose[arguments.choice("kind of anchor", kWhose)];
    const Place place = arguments.place("place");
    const double tolerance = arguments.take("within") ? arguments.number("tolerance") : 0.01;
    return [=](Player& player) {
        return compare(wanted, anchorsAt(player.document(), player.soft(place), tolerance));
    };
}

Check readCurrentLayer(Arguments& arguments) {
    return [title = arguments.text("title")](Player& player) {
        return compare(quoted(title), quoted(layerOf(player, "").details().layer.title));
    };
}

/// The first line in which two texts differ, of each.
Finding compareLines(const std::string& wanted, const std::string& found) {
    const std::vector<std::string_view> before = linesOf(wanted);
    const std::vector<std::string_view> now = linesOf(found);
    for (std::size_t i = 0; i < std::max(before.size(), now.size()); ++i) {
        const std::string_view then = i < before.size() ? before[i] : "(the end)";
        const std::string_view here = i < now.size() ? now[i] : "(the end)";
        if (then != here)
            return {false, "the drawing as it was, with " + quoted(std::string(then)),
                    quoted(std::string(here))};
    }
    return {true, {}, {}};
}

Check readSame(Arguments& arguments) {
    return [name = arguments.text("name")](Player& player) {
        const auto remembered = player.remembered.find(name);
        if (remembered == player.remembered.end())
            throw SessionError("nothing is remembered as " + quoted(name));
        return compareLines(remembered->second, dump(player.document()));
    };
}

// What the host was told and asked

Check readSnaps(Arguments& arguments) {
    std::vector<std::string> wanted;
    if (!arguments.take(kNone)) do
            wanted.push_back(arguments.text("control string"));
        while (!arguments.atEnd());
    return
        [wanted](Player& player) { return compare(listOf(wanted), listOf(player.snapControls())); };
}

struct InfoVariable {
    const char* name;
    ai::int32 code;
};
constexpr InfoVariable kInfoVariables[] = {{"x", 15},     {"y", 16},       {"width", 2},
                                           {"height", 3}, {"distance", 4}, {"angle", 5}};

Check readInfo(Arguments& arguments) {
    const InfoVariable& variable = arguments.row("info variable", kInfoVariables);
    const double wanted = arguments.number("value");
    const double tolerance = arguments.take("within") ? arguments.number("tolerance") : 0.001;
    return [=, &variable](Player& player) -> Finding {
        const auto& values = player.host().tools.infoValues;
        const auto value = values.find(variable.code);
        return compareNumbers(wanted, tolerance,
                              value != values.end() ? std::optional{value->second} : std::nullopt);
    };
}

Check readPreferenceValue(Arguments& arguments) {
    const std::string prefix = arguments.text("prefix");
    const std::string name = arguments.text("name");
    const double wanted = arguments.take("on")    ? 1.0
                          : arguments.take("off") ? 0.0
                                                  : arguments.number("value");
    const double tolerance = arguments.take("within") ? arguments.number("tolerance") : 1e-6;
    return [=](Player& player) {
        return compareNumbers(wanted, tolerance, player.preferences().number(prefix, name));
    };
}

Check readAlert(Arguments& arguments) {
    return [wanted = noneOr(arguments, "text")](Player& player) {
        const auto alert = player.takeAlert();
        return compare(wanted, alert ? quoted(*alert) : kNone);
    };
}

/// Names are compared, not folders: where a manual lies depends on the installation.
Check readOpened(Arguments& arguments) {
    return [wanted = noneOr(arguments, "file")](Player& player) {
        auto& launched = player.host().user.launched;
        if (launched.empty()) return compare(wanted, kNone);
        const std::string name = launched.front().filename().string();
        launched.erase(launched.begin());
        return compare(wanted, quoted(name));
    };
}

// Pictures

paint::Picture readReference(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    const auto picture = paint::readPng(std::as_bytes(std::span{content}));
    if (!picture) throw SessionError(file.string() + ": there is no such PNG file");
    return *picture;
}

Check readPictureLike(Arguments& arguments) {
    const std::string name = arguments.text("file");
    const double scale = arguments.take("scale") ? arguments.number("scale") : 1.0;
    if (!arguments.take("within")) throw Mistake("there is no tolerance");
    double percent = arguments.number("tolerance");
    if (arguments.take("or")) {
        const double there = arguments.number("tolerance");
        if (!arguments.take("on") || !arguments.take("windows"))
            throw Mistake("a second tolerance ends with \"on windows\"");
        if (onWindows()) percent = there;
    }
    return [=](Player& player) -> Finding {
        const paint::Picture reference = readReference(player.input(name));
        const double differing = 100 * paint::difference(player.picture(scale), reference);
        return {differing <= percent,
                "a picture like " + name + " but for " + rounded(percent) + "% of its pixels",
                rounded(differing) + "% that differ"};
    };
}

constexpr ExpectationRow kExpectations[] = {
    {"undo", "TEXT", "the text of the Undo item of the menu", readText<undoText>},
    {"redo", "TEXT", "the text of the Redo item", readText<redoText>},
    {"axes", "none|COUNT [angle DEGREES] [origin X,Y]",
     "axes drawn over the art: lines through the origin's mark, the first by the active sector's "
     "triangles; within a pixel and a quarter of a degree",
     readShownAxes},
    {"layer-axes", "none|COUNT [angle DEGREES] [origin X,Y] [within T] [on TITLE]",
     "axes stored on the current layer, or on that one; within 0.001 degrees and points, or T",
     readLayerAxes},
    {"cursor", "ID", "the number of the cursor shown", readCursor},
    {"hint", "none|TEXT", "a text beside the mouse", readHint},
    {"text", "TEXT", "a text anywhere in the annotations", readTextShown},
    {"drawn", "COUNT lines|dashed-lines|rects|polygons|ellipses|curves|texts|things",
     "how many of these the annotations hold", readDrawn},
    {"line", "X,Y", "a line of the annotations through that place", readLineThrough},
    {"covered", "yes|no X,Y", "whether a filled polygon of the annotations covers that place",
     readCovered},
    {"art", "COUNT paths|originals|copies|guides|axis-guides|segments|selected",
     "how much of that the drawing holds", readArt},
    {"anchor", "original|copy|none X,Y [within T]",
     "whose anchor lies there, within 0.01 points or T", readAnchor},
    {"layer", "TITLE", "the title of the current layer", readCurrentLayer},
    {"same", "NAME", "the drawing just as it was remembered under that name", readSame},
    {"snaps", "none|CONTROL...",
     "the control strings of all cursor snapping that the last command led to, in order",
     readSnaps},
    {"info", "x|y|width|height|distance|angle VALUE [within T]",
     "a number of the information display", readInfo},
    {"preference", "PREFIX NAME on|off|NUMBER [within T]", "a stored setting", readPreferenceValue},
    {"alert", "none|TEXT", "the oldest message box not yet expected", readAlert},
    {"opened", "none|FILE", "the name of the oldest document not yet expected that was opened",
     readOpened},
    {"panel", "full|compact|hidden [WIDTH HEIGHT]", "how the panel is shown, and how large",
     readPanelState},
    {"panel-item",
     "ITEM [text TEXT] [value N [within T]] [tip TEXT] [on|off] [enabled|disabled] [shown|hidden] "
     "[focused|unfocused]",
     "what is seen of an item of the panel, hidden or not; the value is that of a slider, or the "
     "number that a text begins with",
     readItemState<Where::Panel>},
    {"dialog", "none|TITLE", "the title of the modal dialog in front", readDialogTitle},
    {"dialog-item", "ITEM ...", "the same of an item of that dialog", readItemState<Where::Dialog>},
    {"flyout", "ENTRY absent|enabled|disabled|checked|unchecked...",
     "what the entry of that text is like in the panel's flyout menu", readFlyoutEntry},
    {"menu", "ITEM absent|enabled|disabled|checked|unchecked...",
     "what the menu item of that name or text is like", readMenuEntry},
    {"picture", "FILE [scale N] within PERCENT [or PERCENT on windows]",
     "the window like the PNG FILE, which lies where the script does, but for that many of its "
     "pixels; letters differ from system to system",
     readPictureLike},
};

} // namespace

std::span<const ExpectationRow> expectations() { return kExpectations; }

} // namespace easel::script
