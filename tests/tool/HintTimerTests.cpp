#include "tests/tool/Annotated.h"
#include "tool/drawing/HintDrawing.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

/// A hint that has been shown for `age` milliseconds, beside a cursor that rests.
void hintOfAge(ai::uint64 age) {
    showHint(thePlugin->tool.hint, HintId::MoveOrigin, platform::ticks() - age);
}

const easel::Timer* onlyTimer(const Session& session) {
    const easel::Timer* found = nullptr;
    for (const auto& [handle, timer] : session.host.timers)
        found = timer.get();
    return found;
}

/// What is to be drawn anew after a tenth of a second in which nothing happens.
std::vector<AIRect> invalidAfterRest(Session& session) {
    static_cast<void>(drawn(session)); // clears what was invalid before
    session.host.clock.advance(100);
    session.host.idle();
    return session.host.annotators.invalid;
}

} // namespace

TEST_CASE("a hint beside a resting cursor stays, fades and goes by itself") {
    ToolInHand session;
    session.host.track({.at = {300, -250}});
    CHECK(onlyTimer(session) == nullptr); // none is needed before there is a hint

    hintOfAge(0);
    session.host.track({.at = {300, -250}});
    REQUIRE(onlyTimer(session) != nullptr);
    CHECK(onlyTimer(session)->active);
    CHECK(invalidAfterRest(session).empty()); // it is whole

    hintOfAge(kHintLifetime - 50);
    const std::vector<AIRect> fading = invalidAfterRest(session);
    REQUIRE(fading.size() == 1);
    CHECK(contains(widen(fading[0]), pixelsOf(session, {300, -250}) + Vector{12, -9}));

    hintOfAge(kHintLifetime + 1);
    easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                .call = 1,
                                .function = "AI Timer Suite.SetTimerActive"});
    CHECK(invalidAfterRest(session).size() == 1); // once more, to take it away
    CHECK(easel::session().calls.fired());
    easel::session().calls.disarm();
    CHECK(onlyTimer(session)->active); // the host has not stopped it; it is told again
    CHECK(invalidAfterRest(session).size() == 1);
    CHECK_FALSE(onlyTimer(session)->active);
    CHECK(invalidAfterRest(session).empty());

    hintOfAge(0);
    session.host.track({.at = {300, -250}});
    CHECK(onlyTimer(session)->active);
} // the plug-in ends now: a timer that goes on running would be among the host's complaints
