#include "easel/runtime/Library.h"
#include "easel/script/Dialogs.h"
#include "easel/script/System.h"
#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/LibraryFile.h"
#include "easel/validate/Sitting.h"

#include <algorithm>
#include <fstream>
#include <iterator>

/// Copies of the library's file in which a resource is damaged, used in its place.

namespace easel::validate {
namespace {

/// Random damage has numbers from here on.
constexpr std::uint64_t kRandom = 10'000;

/// What the plug-in itself reads; the rest is for the host and the system.
constexpr const char* kLayout = "NREV";
constexpr const char* kMenu = "#4";
constexpr const char* kStrings = "#6";
constexpr const char* kTypes[] = {kLayout, kMenu, kStrings, "XML_", "PNGI", "PNG3"};

struct Damage {
    const char* name;
    void (*apply)(std::span<char> bytes);
};
constexpr Damage kDamages[] = {
    {"cut short",
     [](std::span<char> bytes) { std::ranges::fill(bytes.last(bytes.size() / 2), 0); }},
    {"nonsense", [](std::span<char> bytes) { std::ranges::fill(bytes, '\xFF'); }},
};

/// With axes drawn; each opens another dialog.
constexpr const char* kOpeners[] = {
    "menu \"About Facetta...\"",
    "tool options with shift",
    "click 280,200\nclick 280,200",
};

/// What shows pictures, cursors, strings and the other menu.
constexpr const char* kLooks = "move 250,260 with alt\nwait 1500\npanel flyout \"Copy Axes\"\n"
                               "panel hide\npanel show\ntheme dark\nredraw\ntheme light";

constexpr const char* kToLayer = "preference Facetta FTApplySel off";
constexpr const char* kLifeWithoutPanel = "new 400 400\n"
                                          "press 200,200\ndrag 300,200\nrelease\n"
                                          "tool options\n"
                                          "expect undo \"Undo Apply Symmetry Axes to Layer\"\n"
                                          "undo\nclose";

class Copy {
public:
    explicit Copy(const std::string& bytes)
        : folder_(std::filesystem::temp_directory_path() /
                  ("easel-validate-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(folder_);
        std::ofstream(file(), std::ios::binary) << bytes;
    }
    ~Copy() {
        std::error_code ignored; // Wine may still hold it
        std::filesystem::remove_all(folder_, ignored);
    }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    [[nodiscard]] std::filesystem::path file() const { return folder_ / pluginFileName(); }

private:
    std::filesystem::path folder_;
};

/// What stayed away, each with a message of its own.
struct Away {
    bool panel = false;
    int dialogs = 0;
};

/// Alerts since the last call: one when something has stayed away, none otherwise.
void judgeAlerts(Trials& trials, Sitting& sitting, const char* what, bool isAway) {
    const std::size_t alerts = sitting.takeReactions().alerts.size();
    if (alerts != (isAway ? 1 : 0))
        trials.fail(std::string(what) + (isAway ? " stays away" : " is there") + ", with " +
                    std::to_string(alerts) + " alerts");
}

/// In a damaged menu an item may stand for an act that there is nothing to do for: the plug-in says
/// so.
Away use(Session& session, Trials& trials, const std::string& library,
         std::size_t mostAlertsOfItems) {
    const Copy copy(library);
    Sitting sitting(session, copy.file());
    Away away;
    toTheEnd(trials, sitting, [&] {
        sitting.perform(commonSettings());
        sitting.perform(kToLayer);
        sitting.open(drawings()[1].text());
        away.panel = panelDialog(sitting.player().host()) == nullptr;
        judgeAlerts(trials, sitting, "the panel", away.panel);
        if (!away.panel) sitting.perform(linesTo(Stage::Opened));
        sitting.perform(linesTo(Stage::Tool));
        sitting.perform(linesTo(Stage::Pending));
        for (const char* const lines : kOpeners) {
            sitting.attempt(lines);
            judgeAlerts(trials, sitting, lines, !sitting.endedInDialog());
            away.dialogs += sitting.endedInDialog() ? 0 : 1;
        }
        sitting.attempt(kLooks);
        const Sitting::Reactions looks = sitting.takeReactions();
        for (const SPErr code : looks.codes)
            trials.fail("a message was answered with " + codeText(code));
        if (looks.alerts.size() > mostAlertsOfItems)
            trials.fail("an alert: \"" + looks.alerts.front() + '"');
        sitting.perform(away.panel ? kLifeWithoutPanel : lifeOfAxes());
    });
    return away;
}

} // namespace

void checkHostileResources(Session& session, Trials& trials) {
    std::string whole;
    {
        std::ifstream stream(trials.options().plugin, std::ios::binary);
        whole.assign(std::istreambuf_iterator<char>(stream), {});
    }
    std::vector<Resource> resources = readLibraryFile(trials.options().plugin).resources;
    std::erase_if(resources, [](const Resource& each) {
        return std::ranges::find(kTypes, each.type) == std::end(kTypes) || each.bytes.empty();
    });
    const auto nameOf = [](const Resource& resource) {
        return resource.type + ' ' + std::to_string(resource.id);
    };
    if (trials.begin(1, "a copy without damage")) {
        const Away away = use(session, trials, whole, 0);
        if (away.panel || away.dialogs != 0) trials.fail("something stays away");
    }

    const auto every = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{60, 30, 20, 1, 1}
                    : std::array<std::uint64_t, 5>{20, 4, 1, 1, 1});
    std::uint64_t number = 1;
    for (const Resource& resource : resources)
        for (const Damage& damage : kDamages) {
            const bool isLayout = resource.type == kLayout;
            if (++number % every != 0 && !isLayout) continue;
            if (!trials.begin(number, nameOf(resource) + " is " + damage.name)) continue;
            std::string damaged = whole;
            damage.apply(std::span(damaged).subspan(resource.place, resource.bytes.size()));
            const Away away = use(session, trials, damaged, resource.type == kMenu ? 1 : 0);
            const int parts = away.dialogs + (away.panel ? 1 : 0);
            // Layouts and menus belong to one each, strings to one at most, pictures to none.
            const bool isNeeded = isLayout || resource.type == kMenu;
            const bool mayBeNeeded = isNeeded || resource.type == kStrings;
            if (parts > (mayBeNeeded ? 1 : 0) || parts < (isNeeded ? 1 : 0))
                trials.fail(std::to_string(parts) + " parts of the interface stay away");
        }

    const auto random = trials.byStrictness<std::uint64_t>(
        onWindows() ? std::array<std::uint64_t, 5>{1, 5, 10, 500, 2000}
                    : std::array<std::uint64_t, 5>{20, 200, 1000, 10'000, 50'000});
    for (std::uint64_t i = 0; i < random && !resources.empty(); ++i) {
        Random choices = trials.random(kRandom + i);
        const Resource& resource = resources[choices() % resources.size()];
        if (!trials.begin(kRandom + i, nameOf(resource) + " has other bytes here and there"))
            continue;
        std::string damaged = whole;
        for (auto left = 1 + choices() % 8; left > 0; --left)
            damaged[resource.place + choices() % resource.bytes.size()] =
                static_cast<char>(choices());
        static_cast<void>(use(session, trials, damaged, resource.type == kMenu ? 1 : 0));
    }
}

} // namespace easel::validate
