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
#include "host/suites/AIDocumentListSuite.h"
#include "host/suites/AIDocumentSuite.h"
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

/// What a plug-in received, start-up left out.
Names since(TestPlugin& plugin, std::size_t first) {
    return {plugin.received.begin() + static_cast<std::ptrdiff_t>(first), plugin.received.end()};
}

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

/// A host with one plug-in started and one empty document open.
struct Session {
    Session() {
        host.start();
        host.open(std::make_unique<easel::Document>(easel::session(), AISize{600, 400}));
        plugin.received.clear();
    }
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
    session.host.quit();
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
    session.host.quit();
}

TEST_CASE("changes of art are told when the host is idle, once, layers first") {
    Session session;
    for (const char* type : {kArtSelectionChangedNotifier, kArtPropertiesChangedNotifier,
                             "AI Layer Set Notifier", "AI Current Layer Notifier"})
        listenTo(session.plugin, type);
    Names duringEdit;
    session.host.edit("Draw", [&](easel::Document& document) {
        for (int i = 0; i < 3; ++i)
            easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
        easel::Art& layer = easel::createLayer(document, "New", easel::onTopOf(document.root()));
        easel::setCurrentLayer(document, layer);
        duringEdit = session.plugin.received;
    });
    CHECK(duringEdit == Names{});
    CHECK(session.plugin.received == Names{"AI Current Layer Notifier", "AI Layer Set Notifier",
                                           kArtSelectionChangedNotifier,
                                           kArtPropertiesChangedNotifier});
    session.host.quit();
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
        easel::session().switches = {};
        session.host.quit();
    }
}

TEST_CASE("only in a context that is not nested can the kind of the undo step be chosen") {
    const struct {
        bool pushes;
        bool ownContextsNest;
        bool obeyed;
    } rows[] = {{false, true, true}, {true, true, false}, {true, false, true}};
    for (const auto& row : rows) {
        INFO("pushing a context: ", row.pushes, ", which nests: ", row.ownContextsNest);
        Session session;
        easel::session().switches.ownContextsNest = row.ownContextsNest;
        listenTo(session.plugin, kArtSelectionChangedNotifier);
        AIBoolean silent = 0;
        session.plugin.on(kArtSelectionChangedNotifier, [&](SPMessageData&) {
            std::optional<ai::AppContext> own;
            if (row.pushes) own.emplace(session.plugin.self());
            CHECK(ai::suites.undo->SetKind(kAppendUndoContext) == kNoErr);
            return ai::suites.undo->IsSilent(&silent);
        });
        session.host.edit("Draw", drawPath);
        CHECK((silent == 0) == row.obeyed);
        easel::session().switches = {};
        session.host.quit();
    }
}

TEST_CASE("a message sent while a plug-in executes belongs to the step of the outer one") {
    Session session;
    listenTo(session.plugin, "Test Inner");
    session.plugin.on("Test Inner", [](SPMessageData&) { return ai::suites.undo->SetSilent(1); });
    AIBoolean silent = 1;
    session.plugin.run([&] {
        ai::suites.notifier->Notify("Test Inner", nullptr);
        ai::check(ai::suites.undo->IsSilent(&silent));
    });
    CHECK(silent == 0);
    session.host.quit();
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
    session.host.quit();
}

TEST_CASE("a call that fails leaves what it would have written spoiled") {
    Session session;
    ai::int16 type = 0;
    CHECK(ai::suites.art->GetArtType(nullptr, &type) == kBadParameterErr);
    CHECK(type == static_cast<ai::int16>(0xCDCD));
    AIArtHandle parent = nullptr;
    easel::session().calls.arm(
        {.mode = easel::FaultPlan::Mode::Once, .call = 1, .function = {}, .code = kOutOfMemoryErr});
    CHECK(ai::suites.art->GetArtParent(nullptr, &parent) == kOutOfMemoryErr);
    easel::session().calls.disarm();
    CHECK(reinterpret_cast<std::uintptr_t>(parent) == 0xCDCDCDCDCDCDCDCD);
    session.host.quit();
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
    session.host.quit();
}

TEST_CASE("time stamps begin anew with each host") {
    for (int hosts = 0; hosts < 2; ++hosts) {
        Session session;
        CHECK(easel::session().lastStamp < 100);
        for (int edits = 0; edits < 100; ++edits)
            session.host.edit("Draw", drawPath);
        session.host.quit();
    }
}

TEST_CASE("notifications that raise each other without end are stopped and reported") {
    Session session;
    listenTo(session.plugin, kArtSelectionChangedNotifier);
    session.plugin.on(kArtSelectionChangedNotifier, [](SPMessageData&) {
        easel::Document& document = easel::session().document();
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
        return kNoErr;
    });
    session.host.edit("Draw", [](easel::Document& document) {
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
    });
    CHECK(session.plugin.received.size() == easel::Notifiers::kRounds);
    REQUIRE(easel::session().ledger.problems().size() == 1);
    CHECK(easel::session().ledger.problems()[0].find("without end") != std::string::npos);
    session.host.quit();
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
    ai::suites.menu->DisableItem(panel);
    session.host.chooseMenuItem(panel);
    CHECK(countOf(session.plugin.received, "AI Menu/AI Go") == 1);
    session.host.quit();
}

TEST_CASE("menu items go into groups that exist, and go with their plug-in") {
    Session session;
    AIPlatformAddMenuItemDataUS data{"No Such Group", ai::UnicodeString("Item")};
    AIMenuItemHandle item = nullptr;
    CHECK(ai::suites.menu->AddMenuItem(session.plugin.self(), nullptr, &data, 0, &item) ==
          kBadParameterErr);
    data.groupName = "Help Menu";
    REQUIRE(ai::suites.menu->AddMenuItem(session.plugin.self(), nullptr, &data, 0, &item) ==
            kNoErr);
    const char* key = "";
    ai::suites.menu->GetMenuItemKeyboardShortcutDictionaryKey(item, &key);
    CHECK(key == nullptr);
    session.host.quit();
    CHECK(session.host.menus.items.count() == 0);
}

TEST_CASE("a tool gets the messages that its options ask for") {
    struct Row {
        std::string what;
        ai::int32 options;
        Names expected;
    };
    const Row rows[] = {
        {"all",
         33,
         {"AI Tool/AI Select", "AI Tool/AI Track Cursor", "AI Tool/AI Mouse Down",
          "AI Tool/AI Mouse Drag", "AI Tool/AI Mouse Up", "AI Tool/AI Decrease Diameter",
          "AI Tool/AI Increase Diameter", "AI Tool/AI Edit Options", "AI Tool/AI Reselect",
          "AI Tool/AI Deselect"}},
        {"neither tracking nor diameter keys",
         0,
         {"AI Tool/AI Select", "AI Tool/AI Mouse Down", "AI Tool/AI Mouse Drag",
          "AI Tool/AI Mouse Up", "AI Tool/AI Edit Options", "AI Tool/AI Reselect",
          "AI Tool/AI Deselect"}},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        Session session;
        const AIToolHandle tool = addTool(session.plugin, "Pencil", row.options);
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
        CHECK(session.plugin.received == row.expected);
        session.host.quit();
    }
}

TEST_CASE("mouse messages carry cursor, pressure and event; others have no event") {
    Session session;
    const AIToolHandle tool = addTool(session.plugin, "Pencil", 33);
    session.plugin.on("AI Tool/AI Select", [&](SPMessageData& data) {
        CHECK(messageOf<AIToolMessage>(data).event == nullptr);
        return kNoErr;
    });
    session.plugin.on("AI Tool/AI Mouse Drag", [&](SPMessageData& data) {
        const auto& message = messageOf<AIToolMessage>(data);
        CHECK(message.tool == tool);
        CHECK(message.cursor.h == 30);
        CHECK(message.cursor.v == -40);
        CHECK(message.pressure == 127);
        REQUIRE(message.event != nullptr);
        CHECK(message.event->modifiers ==
              (aiEventModifiers_shiftKey | aiEventModifiers_buttonDown));
        return kNoErr;
    });
    session.host.selectTool(tool);
    session.host.press({{0, 0}});
    session.host.drag({{30, -40}, aiEventModifiers_shiftKey});
    session.host.release({{30, -40}});
    CHECK(countOf(session.plugin.received, "AI Tool/AI Mouse Drag") == 1);
    session.host.quit();
}

TEST_CASE("press to release is one undo step, named after the tool") {
    Session session;
    const AIToolHandle tool = addTool(session.plugin, "Pencil", 1);
    const auto draw = [](SPMessageData&) {
        easel::Document& document = easel::session().document();
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
        return kNoErr;
    };
    session.plugin.on("AI Tool/AI Mouse Down", draw);
    session.plugin.on("AI Tool/AI Mouse Drag", [&](SPMessageData& data) {
        easel::session().document().undo().revert(); // the intended pattern: draw anew in each drag
        return draw(data);
    });
    session.host.selectTool(tool);
    session.host.press({{0, 0}});
    session.host.drag({{1, 1}});
    session.host.drag({{2, 2}});
    session.host.release({{2, 2}});

    const easel::Document& document = easel::session().document();
    const easel::Art& layer = *document.state().currentLayer;
    CHECK(layer.firstChild() == layer.lastChild());
    CHECK(document.undo().pastSteps() == 1);
    CHECK(session.host.undoText() == "Undo Pencil");
    CHECK(session.host.undo());
    CHECK(layer.firstChild() == nullptr);
    CHECK(session.host.redo());
    CHECK(layer.firstChild() != nullptr);
    session.host.quit();
}

TEST_CASE("undo tells before and after, then what changed") {
    Session session;
    for (const char* type : {"AI Command Notifier: Before Undo", "AI Command Notifier: After Undo",
                             kArtSelectionChangedNotifier})
        listenTo(session.plugin, type);
    session.host.edit("Draw", [](easel::Document& document) {
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
    });
    const std::size_t before = session.plugin.received.size();
    CHECK(session.host.undo());
    CHECK(since(session.plugin, before) == Names{"AI Command Notifier: Before Undo",
                                                 "AI Command Notifier: After Undo",
                                                 kArtSelectionChangedNotifier});
    session.host.quit();
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
    session.host.quit();
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
    session.host.quit();
}

TEST_CASE("work outside any message is a step of its own when a context encloses it") {
    Session session;
    {
        const ai::AppContext context{session.plugin.self()};
        easel::Document& document = easel::session().document();
        easel::createArt(document, kPathArt, easel::onTopOf(*document.state().currentLayer));
    }
    CHECK(easel::session().document().undo().pastSteps() == 1);
    session.host.quit();
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
    session.host.quit();
}

TEST_CASE("a host may go away in the middle of a gesture") {
    Session session;
    easel::Tool probe{};
    probe.plugin = session.plugin.self();
    session.host.selectTool(session.host.tools.tools.add(probe));
    session.host.press({.at = {10, -10}});
    CHECK(session.host.contexts.depth() == 1);
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

TEST_CASE("without a document there is none to be current") {
    Host host{sessionWithSuites()};
    TestPlugin plugin{host};
    host.start();
    ai::int32 count = 7;
    plugin.run([&] { ai::suites.documentList->Count(&count); });
    CHECK(count == 0);
    AIDocumentHandle document = nullptr;
    CHECK(ai::suites.document->GetDocument(&document) == kNoDocumentErr);
    host.quit();
}

TEST_CASE("a call that a fault plan names fails before it has any effect") {
    Session session;
    easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                .call = 2,
                                .function = "AI Timer Suite.AddTimer",
                                .code = kOutOfMemoryErr});
    std::vector<AIErr> results;
    for (int i = 0; i < 3; ++i) {
        AITimerHandle timer = nullptr;
        results.push_back(ai::suites.timer->AddTimer(session.plugin.self(), "T", 60, &timer));
    }
    easel::session().calls.disarm();
    CHECK(results == std::vector<AIErr>{kNoErr, kOutOfMemoryErr, kNoErr});
    CHECK(easel::session().calls.fired());
    CHECK(session.host.timers.count() == 2);
    session.host.quit();
    CHECK(easel::session().ledger.problems().size() == 2); // both timers still ran
}

} // namespace facetta::tests
