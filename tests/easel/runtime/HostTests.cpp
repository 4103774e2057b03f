#include "easel/core/HostCalls.h"
#include "easel/core/Ledger.h"
#include "easel/core/SuiteServer.h"
#include "easel/document/Attributes.h"
#include "easel/document/Layers.h"
#include "easel/suites/Suites.h"
#include "host/MessageNames.h"
#include "host/References.h"
#include "host/UnicodeString.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIMenuSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AITimerSuite.h"
#include "host/suites/AIToolSuite.h"
#include "host/suites/AIUndoSuite.h"
#include "host/suites/SPAccessSuite.h"
#include "tests/easel/runtime/TestPlugin.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <optional>

namespace facetta::tests {
namespace {

using easel::Host;
using easel::sessionWithSuites;
using Names = std::vector<std::string>;

std::size_t countOf(const Names& names, std::string_view name) {
    return static_cast<std::size_t>(std::count(names.begin(), names.end(), name));
}

void listenTo(const TestPlugin& plugin, const char* type) {
    AINotifierHandle notifier = nullptr;
    REQUIRE(ai::suites.notifier->AddNotifier(plugin.self(), "Test", type, &notifier) == kNoErr);
}

AIToolHandle addTool(const TestPlugin& plugin, const char* name, ai::int32 options) {
    AIAddToolData data{name, name, 0, 0, 0, kNoTool, kNoTool};
    AIToolHandle tool = nullptr;
    REQUIRE(ai::suites.tool->AddTool(plugin.self(), name, &data, options, &tool) == kNoErr);
    return tool;
}

void drawPath(easel::Document& document) {
    easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
}

/// A host with one plug-in started and one empty document open, as long as the test lasts.
struct Session {
    Session() {
        host.start();
        host.open(std::make_unique<easel::Document>(easel::session(), AISize{600, 400}));
        plugin.received.clear();
    }
    ~Session() {
        easel::session().switches = {};
        host.quit();
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    Host host{sessionWithSuites()};
    TestPlugin plugin{host};
};

} // namespace

TEST_CASE("a plug-in is loaded, started, told, stopped and unloaded in that order") {
    Host host{sessionWithSuites()};
    TestPlugin plugin{host};
    plugin.on("SP Interface/Startup", [&](SPMessageData&) {
        for (const char* type : {kApplicationStartedNotifier, kAllPluginsStartedNotifier,
                                 "AI All Plug-ins Stopping Notifier", kApplicationShutdownNotifier})
            listenTo(plugin, type);
        return kNoErr;
    });
    std::vector<ai::int32> when;
    for (const char* access : {"SP Access/Reload", "SP Access/Unload"})
        plugin.on(access, [&](SPMessageData& data) {
            when.push_back(messageOf<SPAccessMessage>(data).when);
            return kNoErr;
        });
    host.start();
    host.quit();

    CHECK(plugin.received ==
          Names{"SP Access/Reload", "SP Interface/Startup", kApplicationStartedNotifier,
                kAllPluginsStartedNotifier, "AI All Plug-ins Stopping Notifier",
                kApplicationShutdownNotifier, "SP Interface/Shutdown", "SP Access/Unload"});
    CHECK(when == std::vector<ai::int32>{0, 2});
    CHECK(host.complaints() == Names{});
}

TEST_CASE("the globals a message leaves behind are given to the next one") {
    Host host{sessionWithSuites()};
    TestPlugin plugin{host};
    int state = 0;
    void* nestedGlobals = &state;
    plugin.on("SP Interface/Startup", [&](SPMessageData& data) {
        CHECK(data.globals == nullptr);
        data.globals = &state;
        // The host keeps the old value until start-up is over.
        listenTo(plugin, "Test Nested");
        return ai::suites.notifier->Notify("Test Nested", nullptr);
    });
    plugin.on("Test Nested", [&](SPMessageData& data) {
        nestedGlobals = data.globals;
        return kNoErr;
    });
    host.start();
    CHECK(nestedGlobals == nullptr);

    void* kept = nullptr;
    plugin.on("SP Interface/About", [&](SPMessageData& data) {
        kept = data.globals;
        return kNoErr;
    });
    SPInterfaceMessage about{};
    host.send(plugin.self(), kCallerInterface, "About", about);
    CHECK(kept == &state);
    CHECK(about.d.self == plugin.self());
    host.quit();
}

TEST_CASE("a plug-in whose start-up fails hears nothing more but its unloading") {
    Host host{sessionWithSuites()};
    TestPlugin plugin{host};
    plugin.on("SP Interface/Startup", [&](SPMessageData&) {
        listenTo(plugin, kApplicationStartedNotifier);
        return kOutOfMemoryErr;
    });
    host.start();
    host.quit();
    CHECK(plugin.received == Names{"SP Access/Reload", "SP Interface/Startup", "SP Access/Unload"});
    REQUIRE(!easel::session().ledger.problems().empty());
    CHECK(easel::session().ledger.problems().front() == "Test: start-up failed with '!MEM'");
    REQUIRE(!host.sent.empty());
    CHECK(host.sent.front().result == kOutOfMemoryErr);
}

TEST_CASE("a strict host refuses suites while the library loads, a lenient one does not") {
    for (const bool strict : {false, true}) {
        INFO("strict: " << strict);
        Host host{sessionWithSuites(), {.strictAccessMessages = strict}};
        TestPlugin plugin{host};
        SPErr menu = kNoErr;
        SPErr blocks = kNoErr;
        plugin.on("SP Access/Reload", [&](SPMessageData& data) {
            const void* functions = nullptr;
            menu = data.basic->AcquireSuite(kAIMenuSuite, kAIMenuSuiteVersion, &functions);
            if (menu == kNoErr) data.basic->ReleaseSuite(kAIMenuSuite, kAIMenuSuiteVersion);
            blocks = data.basic->AcquireSuite("SP Blocks Suite", 2, &functions);
            return data.basic->ReleaseSuite("SP Blocks Suite", 2);
        });
        host.start();
        CHECK(menu == (strict ? kSPSuiteNotFoundError : kNoErr));
        CHECK(blocks == kNoErr);
        host.quit();
    }
}

TEST_CASE("a plug-in that holds itself stays loaded") {
    Session session;
    SPAccessRef access = nullptr;
    REQUIRE(ai::suites.access->AcquirePlugin(session.plugin.self(), &access) == kNoErr);
    CHECK_THROWS_AS(session.host.reload(session.plugin.self()), ai::Error);

    CHECK(ai::suites.access->ReleasePlugin(access) == kNoErr);
    CHECK(ai::suites.access->ReleasePlugin(access) == kSPPluginAlreadyReleasedError);
    session.host.reload(session.plugin.self());
    CHECK(session.plugin.received == Names{"SP Access/Unload", "SP Access/Reload"});
}

TEST_CASE("a notification reaches every registration, the sender's own included") {
    Session session;
    TestPlugin other{session.host, "Other"};
    listenTo(session.plugin, "Test Broadcast");
    listenTo(session.plugin, "Test Broadcast");
    listenTo(other, "Test Broadcast");

    int payload = 0;
    std::vector<void*> data;
    session.plugin.on("Test Broadcast", [&](SPMessageData& message) {
        data.push_back(messageOf<AINotifierMessage>(message).notifyData);
        return kNoErr;
    });
    // The other plug-in was added after the start, and lives in this process: it has an entry.
    session.plugin.run([&] { ai::suites.notifier->Notify("Test Broadcast", &payload); });
    CHECK(data == std::vector<void*>{&payload, &payload});
    CHECK(other.received == Names{"Test Broadcast"});
}

TEST_CASE("changes of art are told when the host is idle, once, layers first") {
    Session session;
    for (const char* type : {kArtSelectionChangedNotifier, kArtPropertiesChangedNotifier,
                             "AI Layer Set Notifier", "AI Current Layer Notifier"})
        listenTo(session.plugin, type);
    Names duringEdit;
    session.host.edit("Draw", [&](easel::Document& document) {
        for (int i = 0; i < 3; ++i)
            drawPath(document);
        easel::Art& layer = easel::createLayer(document, "New", easel::onTopOf(document.root()));
        easel::setCurrentLayer(document, layer);
        duringEdit = session.plugin.received;
    });
    CHECK(duringEdit == Names{});
    CHECK(session.plugin.received == Names{"AI Current Layer Notifier", "AI Layer Set Notifier",
                                           kArtSelectionChangedNotifier,
                                           kArtPropertiesChangedNotifier});
}

TEST_CASE("notifications come when the host is idle, or late: when it is idle again") {
    for (const bool soon : {true, false}) {
        Session session;
        easel::session().switches.notificationsComeSoon = soon;
        listenTo(session.plugin, kArtSelectionChangedNotifier);
        session.host.edit("Draw", drawPath);
        CHECK(session.plugin.received.size() == (soon ? 1 : 0));
        session.host.idle();
        CHECK(session.plugin.received.size() == 1);
    }
}

TEST_CASE("only in a context that is not nested can the kind of the undo step be chosen") {
    const struct {
        const char* what;
        bool pushes;
        bool ownContextsNest;
        bool nestsMessage;
        bool obeyed;
    } rows[] = {{"in the message's own", false, true, false, true},
                {"in one of the plug-in's, which nests", true, true, false, false},
                {"in one of the plug-in's, which does not", true, false, false, true},
                {"in a message sent while a plug-in executes", false, true, true, false}};
    for (const auto& row : rows) {
        INFO(std::string(row.what));
        Session session;
        easel::session().switches.ownContextsNest = row.ownContextsNest;
        listenTo(session.plugin, "Test Inner");
        AIUndoContextKind kind = kStandardUndoContext;
        session.plugin.on("Test Inner", [&](SPMessageData&) {
            std::optional<ai::AppContext> own;
            if (row.pushes) own.emplace(session.plugin.self());
            CHECK(ai::suites.undo->SetKind(kAppendUndoContext) == kNoErr);
            kind = easel::session().document().undo().kind();
            return kNoErr;
        });
        const auto notify = [&] { ai::suites.notifier->Notify("Test Inner", nullptr); };
        if (row.nestsMessage)
            session.plugin.run(notify);
        else
            session.host.edit("Draw", [&](easel::Document&) { notify(); });
        CHECK((kind == kAppendUndoContext) == row.obeyed);
    }
}

TEST_CASE("a plug-in changes documents within a context only") {
    Session session;
    AIArtHandle made = nullptr;
    const auto draw = [&] {
        return ai::suites.art->NewArt(kPathArt, kPlaceAboveAll, nullptr, &made);
    };
    CHECK(draw() == kNoDocumentErr);
    CHECK(easel::session().document().state().currentLayer->firstChild() == nullptr);
    {
        const ai::AppContext context{session.plugin.self()};
        CHECK(draw() == kNoErr);
    }
    CHECK(ai::suites.art->SetArtUserAttr(made, kArtLocked, kArtLocked) == kNoDocumentErr);
    CHECK(ai::suites.art->DisposeArt(made) == kNoDocumentErr);
    ai::int32 locked = 1;
    CHECK(ai::suites.art->GetArtUserAttr(made, kArtLocked, &locked) == kNoErr); // reading is free
    CHECK(locked == 0);
}

TEST_CASE("a call that fails has no effect but to spoil what it would have written") {
    Session session;
    ai::int16 type = 0;
    CHECK(ai::suites.art->GetArtType(nullptr, &type) == kBadParameterErr);
    CHECK(type == static_cast<ai::int16>(0xCDCD));
    AITimerHandle timers[3] = {};
    easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                .call = 2,
                                .function = "AI Timer Suite.AddTimer",
                                .code = kOutOfMemoryErr});
    for (AITimerHandle& timer : timers) {
        const AIErr code = ai::suites.timer->AddTimer(session.plugin.self(), "T", 60, &timer);
        CHECK(code == (&timer == &timers[1] ? kOutOfMemoryErr : kNoErr));
    }
    easel::session().calls.disarm();
    CHECK(easel::session().calls.fired());
    CHECK(reinterpret_cast<std::uintptr_t>(timers[1]) == 0xCDCDCDCDCDCDCDCD);
    CHECK(session.host.timers.count() == 2);
}

TEST_CASE("the pen goes on with its path until it is closed, ended or put away") {
    Session session;
    Host& host = session.host;
    host.selectTool(nullptr, easel::Tools::kPenTool);
    const auto click = [&](AIReal x, AIReal y) {
        host.press({.at = {x, y}});
        host.release({.at = {x, y}});
    };
    const auto anchors = [] {
        std::vector<std::size_t> counts;
        const easel::Art* art = easel::session().document().state().currentLayer->lastChild();
        for (; art != nullptr; art = art->previous())
            counts.push_back(art->segments().size());
        return counts;
    };
    using Counts = std::vector<std::size_t>;
    click(10, -10);
    click(50, -10);
    host.press({.at = {50, -50}});
    host.drag({.at = {60, -60}});
    host.release({.at = {60, -60}});
    const easel::Art& path = *easel::session().document().state().currentLayer->firstChild();
    CHECK(path.segments()[2].in.h == 40);
    CHECK(easel::segmentSelection(path, 2) == kSegmentPointSelected);
    CHECK(easel::segmentSelection(path, 1) == kSegmentNotSelected);
    click(11, -11); // on the first
    CHECK(path.content().closed);
    CHECK(host.undo()); // a step each click
    CHECK_FALSE(path.content().closed);
    click(100, -10);
    click(140, -10);
    CHECK(anchors() == Counts{3, 2});
    listenTo(session.plugin, "AI Tool Clear State Notifier");
    session.plugin.received.clear();
    host.endPath();
    CHECK(session.plugin.received == Names{"AI Tool Clear State Notifier"});
    click(100, -90);
    host.selectTool(nullptr);
    click(120, -90); // no pen
    host.selectTool(nullptr, easel::Tools::kPenTool);
    click(140, -90);
    CHECK(anchors() == Counts{3, 2, 1, 1});
}

TEST_CASE("time stamps begin anew with each host") {
    for (int hosts = 0; hosts < 2; ++hosts) {
        Session session;
        CHECK(easel::session().lastStamp < 100);
        for (int edits = 0; edits < 100; ++edits)
            session.host.edit("Draw", drawPath);
    }
}

TEST_CASE("notifications that raise each other without end are stopped and reported") {
    Session session;
    listenTo(session.plugin, kArtSelectionChangedNotifier);
    session.plugin.on(kArtSelectionChangedNotifier, [](SPMessageData&) {
        drawPath(easel::session().document());
        return kNoErr;
    });
    session.host.edit("Draw", drawPath);
    CHECK(session.plugin.received.size() == easel::Notifiers::kRounds);
    REQUIRE(easel::session().ledger.problems().size() == 1);
    CHECK(easel::session().ledger.problems()[0].find("without end") != std::string::npos);
}

TEST_CASE("opening the menu bar updates the items that asked for it, choosing one goes") {
    Session session;
    const auto add = [&](const char* key, AIMenuItemOption options) {
        AIPlatformAddMenuItemDataUS data{"Tool Palettes", ai::UnicodeString(key)};
        AIMenuItemHandle item = nullptr;
        REQUIRE(ai::suites.menu->AddMenuItem(session.plugin.self(), key, &data, options, &item) ==
                kNoErr);
        return item;
    };
    const AIMenuItemHandle panel = add("Panel", kMenuItemWantsUpdateOption);
    add("Help", kMenuItemNoOptions);
    session.plugin.on("AI Menu/AI Update", [&](SPMessageData& data) {
        CHECK(messageOf<AIMenuMessage>(data).menuItem == panel);
        return ai::suites.menu->CheckItem(panel, 1);
    });
    session.host.openMenus();
    CHECK(session.plugin.received == Names{"AI Menu/AI Update"});
    CHECK(session.host.menus.dump() == "Tool Palettes | Panel | Panel [x]\n"
                                       "Tool Palettes | Help | Help\n");

    session.host.chooseMenuItem(panel);
    CHECK(countOf(session.plugin.received, "AI Menu/AI Go") == 1);
}

TEST_CASE("a tool gets the messages that its options ask for") {
    for (const bool asks : {true, false}) {
        CAPTURE(asks);
        Session session;
        const AIToolHandle tool = addTool(session.plugin, "Pencil", asks ? 33 : 0);
        session.host.selectTool(tool);
        session.host.track({{1, 2}});
        session.host.press({{1, 2}});
        session.host.decreaseDiameter(); // not during a gesture
        session.host.drag({{3, 4}});
        session.host.release({{3, 4}});
        session.host.decreaseDiameter();
        session.host.increaseDiameter();
        session.host.editToolOptions();
        session.host.selectTool(tool);
        session.host.selectTool(nullptr);
        Names expected{
            "AI Select",   "AI Track Cursor",      "AI Mouse Down",        "AI Mouse Drag",
            "AI Mouse Up", "AI Decrease Diameter", "AI Increase Diameter", "AI Edit Options",
            "AI Reselect", "AI Deselect"};
        if (!asks)
            std::erase_if(expected, [](const std::string& name) {
                return name == "AI Track Cursor" || name.ends_with("Diameter");
            });
        for (std::string& name : expected)
            name = "AI Tool/" + name;
        CHECK(session.plugin.received == expected);
    }
}

TEST_CASE("undo tells before and after, then what changed") {
    Session session;
    for (const char* type : {"AI Command Notifier: Before Undo", "AI Command Notifier: After Undo",
                             kArtSelectionChangedNotifier})
        listenTo(session.plugin, type);
    session.host.edit("Draw", drawPath);
    session.plugin.received.clear();
    CHECK(session.host.undo());
    CHECK(session.plugin.received == Names{"AI Command Notifier: Before Undo",
                                           "AI Command Notifier: After Undo",
                                           kArtSelectionChangedNotifier});
}

TEST_CASE("contexts nest strictly, and one left open is reported and closed") {
    Session session;
    AIAppContextHandle outer = nullptr;
    AIAppContextHandle inner = nullptr;
    const SPErr result = session.plugin.run([&] {
        const auto& context = *ai::suites.appContext;
        CHECK(context.PushAppContext(session.plugin.self(), &outer) == kNoErr);
        CHECK(context.PushAppContext(session.plugin.self(), &inner) == kNoErr);
        CHECK(context.PopAppContext(outer) == kBadParameterErr);
        CHECK(context.PopAppContext(inner) == kNoErr);
        CHECK(context.PopAppContext(inner) == kBadParameterErr);
    });
    CHECK(result == kNoErr);
    CHECK(session.host.contexts.depth() == 0);
    const Names& problems = easel::session().ledger.problems();
    CHECK(countOf(problems, "AI Filter/AI Go: contexts pushed and popped do not balance") == 1);
    CHECK(countOf(problems,
                  "application context x1 lent by AI Context Suite.PushAppContext is kept "
                  "after AI Filter/AI Go") == 1);
}

TEST_CASE("leave to change everything lasts as long as its context") {
    Session session;
    session.plugin.run([&] {
        const auto& context = *ai::suites.appContext;
        AIBoolean before = 7;
        CHECK(context.AllowAllChanges(1, &before) == kNoErr);
        CHECK(before == 0);
        CHECK(easel::session().allowAllChanges);
        {
            const ai::AppContext nested{session.plugin.self()};
            CHECK_FALSE(easel::session().allowAllChanges);
        }
        CHECK(easel::session().allowAllChanges);
    });
    CHECK_FALSE(easel::session().allowAllChanges);
    CHECK(ai::suites.appContext->AllowAllChanges(1, nullptr) == kSelectorClashErr);
}

TEST_CASE("an edit that throws ends its step all the same") {
    Session session;
    CHECK_THROWS_AS(session.host.edit("Draw",
                                      [](easel::Document& document) {
                                          drawPath(document);
                                          throw ai::Error{kOutOfMemoryErr};
                                      }),
                    ai::Error);
    CHECK(session.host.contexts.depth() == 0);
    CHECK(session.host.undoText() == "Undo Draw");
}

TEST_CASE("a host may go away in the middle of a gesture") {
    Host host{sessionWithSuites()};
    TestPlugin plugin{host};
    host.start();
    host.open(std::make_unique<easel::Document>(easel::session(), AISize{600, 400}));
    host.selectTool(addTool(plugin, "Pencil", 1));
    host.press({.at = {10, -10}});
    CHECK(host.contexts.depth() == 1);
}

TEST_CASE("timers run by the clock while they are active") {
    Session session;
    AITimerHandle timer = nullptr;
    REQUIRE(ai::suites.timer->AddTimer(session.plugin.self(), "Pulse", 30, &timer) == kNoErr);
    const auto runsAfter = [&](std::int64_t milliseconds) {
        session.plugin.received.clear();
        session.host.clock.advance(milliseconds);
        session.host.idle();
        return countOf(session.plugin.received, "AI Timer/AI Go");
    };
    CHECK(runsAfter(400) == 0);
    CHECK(runsAfter(100) == 1);
    CHECK(runsAfter(499) == 0);
    ai::suites.timer->SetTimerActive(timer, 0);
    CHECK(runsAfter(5000) == 0);
    session.host.quit();
    CHECK(session.host.complaints() == Names{});
}

} // namespace facetta::tests
