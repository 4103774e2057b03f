#include "tests/FallibleCalls.h"
#include "tests/tool/Drawing.h"
#include "tests/tool/KeysHeld.h"
#include "tests/ui/DialogUser.h"

#include <cmath>

using namespace facetta;
using namespace facetta::tests;
using Mode = easel::FaultPlan::Mode;
using platform::Key;

namespace {

/// A dialog, how it is opened, and what the user does in it. A dialog that a failure has closed is
/// not used any further.
struct DialogAction {
    const char* name;
    void (*prepare)(Drawing&);
    void (*open)(Drawing&);
    std::vector<DialogUser::Act> acts;
    bool lendsPaths = false; ///< which a host that fails throughout does not take back
};

// Places are numbers here: to compute them from the axes asks the host.
void clickAxes(Drawing& session) { session.click({350, -200}); }

/// The first of two clicks.
void onceClicked(Drawing& session) { clickAxes(session); }
void onLayer(Drawing& session) {
    session.makeLive(/*withGuides*/ true);
    clickAxes(session);
}
void nothing(Drawing&) {}

void clickWithAlt(Drawing& session) {
    const KeysHeld held({Key::Alt});
    clickAxes(session);
}
void openPreferences(Drawing& session) {
    const KeysHeld held({Key::Shift});
    session.host.editToolOptions();
}
void openPreferencesByPanel(Drawing& session) {
    session.host.chooseFlyoutItem(session.host.panels.named(U"Facetta"), 14); // the last entry
}
void openAbout(Drawing& session) {
    session.host.user.browserAvailable = true;
    session.host.chooseMenuItem(thePlugin->menuItems.about);
}

DialogUser::Act entering(int field, const char* text) {
    return [=](DialogUser& user) { user.enter(field, text); };
}
DialogUser::Act clicking(int button) {
    return [=](DialogUser& user) { user.click(button); };
}

/// One edit each: a field that cannot ask for its limits may refuse what is typed, and the user
/// goes on.
const DialogAction kActions[] = {
    {"x of pending axes", onceClicked, clickAxes, {entering(4, "250"), clicking(1)}},
    {"angle of pending axes", onceClicked, clickAxes, {entering(8, "45"), clicking(1)}},
    {"count, cancelled", onceClicked, clickAxes, {entering(11, "5"), clicking(2)}},
    {"count of a layer's axes", onLayer, clickAxes, {entering(11, "5"), clicking(1)}},
    {"a layer's axes with its art", onLayer, clickWithAlt, {entering(8, "45"), clicking(1)}},
    {"the same, cancelled", onLayer, clickWithAlt, {entering(4, "250"), clicking(2)}},
    {"preferences", nothing, openPreferences, {clicking(3), clicking(6), clicking(1)}},
    {"preferences by the panel", nothing, openPreferencesByPanel, {clicking(3), clicking(1)}},
    {"help", nothing, openAbout, {clicking(5)}, /*lendsPaths*/ true},
    {"buy", nothing, openAbout, {clicking(1)}},
};

void perform(const DialogAction& action, Drawing& session) {
    auto next = action.acts.begin();
    DialogUser user;
    const DialogUser::Act act = [&](DialogUser& hands) {
        (*next++)(hands);
        if (next != action.acts.end()) hands.act = act;
    };
    user.act = act;
    action.open(session);
}

/// What an action leaves, for comparison. A stamp that cannot be read only has a layer mirrored
/// once more, with the same result. Axes go with the document when the host fails throughout, and
/// come back with it.
struct Outcome {
    Outcome(const Drawing& session, Mode mode)
        : document(session.textButStamp()), settings{thePlugin->preferences.initialDragMovesOrigin,
                                                     thePlugin->preferences.removePoints} {
        const SymmetryAxes& shown = session.axes();
        if (mode == Mode::Once)
            axes = {shown.originX, shown.originY, std::round(1e6 * shown.angle),
                    static_cast<double>(shown.axisCount)};
    }

    std::string document;
    std::vector<bool> settings;
    std::vector<double> axes;

    bool operator==(const Outcome&) const = default;
};

/// An action that nothing fails in.
struct Rehearsal {
    Outcome before;
    Outcome after;
    std::vector<std::string> calls; ///< those that may fail
};

Rehearsal rehearse(const DialogAction& action, Mode mode) {
    Drawing session(/*selected*/ true);
    action.prepare(session);
    const Outcome before(session, mode);
    std::vector<std::string> calls = fallibleCalls([&] { perform(action, session); });
    return {before, Outcome(session, mode), std::move(calls)};
}

/// The same dialog once more, without any failure.
void checkGoesOn(const DialogAction& action, Drawing& session) {
    session.host.sent.clear();
    session.host.user.alerts.clear();
    action.prepare(session);
    perform(action, session);
    CHECK_FALSE(thePlugin->dialogs.open);
    CHECK_FALSE(session.tool().gesture);
    CHECK_FALSE(session.tool().repositionArt);
    CHECK(NRDM::program() == nullptr);
    CHECK(session.host.user.alerts.empty());
    CHECK(session.host.sent.empty());
}

void performWithFault(const DialogAction& action, std::size_t call, Mode mode,
                      const Rehearsal& rehearsal) {
    Drawing session(/*selected*/ true);
    action.prepare(session);
    session.host.sent.clear();
    easel::session().calls.arm(
        {.mode = mode, .call = call, .function = {}, .code = kOutOfMemoryErr});
    perform(action, session);
    easel::session().calls.disarm();
    CHECK(session.host.user.alerts.size() <= 1);
    session.host.notify("AI Current Layer Notifier"); // whatever could not be asked is asked again
    Outcome left(session, mode);
    if (left.document != rehearsal.before.document && left.document != rehearsal.after.document) {
        session.host.undo(); // the host could not take back what was done before the failure
        left.document = session.textButStamp();
    }
    const bool wholeOrNothing = left == rehearsal.before || left == rehearsal.after;
    CHECK(wholeOrNothing);
    checkGoesOn(action, session);
}

} // namespace

TEST_CASE("the host may quit under any dialog") {
    for (const DialogAction& action : kActions) {
        INFO(std::string(action.name));
        Drawing session(/*selected*/ true);
        action.prepare(session);
        DialogUser user([&](DialogUser&) { session.host.quit(); });
        action.open(session);
        CHECK(user.met == 1);
        CHECK(thePlugin == nullptr);
        CHECK(session.host.user.alerts.empty());
    }
}

TEST_CASE("whatever host call fails under a dialog, it is as if it had been left alone or used") {
    for (const DialogAction& action : kActions) {
        for (const Mode mode : {Mode::Once, Mode::FromThenOn}) {
            if (mode == Mode::FromThenOn && action.lendsPaths) continue;
            const Rehearsal rehearsal = rehearse(action, mode);
            INFO(std::string(action.name));
            REQUIRE(rehearsal.calls.size() > 3);
            for (std::size_t call = 1; call <= rehearsal.calls.size(); ++call) {
                const std::string& name = rehearsal.calls[call - 1];
                if (givesBack(name)) continue;
                INFO(name, ", host call ", call,
                     std::string(mode == Mode::Once ? "" : " and all after it"));
                performWithFault(action, call, mode, rehearsal);
            }
        }
    }
}
