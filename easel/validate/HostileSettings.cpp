#include "easel/script/System.h"
#include "easel/validate/Checks.h"
#include "easel/validate/Sitting.h"

#include <cmath>
#include <limits>
#include <numbers>

/// Settings of another type or out of range in the host's store, before the plug-in starts.

namespace easel::validate {
namespace {

/// Pairs have numbers from here on.
constexpr std::uint64_t kPairs = 10'000;

struct Key {
    const char* prefix;
    const char* name;
};
constexpr const char* kPrefix = "Facetta";
constexpr Key kKeys[] = {
    {kPrefix, "FTAngle"},          {kPrefix, "FTCount"},
    {kPrefix, "FTDlgPosX"},        {kPrefix, "FTDlgPosY"},
    {kPrefix, "FTUseAnnoDlg"},     {kPrefix, "FTInitDragPO"},
    {kPrefix, "FTRemovePoints"},   {kPrefix, "FTApplySel"},
    {kPrefix, "FTAutoMirror"},     {kPrefix, "FTUseOverlay"},
    {kPrefix, "FTOpacity"},        {kPrefix, "FTSnapPerp"},
    {kPrefix, "FTPanelExpansion"}, {"", "isRulerIn4thQuad"},
    {"", "constrain/angle"},       {"", "rulerType"},
};

using Value = Preferences::Value;
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();
const std::array<Value, 20> kValues = {
    Value{true},
    Value{false},
    Value{ai::int32{-2147483647 - 1}},
    Value{ai::int32{-999}},
    Value{ai::int32{-1}},
    Value{ai::int32{0}},
    Value{ai::int32{1}},
    Value{ai::int32{3}},
    Value{ai::int32{73}},
    Value{ai::int32{2147483647}},
    Value{0.0},
    Value{-1e308},
    Value{1e308},
    Value{7.0},
    Value{0.5},
    Value{kNone},
    Value{kEndless},
    Value{-kEndless},
    Value{std::string{}},
    Value{std::string{"three"}},
};

std::string textOf(const Value& value) {
    struct Text {
        std::string operator()(bool on) const { return on ? "on" : "off"; }
        std::string operator()(ai::int32 number) const { return std::to_string(number); }
        std::string operator()(double number) const { return std::to_string(number); }
        std::string operator()(const std::string& text) const { return '"' + text + '"'; }
    };
    return std::visit(Text{}, value);
}

/// What must hold of what the plug-in leaves.
struct Range {
    const char* name;
    double least;
    double most;
};
constexpr Range kRanges[] = {
    {"FTAngle", 0, 2 * std::numbers::pi}, {"FTCount", 1, 72}, {"FTOpacity", 0, 100}};

void trySettings(Session& session, Trials& trials,
                 std::span<const std::pair<const Key*, const Value*>> settings) {
    Sitting sitting(session, trials.options().plugin);
    Preferences& store = sitting.player().preferences();
    for (const auto& [key, value] : settings)
        store.put(key->prefix, key->name, *value);
    toTheEnd(trials, sitting, [&] {
        sitting.perform(lifeOfAxes());
        // A compact panel does not show the item.
        sitting.attempt("new 400 400\nmove 250,260\npanel click 16\nredraw\nzoom 2\nclose");
    });
    for (const Range& range : kRanges) {
        const std::optional<double> left =
            sitting.player().preferences().number(kPrefix, range.name);
        if (!left || !(*left >= range.least && *left <= range.most))
            trials.fail(std::string(range.name) + " is left as " +
                        (left ? std::to_string(*left) : "no number"));
    }
}

} // namespace

void checkHostileSettings(Session& session, Trials& trials) {
    const auto every = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{50, 20, 6, 1, 1}
                    : std::array<std::uint64_t, 5>{6, 2, 1, 1, 1});
    std::uint64_t number = 0;
    for (const Key& key : kKeys) {
        for (const Value& value : kValues) {
            ++number;
            if (number % every == 0 &&
                trials.begin(number, std::string(key.name) + " is " + textOf(value)))
                trySettings(session, trials, {{{&key, &value}}});
        }
    }
    const auto pairs = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{2, 10, 40, 1000, 5000}
                    : std::array<std::uint64_t, 5>{20, 200, 2000, 10'000, 50'000});
    for (std::uint64_t i = 0; i < pairs; ++i) {
        Random random = trials.random(kPairs + i);
        const std::array<std::pair<const Key*, const Value*>, 2> both = {
            {{&kKeys[random() % std::size(kKeys)], &kValues.at(random() % kValues.size())},
             {&kKeys[random() % std::size(kKeys)], &kValues.at(random() % kValues.size())}}};
        std::string what;
        for (const auto& [key, value] : both)
            what += (what.empty() ? "" : ", ") + std::string(key->name) + " is " + textOf(*value);
        if (trials.begin(kPairs + i, what)) trySettings(session, trials, both);
    }
}

} // namespace easel::validate
