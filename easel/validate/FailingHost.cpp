#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"

#include "easel/script/Dialogs.h"
#include "easel/script/System.h"

#include <algorithm>

/// The nth call of the host fails, for each act in each drawing and for each n, or for a sample of
/// them.

namespace easel::validate {
namespace {

using Mode = FaultPlan::Mode;

/// Tries of one act in one drawing have numbers in a block of this size.
constexpr std::uint64_t kBlock = 10'000;

constexpr std::array<AIErr, 4> kCodes = {kOutOfMemoryErr, kBadParameterErr,
                                         kUntouchableArtObjectErr, kCanceledErr};

/// Whoever ends an entry by reading or storing it has it taken from him in any case.
bool cannotFail(const std::string& function) {
    return function.starts_with("AI Entry Suite.To") || function == "AI Dictionary Suite.Set";
}

/// A reader of entries that answers "bad parameter" says that the entry is of another type, which
/// is a state of the drawing and no failure.
AIErr codeFor(const std::string& function, std::uint64_t choice) {
    const AIErr code = kCodes.at(choice % kCodes.size());
    const bool meansOtherType =
        code == kBadParameterErr && function.starts_with("AI Dictionary Suite.Get");
    return meansOtherType ? kOutOfMemoryErr : code;
}

/// An act in which nothing fails.
struct Rehearsal {
    std::string before;
    std::string after;
    std::vector<std::string> calls; ///< Those that can fail.
    std::size_t alerts = 0;
};

struct Case {
    const Act& act;
    const Drawing& drawing;
    [[nodiscard]] std::string name() const { return std::string(act.name) + " on " + drawing.name; }
};

/// Nothing where the drawing does not let the user do it: there is no leaf to select, or nothing to
/// undo.
std::optional<Rehearsal> rehearse(Session& session, const Options& options, const Case& which) {
    Sitting sitting(session, options.plugin);
    Rehearsal rehearsal;
    try {
        sitting.prepare(which.act, which.drawing.text());
        rehearsal.before = sitting.documents();
        session.calls.setRecording(true);
        sitting.perform(which.act.lines);
        session.calls.setRecording(false);
    } catch (const SessionError&) {
        session.calls.setRecording(false);
        static_cast<void>(sitting.finish());
        return std::nullopt;
    }
    rehearsal.after = sitting.documents();
    rehearsal.alerts = sitting.takeReactions().alerts.size();
    for (const SlotRecord* slot : session.calls.recorded())
        if (slot->returnsError) rehearsal.calls.push_back(slot->name);
    static_cast<void>(sitting.finish());
    return rehearsal;
}

std::string planText(const FaultPlan& plan, const std::string& function) {
    std::string text = "host call " + std::to_string(plan.call) + ", " + function +
                       ", fails with " + codeText(plan.code);
    if (plan.mode == Mode::FromThenOn) text += ", and all after it";
    if (plan.second != 0) text += ", and call " + std::to_string(plan.second);
    return text;
}

void judgeReactions(Trials& trials, const Rehearsal& rehearsal, const FaultPlan& plan,
                    const Sitting::Reactions& reactions) {
    for (const SPErr code : reactions.codes)
        if (code != plan.code)
            trials.fail("a message was answered with " + codeText(code) +
                        ", which no host call has failed with");
    if (reactions.alerts.size() > rehearsal.alerts + 1)
        trials.fail(std::to_string(reactions.alerts.size()) + " alerts: \"" +
                    reactions.alerts.front() + "\", \"" + reactions.alerts.back() + '"');
}

void judgeDocuments(Trials& trials, Sitting& sitting, const Rehearsal& rehearsal) {
    std::string found;
    const auto fits = [&] {
        found = sitting.documents();
        return found == rehearsal.before || found == rehearsal.after;
    };
    if (fits()) return;
    sitting.undo();
    if (!fits())
        trials.fail("the drawing is neither as before nor as after, nor one Undo away: " +
                    difference(rehearsal.before, found));
}

void tryFault(Session& session, Trials& trials, const Case& which, const Rehearsal& rehearsal,
              const FaultPlan& plan) {
    Sitting sitting(session, trials.options().plugin);
    sitting.prepare(which.act, which.drawing.text());
    static_cast<void>(sitting.takeReactions());
    session.calls.arm(plan);
    sitting.attempt(which.act.lines);
    const bool fired = session.calls.fired();
    session.calls.disarm();
    if (!fired) trials.fail("the call was not made: what is done depends on something else");
    judgeReactions(trials, rehearsal, plan, sitting.takeReactions());
    try {
        sitting.player().host().idle();
        judgeDocuments(trials, sitting, rehearsal);
        sitting.perform(lifeOfAxes());
    } catch (const SessionError& error) {
        trials.fail("afterwards " + std::string(error.what()));
    }
    for (const std::string& complaint : sitting.finish())
        trials.fail(complaint);
}

/// The plans for one act in one drawing. All of them when there is time; otherwise so many, chosen
/// at random, that every part of the act has its turn.
std::vector<FaultPlan> plansFor(const std::vector<std::string>& calls, std::size_t most,
                                Random random) {
    std::vector<FaultPlan> plans;
    for (std::uint64_t call = 1; call <= calls.size(); ++call) {
        if (cannotFail(calls[call - 1])) continue;
        const AIErr code = codeFor(calls[call - 1], random());
        plans.push_back({Mode::Once, call, {}, code});
        plans.push_back({Mode::FromThenOn, call, {}, code});
        if (call < calls.size())
            plans.push_back(
                {Mode::Once, call, {}, code, call + 1 + random() % (calls.size() - call)});
    }
    std::ranges::shuffle(plans, random);
    plans.resize(std::min(plans.size(), most));
    return plans;
}

/// How much of it is tried.
struct Sample {
    std::size_t drawings; ///< For each act; another one for the next act.
    std::size_t plans;    ///< For each act and drawing.
};
constexpr std::array<Sample, 5> kSamples = {
    {{1, 4}, {3, 10}, {6, 120}, {6, 1000}, {6, kBlock - 1}}};
/// Where the plug-in has real windows, a start of it takes a hundred times as long; and each act in
/// each drawing is rehearsed, which is another start.
constexpr std::array<Sample, 5> kSamplesWithWindows = {{{1, 1}, {3, 1}, {3, 2}, {6, 20}, {6, 200}}};

} // namespace

void checkFailingHost(Session& session, Trials& trials) {
    const Sample sample = trials.byStrictness(onWindows() ? kSamplesWithWindows : kSamples);
    std::uint64_t first = 1;
    std::size_t turn = 0;
    for (const Act& act : acts()) {
        bool possible = sample.drawings < drawings().size();
        for (const Drawing& drawing : drawings()) {
            const std::uint64_t begin = first;
            first += kBlock;
            if (turn++ % drawings().size() >= sample.drawings) continue;
            if (!trials.wantsUpTo(first - 1)) {
                possible = true;
                continue;
            }
            const Case which{act, drawing};
            const std::optional<Rehearsal> rehearsal = rehearse(session, trials.options(), which);
            if (!rehearsal) continue;
            possible = true;
            const std::vector<FaultPlan> plans =
                plansFor(rehearsal->calls, sample.plans, trials.random(begin));
            for (std::size_t i = 0; i < plans.size(); ++i) {
                const std::string what =
                    which.name() + ": " + planText(plans[i], rehearsal->calls[plans[i].call - 1]);
                if (trials.begin(begin + i, what))
                    tryFault(session, trials, which, *rehearsal, plans[i]);
            }
        }
        ++turn; // so that a small sample takes the drawings in turn
        if (!possible && trials.begin(first - 1, act.name))
            trials.fail("no drawing lets the user do this");
    }
}

} // namespace easel::validate
