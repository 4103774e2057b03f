#include "easel/script/System.h"
#include "easel/validate/Checks.h"
#include "easel/validate/Drawings.h"
#include "easel/validate/Sitting.h"
#include "easel/validate/Usage.h"

/// What is done again and again takes no more memory each time. Host and plug-in share a process,
/// so the rounds leave nothing in the host either, such as steps of undo.

namespace easel::validate {
namespace {

constexpr std::size_t kMostBytes = 1 << 20;

constexpr Act kRounds[] = {
    {"hover and drag", Stage::Tool,
     "move 250,260\nmove 230,240\npress 200,200\ndrag 300,180 in 20\nrelease\n"
     "press 200,200\ndrag 210,210 in 10\ndrag 211,210 with escape\nrelease"},
    {"an edit that is taken back", Stage::OnLayer,
     "press 300,200\ndrag 300,150 in 3\ndrag 300,140 with escape\nrelease"},
    {"numbers typed in the panel", Stage::Pending,
     "panel type 9 \"230\" then enter\npanel type 9 \"200\" then enter\npanel spin 15 up\n"
     "panel spin 15 down"},
    {"a dialog opened and cancelled", Stage::Tool, "tool options with shift\ndialog key escape"},
    {"the panel collapsed, hidden and shown", Stage::OnLayer,
     "panel collapse\npanel expand\npanel hide\npanel show"},
    {"drawn anew", Stage::OnLayer, "redraw", "", "preference Facetta FTUseOverlay on"},
    {"another look", Stage::Pending, "theme dark\ntheme light\nzoom 2\nzoom 1"},
};

void judge(Trials& trials, const Usage& before, const Usage& after) {
    if (after.bytes > before.bytes + kMostBytes)
        trials.fail("it has taken " + std::to_string(after.bytes - before.bytes) + " bytes");
    if (after.objects > before.objects)
        trials.fail("it has taken " + std::to_string(after.objects - before.objects) +
                    " objects of the system's");
}

/// A quarter of the rounds goes before, for what is made once.
template <typename Round> void repeat(Trials& trials, int rounds, Round round) {
    for (int i = 0; i < rounds / 4; ++i)
        round();
    const Usage before = usage();
    for (int i = 0; i < rounds; ++i)
        round();
    judge(trials, before, usage());
}

void repeatAct(Session& session, Trials& trials, const Act& act, int rounds) {
    Sitting sitting(session, trials.options().plugin);
    toTheEnd(trials, sitting, [&] {
        sitting.prepare(act, manyLeaves(10));
        repeat(trials, rounds, [&] {
            sitting.perform(act.lines);
            sitting.player().host().cursorSnap.calls = {}; // the host's own record
        });
    });
}

void startAndQuit(Session& session, Trials& trials, int rounds) {
    repeat(trials, rounds, [&] {
        Sitting sitting(session, trials.options().plugin);
        sitting.perform(lifeOfAxes());
        finish(trials, sitting);
    });
}

} // namespace

void checkSteadiness(Session& session, Trials& trials) {
    // Of hovering and dragging 3,000 rounds are 100,000 messages.
    const int rounds = trials.byStrictness<int>(
        onWindows() ? std::array{8, 20, 60, 1000, 3000} : std::array{40, 200, 2000, 3000, 3000});
    const std::string times = ", " + std::to_string(rounds) + " times";
    std::uint64_t number = 0;
    for (const Act& act : kRounds)
        if (trials.begin(++number, act.name + times)) repeatAct(session, trials, act, rounds);
    if (trials.begin(++number, "start and quit" + times)) startAndQuit(session, trials, rounds);
}

} // namespace easel::validate
