#include "bench/Sitting.h"

#include "bench/Allocations.h"
#include "bench/Drawings.h"
#include "bench/Stopwatch.h"
#include "easel/document/Attributes.h"
#include "easel/runtime/Library.h"
#include "easel/script/Dialogs.h"
#include "host/suites/AIArtSuite.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace facetta::bench {
namespace {

constexpr const char* kToolName = "Facetta Tool";

/// The plug-in's entry, and the time spent behind it.
struct TimedEntry {
    SPPluginEntryFunc entry;
    int depth = 0; ///< The plug-in may make the host send it a message.
    double seconds = 0;
};

/// Loaded once: it holds nothing between one start and the next.
SPPluginEntryFunc pluginEntry() {
    static const easel::Library library{FACETTA_LIBRARY};
    return library.entry("PluginMain");
}

/// An entry is a plain function, which can carry nothing with it.
TimedEntry& timedEntry() {
    static TimedEntry timed{.entry = pluginEntry()};
    return timed;
}

SPErr enterPlugin(const char* caller, const char* selector, void* message) {
    TimedEntry& timed = timedEntry();
    const Stopwatch watch;
    ++timed.depth;
    const SPErr result = timed.entry(caller, selector, message);
    if (--timed.depth == 0) timed.seconds += watch.seconds();
    return result;
}

/// What one host call adds to the plug-in's time while the host's clock runs. It is a property of
/// the machine, not of a sitting.
double& clockCostPerCall() {
    static double seconds = std::numeric_limits<double>::infinity();
    return seconds;
}

/// Behind the plug-in's entry and in no function of the host.
bool inPlugin() { return timedEntry().depth > 0 && easel::session().calls.current() == nullptr; }

[[noreturn]] void giveUp(const std::string& why) {
    std::fprintf(stderr, "bench: %s\n", why.c_str());
    std::exit(1);
}

} // namespace

Sitting::Sitting(int axes, easel::MirrorMode mode)
    : session_(easel::sessionWithSuites()), mode_(mode) {
    timedEntry() = {.entry = pluginEntry()};
    easel::MirrorRequest request;
    request.axes = axes;
    request.mode = mode;
    session_.prepare(request);
    session_.host.addPlugin("Facetta", enterPlugin);
    session_.start();
    session_.host.cursorSnap.enabled = false;
}

Sitting::~Sitting() {
    while (!session_.host.documents().empty())
        session_.host.close(*session_.host.documents().back());
    const std::vector<std::string> complaints = session_.finish();
    if (!complaints.empty()) giveUp(complaints.front());
}

easel::Document& Sitting::open(std::unique_ptr<easel::Document> drawing) {
    easel::Host& host = session_.host;
    easel::Document& document = host.open(std::move(drawing));
    if (mode_ == easel::MirrorMode::Selection)
        host.edit("Select", [](easel::Document& changed) { easel::selectAll(changed); });
    const easel::MousePoint origin{kOrigin};
    host.selectTool(host.tools.named(kToolName));
    host.track(origin);
    host.press(origin);
    host.release(origin);
    return document;
}

Cost Sitting::apply(Take take) {
    return measure([this] { session_.host.editToolOptions(); }, take);
}

Cost Sitting::edit(const std::function<void(easel::Document&)>& change, Take take) {
    return measure([&] { session_.host.edit("Edit", change); }, take);
}

Cost Sitting::drag(AIRealPoint to, Take take) {
    return measure([&] { session_.host.drag({.at = to}); }, take);
}

Cost Sitting::draw(Take take) {
    return measure([this] { static_cast<void>(session_.host.drawAnnotations(nullptr)); }, take);
}

void Sitting::showPanel() {
    easel::Panels& panels = session_.host.panels;
    panels.show(panels.named(U"Facetta"), true);
}

/// The plug-in is entered by its window here, and by no message.
Cost Sitting::usePanel(const std::function<void(door::Dialog&)>& act, Take take) {
    door::Dialog* const panel = easel::panelDialog(session_.host);
    if (panel == nullptr) giveUp("there is no panel");
    const auto enter = [&] {
        TimedEntry& timed = timedEntry();
        const Stopwatch watch;
        ++timed.depth;
        act(*panel);
        --timed.depth;
        timed.seconds += watch.seconds();
        session_.host.idle();
    };
    return measure(enter, take);
}

Cost Sitting::measure(const std::function<void()>& action, Take take) {
    easel::HostCalls& calls = easel::session().calls;
    if (take == Take::OwnTime && !clockMeasured_) measureClock();
    calls.resetCounts();
    calls.setTiming(take == Take::OwnTime);
    timedEntry().seconds = 0;
    countAllocations(take == Take::OwnAllocations ? inPlugin : nullptr);
    const Stopwatch watch;
    action();
    Cost cost{.seconds = watch.processorSeconds(),
              .ownSeconds = 0,
              .hostCalls = calls.total(),
              .ownAllocations = allocationCount()};
    countAllocations(nullptr);
    calls.setTiming(false);
    for (const easel::SentMessage& message : session_.host.sent) // failed ones, nothing else
        giveUp(message.caller + '/' + message.selector + ": " + easel::codeText(message.result));
    if (take == Take::OwnTime)
        cost.ownSeconds = ownSeconds(clockCostPerCall() * static_cast<double>(cost.hostCalls));
    return cost;
}

/// By the wall clock, the only one quick enough to be read at each host call. Other programs that
/// interrupt the plug-in only ever add to it. A run that took less than its clock is thought to
/// have cost tells nothing: it counts as endless, so that it is never the least.
double Sitting::ownSeconds(double clockCost) {
    const double own = timedEntry().seconds - easel::session().calls.seconds() - clockCost;
    return own > 0 ? own : std::numeric_limits<double>::infinity();
}

/// Once a sitting, because it leaves the processor's caches without the plug-in: then the next
/// action is slow. The least of all rounds and sittings counts, so that too little rather than too
/// much is taken off.
void Sitting::measureClock() {
    constexpr int kRounds = 5;
    constexpr int kCalls = 20'000;
    const auto& suite = hostSuite<AIArtSuite>(kAIArtSuite, kAIArtSuiteVersion);
    const AIArtHandle art = easel::session().document().root().firstChild()->handle();
    easel::HostCalls& calls = easel::session().calls;
    calls.setTiming(true);
    for (int round = 0; round < kRounds; ++round) {
        calls.resetCounts();
        const Stopwatch watch;
        for (int call = 0; call < kCalls; ++call) {
            ai::int16 type = 0;
            suite.GetArtType(art, &type);
        }
        const double added = (watch.seconds() - calls.seconds()) / kCalls;
        clockCostPerCall() = std::min(clockCostPerCall(), added);
    }
    calls.setTiming(false);
    clockMeasured_ = true;
}

} // namespace facetta::bench
