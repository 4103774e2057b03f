#include "easel/script/LiveScript.h"

#include "easel/document/Dump.h"
#include "easel/script/Script.h"
#include "easel/suites/Suites.h"

#include <doctest/doctest.h>

#include <filesystem>

using namespace easel::script;

namespace {

PlayerSettings settingsOf(bool live) {
    PlayerSettings settings;
    settings.plugin = FACETTA_LIBRARY;
    settings.folder = "tests/scenarios";
    settings.output = std::filesystem::temp_directory_path();
    settings.live = live;
    return settings;
}

/// What is drawn in a window: axes that are put on the layer, a new name, back and forth. No keys:
/// live they would be those of whoever sits at the machine.
constexpr const char* kActs[] = {"open wedge.svg",
                                 "window 900 700",
                                 "zoom 1.75",
                                 "tool \"Facetta Tool\"",
                                 "move 450,350px",
                                 "wait 200",
                                 "press 450,350px",
                                 "drag 500,350px",
                                 "drag 600,330px",
                                 "release",
                                 "tool options",
                                 "layer rename Ornament Leaves",
                                 "undo",
                                 "redo"};

} // namespace

TEST_CASE("what was done live leads to the same drawing when it is played") {
    easel::Session& session = easel::sessionWithSuites();
    std::string kept;
    std::string drawn;
    {
        Player player(session, settingsOf(true));
        LiveScript live(player);
        for (const char* line : kActs)
            live.act(line);
        drawn = easel::dump(player.document());
        kept = live.text();
        CHECK(player.finish().empty());
    }
    const Script script = readScript(kept, "kept");
    REQUIRE(script.mistakes.empty());
    Player again(session, settingsOf(false));
    for (const Step& step : script.steps) {
        again.beginCommand(step.keys);
        step.action(again);
        again.endCommand();
    }
    CHECK(easel::dump(again.document()) == drawn);
    CHECK(drawn.find("Leaves") != std::string::npos);
    CHECK(again.finish().empty());
}

TEST_CASE("of what matters only as the last of its kind one line is kept") {
    struct Row {
        std::vector<std::string> done;
        std::string kept;
    };
    const Row rows[] = {
        {{"wait 5", "wait 7"}, "wait 12\n"},
        {{"wait 59999", "wait 2"}, "wait 59999\nwait 2\n"},
        {{"move 1,1px", "wait 5", "move 2,2px", "wait 7"}, "wait 5\nmove 2,2px\nwait 7\n"},
        {{"move 1,1px", "move 1,1px with a", "move 2,2px"},
         "move 1,1px\nmove 1,1px with a\nmove 2,2px\n"},
        {{"move 1,1px", "press 1,1px", "move 2,2px"}, "move 1,1px\npress 1,1px\nmove 2,2px\n"},
        {{"window 3 4", "window 5 6"}, "window 5 6\n"},
    };
    Player player(easel::sessionWithSuites(), settingsOf(true));
    for (const Row& row : rows) {
        LiveScript live(player);
        for (const std::string& line : row.done)
            live.note(line);
        CHECK(live.text() == row.kept);
    }
}

TEST_CASE("what could not be done is not kept; what was asked is answered before the act") {
    Player player(easel::sessionWithSuites(), settingsOf(true));
    LiveScript live(player);
    CHECK_THROWS(live.act("undo"));
    CHECK_THROWS(live.act("dance"));
    CHECK(live.text().empty());
    live.act("new 100 100", "new 100 100 # here it had another name");
    live.noteAlert("Are you \"sure\"?", AIAnswer{2});
    CHECK(live.text() == "new 100 100 # here it had another name\n"
                         "answer cancel\n"
                         "expect alert \"Are you \\\"sure\\\"?\"\n");
    CHECK(player.finish().empty());
}

TEST_CASE("a drawing can be brought to the front however many are open") {
    constexpr std::size_t kOpen = 150;
    Player player(easel::sessionWithSuites(), settingsOf(true));
    LiveScript live(player);
    for (std::size_t i = 0; i < kOpen; ++i)
        live.act("new 100 100");
    live.act("switch 1");
    CHECK(&player.document() == player.host().documents().front().get());
    live.act("switch 150");
    CHECK(&player.document() == player.host().documents().back().get());
    CHECK_THROWS_WITH(live.act("switch 151"), doctest::Contains("only 150 drawings are open"));
    CHECK(player.finish().empty());
}
