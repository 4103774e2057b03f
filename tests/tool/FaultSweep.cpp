#include "tests/tool/FaultSweep.h"

#ifdef _WIN32
#include "tests/tool/MessagesAnswered_win32.h"
#endif

namespace facetta::tests {
namespace {

using easel::FaultPlan;
using Mode = FaultPlan::Mode;

std::vector<std::string> callsOf(const FaultAction& action) {
    Drawing session(/*selected*/ true);
    action.prepare(session);
    return fallibleCalls([&] { action.perform(session); });
}

/// A whole gesture and a picture of it, without any failure.
void checkGoesOn(Drawing& session) {
    session.host.sent.clear(); // holds what has failed
    session.host.selectTool(nullptr);
    session.host.selectTool(thePlugin->toolHandle);
    session.dragFrom({520, -300}, {620, -260});
    CHECK(hasAxes(session.tool()));
    CHECK_FALSE(session.tool().gesture);
    CHECK_FALSE(session.tool().repositionArt);
    CHECK_FALSE(session.host.drawAnnotations(nullptr).empty());
    CHECK(session.host.sent.empty());
}

void performWithFault(const FaultAction& action, const FaultPlan& plan) {
    Drawing session(/*selected*/ true);
    action.prepare(session);
    // A stamp that cannot be read only has a layer mirrored once more, with the same result.
    const std::string before = session.textButStamp();
    session.host.sent.clear();
    easel::session().calls.arm(plan);
    action.perform(session);
    CHECK(easel::session().calls.fired());
    easel::session().calls.disarm();
    CHECK(session.host.user.alerts.size() <= 1);
    for (const easel::SentMessage& failed : session.host.sent)
        CHECK(failed.result == plan.code);
    if (session.textButStamp() != before) {
        session.host.undo();
        CHECK(session.textButStamp() == before);
    }
    checkGoesOn(session);
}

} // namespace

bool givesBack(const std::string& function) {
    if (function.starts_with("AI Entry Suite.To") || function == "AI Dictionary Suite.Set")
        return true;
    for (const char* const end :
         {"Destroy", "Release", "DisposeArtSet", "PopAppContext", "DeleteFilePath"})
        if (function.ends_with(end)) return true;
    return false;
}

/// Every call where keys and clock are the test's own. Under Wine each key read asks another
/// process, and a whole sweep takes minutes; the plug-in's code is the same there.
#ifdef _WIN32
constexpr std::size_t kStride = 7;
#else
constexpr std::size_t kStride = 1;
#endif

/// One call in so many also fails in another way: with all that follow, with the next, or with a
/// code that means something else.
constexpr std::size_t kFurtherFaults = 5;

void sweepFaults(std::span<const FaultAction> actions) {
#ifdef _WIN32
    const MessagesAnswered answered;
#endif
    for (const FaultAction& action : actions) {
        const std::vector<std::string> names = callsOf(action);
        REQUIRE(names.size() > 10);
        for (std::size_t call = 1; call <= names.size(); call += kStride) {
            if (givesBack(names[call - 1])) continue;
            const std::string what = std::string(action.name) + ", " + names[call - 1];
            INFO(what, ", host call ", call);
            performWithFault(action, {Mode::Once, call, {}, kOutOfMemoryErr});
            if (call % kFurtherFaults != 0) continue;
            const FaultPlan further[] = {
                {Mode::FromThenOn, call, {}, kOutOfMemoryErr},
                {Mode::Once, call, {}, kOutOfMemoryErr, call + 1},
                {Mode::Once, call, {}, kUntouchableArtObjectErr},
            };
            const FaultPlan& other = further[call / kFurtherFaults % std::size(further)];
            INFO("all from then on: ", other.mode == Mode::FromThenOn, ", and call ", other.second);
            performWithFault(action, other);
        }
    }
}

} // namespace facetta::tests
