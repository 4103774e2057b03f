#include "tests/tool/Drawing.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

struct Action {
    const char* name;
    bool toSelection;
    void (*perform)(Drawing&);
};

void makeAxes(Drawing& session) {
    session.host.selectTool(nullptr); // drops the pending axes
    session.host.selectTool(thePlugin->toolHandle);
    session.press(500, -300);
    session.drag(520, -300);
    session.drag(560, -280);
    session.release(560, -280);
}

const Action kActions[] = {
    {"drag axes", false, makeAxes},
    {"apply to the selection", true, [](Drawing& session) { session.host.editToolOptions(); }},
    {"apply to the layer", false, [](Drawing& session) { session.host.editToolOptions(); }},
};

/// Calls that give something back, an entry by reading or storing it: when the host fails these, it
/// is left with what it lent.
bool givesBack(const std::string& function) {
    if (function.starts_with("AI Entry Suite.To") || function == "AI Dictionary Suite.Set")
        return true;
    for (const char* const end : {"Destroy", "Release", "DisposeArtSet", "PopAppContext"})
        if (function.ends_with(end)) return true;
    return false;
}

std::vector<std::string> fallibleCalls(const Action& action) {
    Drawing session(/*selected*/ true);
    thePlugin->preferences.applyToSelection = action.toSelection;
    easel::hostCalls().setRecording(true);
    action.perform(session);
    easel::hostCalls().setRecording(false);
    std::vector<std::string> names;
    for (const easel::SlotRecord* slot : easel::hostCalls().recorded())
        if (slot->returnsError) names.push_back(slot->name);
    return names;
}

} // namespace

TEST_CASE("whichever host call fails, the tool goes on, and undo brings the document back") {
    for (const Action& action : kActions) {
        const std::vector<std::string> names = fallibleCalls(action);
        REQUIRE(names.size() > 10);
        for (std::size_t call = 1; call <= names.size(); ++call) {
            if (givesBack(names[call - 1])) continue;
            const std::string what = std::string(action.name) + ", " + names[call - 1];
            INFO(what, ", host call ", call);
            Drawing session(/*selected*/ true);
            thePlugin->preferences.applyToSelection = action.toSelection;
            const std::string before = session.text();
            easel::hostCalls().arm({.mode = easel::FaultPlan::Mode::Once,
                                    .call = call,
                                    .function = {},
                                    .code = kOutOfMemoryErr});
            action.perform(session);
            CHECK(easel::hostCalls().fired());
            easel::hostCalls().disarm();
            CHECK(session.host.user.alerts.size() <= 1);
            if (session.text() != before) {
                session.host.undo();
                CHECK(session.text() == before);
            }
        }
    }
}
