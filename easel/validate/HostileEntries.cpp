#include "easel/script/System.h"
#include "easel/svg/SvgFile.h"
#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>
#include <map>

/// Drawings whose entries under the plug-in's keys are missing, of another type, or out of range.

namespace easel::validate {
namespace {

/// Pairs have numbers from here on.
constexpr std::uint64_t kPairs = 10'000;

/// What can stand under a key: a type and a value as Easel's JSON writes them.
constexpr const char* kValues[] = {
    R"("type":"unknown")",
    R"("type":"integer","value":-2147483648)",
    R"("type":"integer","value":-1)",
    R"("type":"integer","value":0)",
    R"("type":"integer","value":1)",
    R"("type":"integer","value":2)",
    R"("type":"integer","value":72)",
    R"("type":"integer","value":73)",
    R"("type":"integer","value":2147483647)",
    R"("type":"boolean","value":true)",
    R"("type":"boolean","value":false)",
    R"("type":"real","value":0)",
    R"("type":"real","value":-3.4e38)",
    R"("type":"string","value":"")",
    R"("type":"string","value":"0")",
    R"("type":"string","value":"-1e308")",
    R"("type":"string","value":"1e308")",
    R"("type":"string","value":"1e999")",
    R"("type":"string","value":"1e-320")",
    R"("type":"string","value":"nan")",
    R"("type":"string","value":"-inf")",
    R"("type":"string","value":"0x1p4")",
    R"("type":"string","value":" \t+8191")",
    R"("type":"string","value":"8191,5")",
    R"("type":"string","value":"8191.5mm")",
    R"("type":"string","value":"99999999999999999999999999999999999999999999")",
    R"("type":"string","value":"nothing")",
    R"("type":"dictionary","value":[])",
    R"("type":"dictionary","value":[{"key":"ac","type":"integer","value":3}])",
    R"("type":"array","value":[])",
    R"("type":"binary","value":"AAAA")",
    R"("type":"point","value":[1,2])",
    R"("type":"matrix","value":[1,0,0,1,0,0])",
    R"("type":"unicode","value":[56])",
};

constexpr const char* kAxes = "FacettaFT";
constexpr const char* kCopy = "FTMirroredv1";
constexpr const char* kGuide = "FTAxisGuide";
constexpr const char* kKeys[] = {kAxes, kCopy, kGuide, "cx", "cy", "aa", "ac", "au", "ve", "ts"};

/// Of three axes through the middle, as the plug-in writes them.
using Entries = std::map<std::string, std::string>;
Entries soundEntries() {
    return {{"cx", R"("type":"string","value":"8191.500000000000000")"},
            {"cy", R"("type":"string","value":"8191.500000000000000")"},
            {"aa", R"("type":"string","value":"0.000000000000000")"},
            {"ac", R"("type":"integer","value":3)"},
            {"au", R"("type":"boolean","value":true)"},
            {"ve", R"("type":"integer","value":1)"},
            {"ts", R"("type":"integer","value":1)"}};
}

/// A key of somebody else's, which has to stay.
constexpr const char* kOthers = "Other";

std::string list(const Entries& entries) {
    std::string text;
    for (const auto& [key, value] : entries)
        text += std::string(text.empty() ? "[" : ",") + R"({"key":")" + key + "\"," + value + '}';
    return text + ']';
}

/// One value in place of another; null: the key is missing.
struct Change {
    const char* key;
    const char* value;
};

std::string textOf(const Change& change) {
    return std::string(change.key) + " is " + (change.value != nullptr ? change.value : "missing");
}

std::string drawingWith(std::span<const Change> changes) {
    Entries axes = soundEntries();
    Entries layer{{kOthers, R"("type":"string","value":"kept")"}};
    Entries leaf = layer;
    std::optional<const char*> whole;
    for (const Change& change : changes) {
        const std::string key = change.key;
        Entries& entries = key == kCopy || key == kGuide ? leaf : key == kAxes ? layer : axes;
        if (key == kAxes) whole = change.value;
        if (change.value != nullptr)
            entries[key] = change.value;
        else
            entries.erase(key);
    }
    if (!whole) layer[kAxes] = R"("type":"dictionary","value":)" + list(axes);
    return leafWithEntries(list(layer), list(leaf));
}

std::size_t countOf(const std::string& what, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size())
        ++count;
    return count;
}

/// The plug-in reads what it finds when the drawing is opened and when its tool looks at it.
constexpr std::chrono::milliseconds kLimit{1};
/// Of a build that is not optimised, or carries sanitizers.
#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__)
constexpr int kSlowness = 1;
#else
constexpr int kSlowness = 20;
#endif

/// Processor time, so that what else the machine does is left out; the least of some tries, so that
/// what it does to memory is.
void judgeTime(Session& session, Trials& trials, Sitting& sitting, const std::string& drawing) {
    struct Look {
        const char* name;
        std::clock_t least = std::numeric_limits<std::clock_t>::max();
    };
    std::array<Look, 2> looks{{{"opening it"}, {"looking at it with the tool"}}};
    const auto time = [](Look& look, const auto& act) {
        const std::clock_t began = std::clock();
        act();
        look.least = std::min(look.least, std::clock() - began);
    };
    const auto limit =
        static_cast<std::clock_t>(kLimit.count() * CLOCKS_PER_SEC / 1000 * kSlowness);
    const auto isOver = [=](const Look& look) { return look.least > limit; };
    Host& host = sitting.player().host();
    for (int left = trials.byStrictness<int>({4, 4, 6, 8, 8});
         left > 0 && std::ranges::any_of(looks, isOver); --left) {
        auto document = std::move(svg::readSvgText(session, drawing, "drawing").document);
        time(looks[0], [&] { host.open(std::move(document)); });
        time(looks[1], [&] { sitting.perform("move 250,260"); });
        sitting.perform("close");
    }
    for (const Look& look : looks)
        if (isOver(look))
            trials.fail(std::string(look.name) + " took " +
                        std::to_string(look.least * 1000 / CLOCKS_PER_SEC) + " ms");
}

void tryDrawing(Session& session, Trials& trials, std::span<const Change> changes) {
    // What is marked as a copy goes with the next run, and takes along what it carries.
    const bool isMarked = std::ranges::any_of(
        changes, [](const Change& change) { return std::string_view(change.key) == kCopy; });
    const std::size_t others = isMarked ? 1 : 2;
    const std::string drawing = drawingWith(changes);
    Sitting sitting(session, trials.options().plugin);
    toTheEnd(trials, sitting, [&] {
        sitting.perform(commonSettings());
        sitting.open(drawing);
        const std::string opened = sitting.art();
        sitting.perform(linesTo(Stage::Opened));
        sitting.perform(linesTo(Stage::Tool));
        sitting.perform("move 250,260\nmove 280,200\nmove 281,200 with alt\nwait 500\nredraw");
        if (sitting.art() != opened) trials.fail("the drawing has changed by being looked at");
        const auto editAndTakeBack = [&](const char* edit) {
            sitting.attempt(edit);
            if (countOf("entry \"Other\"", sitting.art()) < others)
                trials.fail("an entry of somebody else's is gone");
            for (int steps = 0; sitting.art() != opened && steps < 2; ++steps)
                sitting.undo();
            if (sitting.art() != opened) trials.fail("the drawing does not come back by undo");
        };
        editAndTakeBack("select all\nnudge 3 4");
        editAndTakeBack("panel flyout \"Add Guides along Axes\"");
        editAndTakeBack("panel flyout \"Remove All Layer Axes\"");
        if (!onWindows()) judgeTime(session, trials, sitting, drawing); // Wine's clock is coarse
        sitting.perform(lifeOfAxes());
    });
}

} // namespace

void checkHostileEntries(Session& session, Trials& trials) {
    const auto every = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{50, 20, 8, 1, 1}
                    : std::array<std::uint64_t, 5>{6, 2, 1, 1, 1});
    std::uint64_t number = 0;
    const auto alone = [&](const Change& change) {
        ++number;
        if (number % every == 0 && trials.begin(number, textOf(change)))
            tryDrawing(session, trials, {&change, 1});
    };
    for (const char* const key : kKeys) {
        alone({key, nullptr});
        for (const char* const value : kValues)
            alone({key, value});
    }
    const auto pairs = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{4, 20, 60, 1000, 10'000}
                    : std::array<std::uint64_t, 5>{20, 200, 2000, 10'000, 100'000});
    for (std::uint64_t i = 0; i < pairs; ++i) {
        Random random = trials.random(kPairs + i);
        const auto any = [&]() -> Change {
            return {kKeys[random() % std::size(kKeys)], kValues[random() % std::size(kValues)]};
        };
        const std::array<Change, 2> changes = {any(), any()};
        if (trials.begin(kPairs + i, textOf(changes[0]) + ", " + textOf(changes[1])))
            tryDrawing(session, trials, changes);
    }
}

} // namespace easel::validate
