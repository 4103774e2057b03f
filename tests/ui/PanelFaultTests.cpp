#include "tests/FallibleCalls.h"
#include "tests/ui/PanelInHand.h"

using namespace facetta;
using namespace facetta::tests;
using namespace facetta::panel_item;
using Mode = easel::FaultPlan::Mode;

namespace {

struct PanelAction {
    const char* name;
    void (*prepare)(PanelInHand&);
    void (*perform)(PanelInHand&);
};

void nothing(PanelInHand&) {}
/// What follows of itself when a layer changes is not the panel's.
void notLive(PanelInHand& s) { s.preferences().autoMirror = false; }
void onLayer(PanelInHand& s) { s.applyToLayer(/*withGuides*/ true); }
void onAnotherLayer(PanelInHand& s) {
    onLayer(s);
    s.choose(2);
    s.newLayer();
}
void inAnEdit(PanelInHand& s) {
    onLayer(s);
    s.type(kAngle, "10");
}
void withOverlay(PanelInHand& s) {
    onLayer(s);
    s.click(kOverlay);
}
void toSelection(PanelInHand& s) { s.preferences().applyToSelection = true; }
void withoutTool(PanelInHand& s) { s.host.selectTool(nullptr); }

const PanelAction kActions[] = {
    {"selection mode", withoutTool, [](PanelInHand& s) { s.click(kSelectionMode); }},
    {"layer mode",
     [](PanelInHand& s) {
         s.click(kSelectionMode);
         s.host.selectTool(nullptr);
     },
     [](PanelInHand& s) { s.click(kLayerMode); }},
    {"Active off", onLayer, [](PanelInHand& s) { s.click(kActive); }},
    {"Active on",
     [](PanelInHand& s) {
         onLayer(s);
         s.click(kActive);
     },
     [](PanelInHand& s) { s.click(kActive); }},
    {"Update", onLayer, [](PanelInHand& s) { s.item(kUpdate).enable(true), s.click(kUpdate); }},
    {"Apply to Layer", nothing, [](PanelInHand& s) { s.click(kApply); }},
    {"Apply to Selection", toSelection, [](PanelInHand& s) { s.click(kApply); }},
    {"Apply an edit", inAnEdit, [](PanelInHand& s) { s.click(kApply); }},
    {"drop", nothing, [](PanelInHand& s) { s.click(kCancel); }},
    {"Remove from Layer", onLayer, [](PanelInHand& s) { s.click(kCancel); }},
    {"cancel an edit", inAnEdit, [](PanelInHand& s) { s.click(kCancel); }},
    {"x of pending axes", nothing, [](PanelInHand& s) { s.type(kOriginX, "250"); }},
    {"x of a layer's axes", onLayer, [](PanelInHand& s) { s.type(kOriginX, "250"); }},
    {"y of a layer's axes, the tool away",
     [](PanelInHand& s) {
         onLayer(s);
         s.host.selectTool(nullptr);
     },
     [](PanelInHand& s) { s.type(kOriginY, "250"); }},
    {"angle of a layer's axes", onLayer, [](PanelInHand& s) { s.type(kAngle, "10"); }},
    {"count of a layer's axes", onLayer, [](PanelInHand& s) { s.type(kCount, "5"); }},
    {"overlay", onLayer, [](PanelInHand& s) { s.click(kOverlay); }},
    {"opacity", withOverlay, [](PanelInHand& s) { s.type(kOpacity, "40"); }},
    {"slider", withOverlay, [](PanelInHand& s) { s.slide(40); }},
    {"Compact Panel", onLayer, [](PanelInHand& s) { s.choose(0); }},
    {"the panel's arrow", onLayer, [](PanelInHand& s) { s.host.cyclePanel(s.hostPanel()); }},
    {"Copy Axes", onLayer, [](PanelInHand& s) { s.choose(2); }},
    {"Paste Axes as Provisional", onAnotherLayer, [](PanelInHand& s) { s.choose(3); }},
    {"Paste Axes to Layer", onAnotherLayer, [](PanelInHand& s) { s.choose(4); }},
    {"Add Guides",
     [](PanelInHand& s) {
         notLive(s);
         s.applyToLayer();
     },
     [](PanelInHand& s) { s.choose(6); }},
    {"Remove Guides",
     [](PanelInHand& s) {
         notLive(s);
         onLayer(s);
     },
     [](PanelInHand& s) { s.choose(7); }},
    {"Remove All", onAnotherLayer, [](PanelInHand& s) { s.choose(9); }},
    {"Center", nothing, [](PanelInHand& s) { s.choose(11); }},
};

/// What a layer stores reads as its default when it cannot be read, and is no failure.
bool hasDefault(const std::string& function) {
    return function.starts_with("AI Dictionary Suite.Get");
}

/// What an action leaves, for comparison. A stamp that cannot be read only has a layer mirrored
/// once more, with the same result.
struct Outcome {
    std::string document;
    bool applyToSelection, autoMirror, useOverlay;
    double angle, opacity;
    ai::int32 count, panelExpansion, dialogX;

    bool operator==(const Outcome&) const = default;
};

Outcome outcomeOf(const PanelInHand& session) {
    const Preferences& settings = session.preferences();
    return {session.textButStamp(), settings.applyToSelection,
            settings.autoMirror,    settings.useOverlay,
            settings.angle,         settings.opacity,
            settings.count,         settings.panelExpansion,
            settings.dialogX};
}

/// An action that nothing fails in.
struct Rehearsal {
    std::vector<std::string> calls; ///< those that may fail
    Outcome outcome;
};

Rehearsal rehearse(const PanelAction& action) {
    PanelInHand session(/*selected*/ true);
    action.prepare(session);
    std::vector<std::string> calls = fallibleCalls([&] { action.perform(session); });
    return {std::move(calls), outcomeOf(session)};
}

/// A whole life of axes, without any failure.
void checkGoesOn(PanelInHand& session) {
    session.host.sent.clear();
    session.host.user.alerts.clear();
    session.host.selectTool(nullptr);
    session.host.selectTool(thePlugin->toolHandle);
    session.choose(9);
    CHECK_FALSE(someLayerHasAxes());
    session.click(kLayerMode);
    session.dragFrom({520, -300}, {620, -260});
    session.type(kCount, "4");
    session.click(kApply);
    CHECK(session.stored().axisCount == 4);
    CHECK(session.textOf(kCount) == "4");
    session.click(kCancel);
    CHECK(session.stored().axisCount == 0);
    CHECK(session.host.user.alerts.empty());
}

void performWithFault(const PanelAction& action, std::size_t call, Mode mode, const Outcome& done) {
    PanelInHand session(/*selected*/ true);
    action.prepare(session);
    const Outcome before = outcomeOf(session);
    session.host.sent.clear();
    easel::session().calls.arm(
        {.mode = mode, .call = call, .function = {}, .code = kOutOfMemoryErr});
    action.perform(session);
    easel::session().calls.disarm();
    session.host.openMenus();
    CHECK(session.host.user.alerts.size() <= 1);
    const Outcome after = outcomeOf(session);
    if (mode == Mode::Once) {
        const bool wholeOrNothing = after == before || after == done;
        CHECK(wholeOrNothing);
    } else if (after.document != done.document && after.document != before.document) {
        session.host.undo(); // a host that fails for good could not take it back
        CHECK(session.textButStamp() == before.document);
    }
    checkGoesOn(session);
}

} // namespace

TEST_CASE("whatever host call fails in the panel's handlers, they do all or nothing") {
    for (const PanelAction& action : kActions) {
        const auto [calls, done] = rehearse(action);
        INFO(std::string(action.name));
        REQUIRE(calls.size() > 3);
        for (std::size_t call = 1; call <= calls.size(); ++call) {
            if (givesBack(calls[call - 1]) || hasDefault(calls[call - 1])) continue;
            INFO(calls[call - 1], ", host call ", call);
            performWithFault(action, call, Mode::Once, done);
            performWithFault(action, call, Mode::FromThenOn, done);
        }
    }
}
