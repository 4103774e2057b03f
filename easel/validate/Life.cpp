#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"

#include "easel/script/Dialogs.h"
#include "easel/script/System.h"
#include "host/MessageNames.h"

#include <algorithm>
#include <cstring>
#include <limits>

/// Starting, quitting, and what the host does in between: it starts a plug-in again, unloads its
/// library, refuses it suites, fails while it starts, and sends it what nobody expects.

namespace easel::validate {
namespace {

using Mode = FaultPlan::Mode;

/// Each kind of try has numbers of its own, from a multiple of this on.
constexpr std::uint64_t kKind = 1'000'000;

/// How much of it is tried.
struct Sample {
    std::size_t cycles;
    std::size_t reloads; ///< Drawings in which the library is loaded anew before each act.
    std::size_t refusals;
    std::size_t faults;
    std::size_t batches; ///< Of random messages.
};
constexpr std::array<Sample, 5> kSamples = {{{20, 1, 40, 60, 10},
                                             {100, 2, 300, 500, 50},
                                             {1000, 6, 1000, 4000, 300},
                                             {1000, 6, 10'000, 20'000, 1000},
                                             {10'000, 6, 50'000, 100'000, 1000}}};
constexpr std::array<Sample, 5> kSamplesWithWindows = {{{3, 0, 10, 10, 4},
                                                        {20, 0, 60, 40, 10},
                                                        {30, 1, 80, 60, 20},
                                                        {1000, 6, 1000, 1000, 300},
                                                        {1000, 6, 2000, 5000, 1000}}};
constexpr int kMessagesOfBatch = 1000;

void live(Session& session, Trials& trials) {
    Sitting sitting(session, trials.options().plugin);
    toTheEnd(trials, sitting, [&] { sitting.perform(lifeOfAxes()); });
}

void cycle(Session& session, Trials& trials, std::size_t cycles) {
    for (std::size_t i = 1; i <= cycles; ++i)
        if (trials.begin(i, "start and quit")) live(session, trials);
}

/// The drawing before and after an act. Throws SessionError where the drawing does not let the user
/// do it.
std::pair<std::string, std::string> leadsTo(Sitting& sitting, const Act& act,
                                            const std::string& drawing, const char* between) {
    sitting.prepare(act, drawing);
    sitting.perform(between);
    std::string before = sitting.documents();
    sitting.perform(act.lines);
    return {std::move(before), sitting.documents()};
}

/// An act leads to the same drawing when the library was loaded elsewhere before it.
void reloadBefore(Session& session, Trials& trials, const Act& act, const std::string& drawing) {
    std::pair<std::string, std::string> expected;
    {
        Sitting sitting(session, trials.options().plugin);
        try {
            expected = leadsTo(sitting, act, drawing, "");
        } catch (const SessionError&) {
            static_cast<void>(sitting.finish());
            return;
        }
        static_cast<void>(sitting.takeReactions());
        finish(trials, sitting);
    }
    Sitting sitting(session, trials.options().plugin);
    toTheEnd(trials, sitting, [&] {
        if (leadsTo(sitting, act, drawing, "reload") != expected)
            trials.fail("the act leads to another drawing");
        static_cast<void>(sitting.takeReactions());
    });
}

void reload(Session& session, Trials& trials, std::size_t most) {
    std::uint64_t number = kKind;
    std::size_t turn = 0;
    for (const Act& act : acts()) {
        for (const Drawing& drawing : drawings()) {
            ++number;
            if (turn++ % drawings().size() >= most) continue;
            if (trials.begin(number, std::string("library loaded anew before ") + act.name +
                                         " on " + drawing.name))
                reloadBefore(session, trials, act, drawing.text());
        }
        ++turn;
    }
}

/// Starts, does what can be done, and quits. What starts must end in order; what does not start
/// must be quiet from then on.
void startAgainstOdds(Session& session, Trials& trials) {
    Sitting sitting(session, trials.options().plugin);
    bool started = true;
    try {
        sitting.perform("wait 1");
    } catch (const SessionError&) {
        started = false;
    }
    session.calls.disarm();
    session.suites.refuseAcquisition(0);
    if (started) sitting.attempt(lifeOfAxes());
    const Sitting::Reactions reactions = sitting.takeReactions();
    if (reactions.alerts.size() > 2)
        trials.fail(std::to_string(reactions.alerts.size()) + " alerts, the first: \"" +
                    reactions.alerts.front() + '"');
    for (const std::string& complaint : sitting.finish())
        if (complaint.find("start-up failed with") == std::string::npos) trials.fail(complaint);
}

/// Each suite alone, then two by two.
void refuse(Session& session, Trials& trials, std::size_t most) {
    session.suites.refuseAcquisition(0);
    live(session, trials);
    const int suites = session.suites.acquisitions();
    for (std::uint64_t i = 0; i < most; ++i) {
        const std::uint64_t number = 2 * kKind + i;
        Random random = trials.random(number);
        const auto any = [&] {
            return 1 + static_cast<int>(random() % static_cast<unsigned>(suites));
        };
        // With few tries the single ones are spread over the table.
        const bool alone = i < static_cast<std::uint64_t>(suites) || i % 2 == 0;
        const int first = most >= static_cast<std::size_t>(suites) && alone
                              ? 1 + static_cast<int>(i % static_cast<unsigned>(suites))
                              : any();
        const int second = alone ? 0 : any();
        if (!trials.begin(number, "suite " + std::to_string(first) +
                                      (alone ? "" : " and suite " + std::to_string(second)) +
                                      " of " + std::to_string(suites) + " refused"))
            continue;
        session.suites.refuseAcquisition(first, second);
        startAgainstOdds(session, trials);
        live(session, trials);
    }
}

/// The nth call that can fail of a start fails, or all from then on.
void failAtStart(Session& session, Trials& trials, std::size_t most) {
    session.calls.setRecording(true);
    {
        Sitting sitting(session, trials.options().plugin);
        static_cast<void>(sitting.player().host());
        session.calls.setRecording(false);
        static_cast<void>(sitting.finish());
    }
    const auto calls = static_cast<std::uint64_t>(
        std::ranges::count_if(session.calls.recorded(), &SlotRecord::returnsError));
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(most, 4 * calls); ++i) {
        const std::uint64_t number = 3 * kKind + i;
        Random random = trials.random(number);
        const bool all = most >= 4 * calls;
        const std::uint64_t call = 1 + (all ? i / 4 : random() % calls);
        const bool forGood = i % 4 == 1;
        const std::uint64_t second = i % 4 == 2 ? call + 1 + random() % calls : 0;
        const AIErr code = i % 4 == 3 ? kBadParameterErr : kOutOfMemoryErr;
        if (!trials.begin(number, "host call " + std::to_string(call) +
                                      (forGood ? " and all after it fail" : " fails") +
                                      (second != 0 ? " with call " + std::to_string(second) : "") +
                                      " while the plug-in starts"))
            continue;
        session.calls.arm({forGood ? Mode::FromThenOn : Mode::Once, call, {}, code, second});
        startAgainstOdds(session, trials);
        live(session, trials);
    }
}

// Messages that nobody expects

constexpr const char* kCallers[] = {
    kCallerTool,   kCallerMenu,      kCallerNotifier,    kCallerAnnotation, kCallerTimer,
    kCallerAction, kCallerFilter,    kCallerPluginGroup, kCallerFileFormat, kCallerLiveEffect,
    kCallerCache,  kCallerClipboard, kCallerProperties,  kCallerWorkspace,  "SP Adapters",
};
constexpr const char* kSelectors[] = {
    kSelectorAbout,
    kSelectorPurge,
    kSelectorNotify,
    kSelectorGo,
    kSelectorUpdate,
    kSelectorEditOptions,
    kSelectorTrackCursor,
    kSelectorMouseDown,
    kSelectorMouseDrag,
    kSelectorMouseUp,
    kSelectorSelect,
    kSelectorDeselect,
    kSelectorReselect,
    kSelectorDraw,
    kSelectorInvalidate,
    kSelectorDoAction,
    kSelectorCheck,
    kSelectorDecreaseDiameter,
    kSelectorIncreaseDiameter,
    kSelectorWriteWorkspace,
    kSelectorGetParameters,
};
constexpr const char* kTypes[] = {
    kApplicationStartedNotifier,
    kAllPluginsStartedNotifier,
    kUIBrightnessChangedNotifier,
    kPreferenceChangedNotifier,
    kArtSelectionChangedNotifier,
    kArtPropertiesChangedNotifier,
    "AI Document Closed Notifier",
    "AI Current Layer Notifier",
    "AI Layer Set Notifier",
    "AI Command Notifier: After Undo",
    "Norvane Show All Panels Notifier",
    "",
};

/// One of the words, now and then misspelt.
std::string word(std::span<const char* const> words, Random& random) {
    std::string text = words[random() % words.size()];
    switch (random() % 12) {
    case 0:
        text.resize(random() % (text.size() + 1));
        break;
    case 1:
        text.push_back(static_cast<char>(1 + random() % 127));
        break;
    case 2:
        if (!text.empty()) text[random() % text.size()] ^= 0x20;
        break;
    default:
        break;
    }
    return text;
}

class Stranger {
public:
    Stranger(Host& host, Random& random) : host_(host), random_(random) {
        plugin_ = host.plugins.handles().front();
    }

    /// A record of the kind that the caller sends, with handles of the plug-in's own or none.
    void send() {
        const std::string caller = word(kCallers, random_);
        const std::string selector = word(kSelectors, random_);
        if (caller == kCallerNotifier) {
            AINotifierMessage message{};
            const std::string type = word(kTypes, random_);
            message.type = type.c_str();
            deliver(caller, selector, message);
        } else if (caller == kCallerAnnotation) {
            AIAnnotatorMessage message{};
            pick(message.annotator, host_.annotators.annotators);
            message.view = random_() % 2 == 0 ? host_.currentView() : nullptr;
            deliver(caller, selector, message);
        } else if (caller == kCallerMenu) {
            AIMenuMessage message{};
            pick(message.menuItem, host_.menus.items);
            deliver(caller, selector, message);
        } else if (caller == kCallerTimer) {
            AITimerMessage message{};
            pick(message.timer, host_.timers);
            deliver(caller, selector, message);
        } else {
            // The largest record there is, so that whoever reads one too many reads zeros.
            struct Largest {
                SPMessageData d;
                std::array<std::byte, 512> rest;
            } message{};
            AIToolMessage tool{};
            tool.tool = random_() % 2 == 0
                            ? host_.tools.handleOf(host_.tools.numberOf("Facetta Tool"))
                            : nullptr;
            tool.cursor = {coordinate(), coordinate()};
            if (caller == kCallerTool)
                std::memcpy(static_cast<void*>(&message), &tool, sizeof tool);
            deliver(caller, selector, message);
        }
    }

    /// Nulls in place of words and record.
    void sendNothing() {
        const SPPluginEntryFunc entry = host_.plugins.at(plugin_).entry;
        SPInterfaceMessage message{};
        const unsigned nulls = 1 + static_cast<unsigned>(random_() % 7);
        static_cast<void>(entry((nulls & 1U) != 0 ? nullptr : kCallerTool,
                                (nulls & 2U) != 0 ? nullptr : kSelectorSelect,
                                (nulls & 4U) != 0 ? nullptr : &message));
    }

private:
    template <typename Message>
    void deliver(const std::string& caller, const std::string& selector, Message& message) {
        static_cast<void>(host_.send(plugin_, caller.c_str(), selector.c_str(), message));
    }
    template <typename Handle, typename Things> void pick(Handle& handle, const Things& things) {
        const auto handles = things.handles();
        if (!handles.empty() && random_() % 2 == 0) handle = handles[random_() % handles.size()];
    }
    AIReal coordinate() {
        constexpr std::array<AIReal, 6> kOdd = {
            0, -1, 16383, -1e30F, 1e30F, std::numeric_limits<AIReal>::quiet_NaN()};
        if (random_() % 8 == 0) return kOdd.at(random_() % kOdd.size());
        return static_cast<AIReal>(random_() % 3000) - 1000;
    }

    Host& host_;
    Random& random_;
    SPPluginRef plugin_;
};

void sendBatch(Session& session, Trials& trials, Random random) {
    Sitting sitting(session, trials.options().plugin);
    sitting.open(drawings()[random() % drawings().size()].text());
    sitting.perform(linesTo(Stage::Tool));
    Stranger stranger(sitting.player().host(), random);
    int left = kMessagesOfBatch;
    serveUser([&] {
        if (left-- <= 0) return false;
        if (random() % 50 == 0) {
            stranger.sendNothing();
        } else if (Dialog* const dialog = modalDialog(); dialog != nullptr && random() % 4 != 0) {
            dialog->clickCloseBox(); // or they would pile up
        } else {
            stranger.send();
        }
        return true;
    });
    static_cast<void>(sitting.takeReactions());
    try {
        sitting.perform(lifeOfAxes());
    } catch (const SessionError& error) {
        trials.fail("afterwards " + std::string(error.what()));
    }
    finish(trials, sitting);
}

void surprise(Session& session, Trials& trials, std::size_t batches) {
    for (std::uint64_t i = 0; i < batches; ++i) {
        const std::uint64_t number = 4 * kKind + i;
        if (trials.begin(number, std::to_string(kMessagesOfBatch) + " random messages"))
            sendBatch(session, trials, trials.random(number));
    }
}

} // namespace

void checkLife(Session& session, Trials& trials) {
    const Sample sample = trials.byStrictness(onWindows() ? kSamplesWithWindows : kSamples);
    cycle(session, trials, sample.cycles);
    reload(session, trials, sample.reloads);
    refuse(session, trials, sample.refusals);
    failAtStart(session, trials, sample.faults);
    surprise(session, trials, sample.batches);
}

} // namespace easel::validate
