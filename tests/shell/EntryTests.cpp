#include "tests/FallibleCalls.h"
#include "tests/shell/Session.h"

#include "host/MessageNames.h"
#include "host/SuiteTable.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIArtSetSuite.h"
#include "host/suites/AIPathSuite.h"
#include "host/suites/SPPluginsSuite.h"

#include <cstring>

using namespace facetta;
using namespace facetta::tests;

namespace {

/// The number of axes among the stored settings; 0 while there are none.
ai::int32 storedCount(const Session& session) {
    const auto* const stored = session.host.preferences.find("Facetta", "FTCount");
    return stored != nullptr ? std::get<ai::int32>(*stored) : 0;
}

} // namespace

TEST_CASE("before start-up and after shut-down messages do nothing and succeed") {
    Session session;
    const auto sendAll = [&] {
        CHECK(session.send(kCallerTool, kSelectorSelect, AIToolMessage{}) == kNoErr);
        CHECK(session.send(kCallerNotifier, kSelectorNotify, AINotifierMessage{}) == kNoErr);
        CHECK(session.send(kCallerInterface, kSelectorShutdown) == kNoErr);
        CHECK(session.send(kCallerAccess, kSelectorReload, SPAccessMessage{}) == kNoErr);
        CHECK(session.send("Nobody", "Nothing") == kNoErr);
        CHECK(session.record().globals == nullptr);
        CHECK(session.host.user.alerts.empty());
    };
    const auto calls = easel::session().calls.total();
    sendAll();
    CHECK(easel::session().calls.total() == calls);
    session.host.start();
    session.host.quit();
    sendAll();
}

TEST_CASE("the object lives from start-up to shut-down, and again") {
    Session session;
    for (int round = 0; round < 2; ++round) {
        session.host.start();
        CHECK(session.record().globals == thePlugin);
        REQUIRE(thePlugin != nullptr);
        CHECK(thePlugin->hasSuites());
        CHECK(session.send(kCallerInterface, kSelectorStartup) == kNoErr); // no second object
        CHECK(session.record().globals == thePlugin);
        session.host.quit();
        CHECK(session.record().globals == nullptr);
        CHECK(ai::suites.menu == nullptr);
    }
}

TEST_CASE("nulls instead of a message are refused") {
    SPInterfaceMessage message{};
    CHECK(handleMessage(TestLicence{}, nullptr, kSelectorStartup, &message) ==
          kSPBadParameterError);
    CHECK(handleMessage(TestLicence{}, kCallerInterface, nullptr, &message) ==
          kSPBadParameterError);
    CHECK(handleMessage(TestLicence{}, kCallerInterface, kSelectorStartup, nullptr) ==
          kSPBadParameterError);
}

TEST_CASE("whichever suite is refused, start-up fails with the host's code and gives all back") {
    // The toolkit's own eight come first. Of those only the notifiers are indispensable; of the
    // rest all but the overlay's drawer.
    constexpr int kToolkitSuites = 8;
    constexpr int kPanels = 2;
    constexpr int kNotifiers = 6;
    const int suites = kToolkitSuites + static_cast<int>(ai::suiteTable().size());
    for (int refused = 1; refused <= suites; ++refused) {
        INFO("acquisition ", refused);
        Session session;
        session.startUpMayFail = true;
        easel::sessionWithSuites().suites.refuseAcquisition(refused);
        const SPErr result = session.send(kCallerInterface, kSelectorStartup);
        const bool optional =
            (refused <= kToolkitSuites && refused != kNotifiers) || refused == suites;
        CHECK(result == (optional ? kNoErr : kSPSuiteNotFoundError));
        CHECK((session.record().globals != nullptr) == optional);
        CHECK((thePlugin != nullptr) == optional);
        // A missing suite is not reported, a panel that cannot be made is.
        CHECK(session.host.user.alerts.size() == (refused == kPanels ? 1 : 0));
        if (!optional) continue;
        session.send("AI Menu", "AI Go", AIMenuMessage{}); // tries the optional ones again
        CHECK(ai::suites.annotatorDrawer != nullptr);
        session.send(kCallerInterface, kSelectorShutdown);
    }
}

TEST_CASE("a host with another version of the same slots is served, and gets that version back") {
    struct Offer {
        const char* suite;
        ai::int32 wanted;
        ai::int32 offered;
        bool starts;
    };
    const Offer offers[] = {
        {kAIAppContextSuite, kAIAppContextSuiteVersion, 5, true},
        {kAIAppContextSuite, kAIAppContextSuiteVersion, 4, true},
        {kAIAppContextSuite, kAIAppContextSuiteVersion, 7, false},
        {kSPPluginsSuite, kSPPluginsSuiteVersion, 6, true},
        {kSPPluginsSuite, kSPPluginsSuiteVersion, 5, true},
        {kAIPathSuite, kAIPathSuiteVersion, 11, false}, // reals have twice the bits there
    };
    for (const auto& offer : offers) {
        INFO(std::string(offer.suite), ' ', offer.offered);
        easel::sessionWithSuites().suites.renumber(offer.suite, offer.wanted, offer.offered);
        {
            Session session;
            session.startUpMayFail = true;
            CHECK((session.send(kCallerInterface, kSelectorStartup) == kNoErr) == offer.starts);
            if (offer.starts) {
                session.send(kCallerAccess, kSelectorUnload, SPAccessMessage{});
                session.send(kCallerAccess, kSelectorReload, SPAccessMessage{});
                session.send(kCallerInterface, kSelectorShutdown);
            }
            CHECK(easel::sessionWithSuites().suites.outstanding().empty());
        }
        easel::sessionWithSuites().suites.renumber(offer.suite, offer.offered, offer.wanted);
    }
}

TEST_CASE("whichever host call fails, start-up ends tidily and at most one alert tells of it") {
    // A first run tells which calls can fail, and which of them only give something back.
    std::vector<std::string> fallible;
    easel::HostCalls& calls = easel::session().calls;
    {
        Session session;
        fallible = fallibleCalls([&] { session.host.start(); });
    }
    REQUIRE(fallible.size() > 200);
    for (std::size_t call = 1; call <= fallible.size(); ++call) {
        const std::string& name = fallible[call - 1];
        if (name.ends_with("Destroy") || name.ends_with("ReleaseSuite")) continue;
        INFO("host call ", call, ": ", name);
        Session session;
        session.startUpMayFail = true;
        calls.arm({easel::FaultPlan::Mode::Once, call, {}, kBadParameterErr});
        session.host.start();
        CHECK(calls.fired());
        calls.disarm();
        CHECK(session.record().started == (session.record().globals != nullptr));
        CHECK(session.host.user.alerts.size() <= 1);
        session.openDocument();
        if (session.record().started)
            CHECK(session.send(kCallerMenu, kSelectorGo, AIMenuMessage{}) == kNoErr);
    }
    Session afterwards;
    afterwards.host.start();
    CHECK(thePlugin->toolHandle != nullptr);
}

TEST_CASE("unloading gives the suites back; reloading mends the table of virtual operations") {
    Session session;
    session.host.start();
    FacettaPlugin* const plugin = thePlugin;
    CHECK(session.send(kCallerAccess, kSelectorUnload, SPAccessMessage{}) == kNoErr);
    CHECK(thePlugin == nullptr);
    CHECK(ai::suites.menu == nullptr);
    CHECK(session.send(kCallerMenu, kSelectorGo, AIMenuMessage{}) == kNoErr);

    // The library is loaded at another address: the object's first word now points nowhere.
    void* const nowhere = nullptr;
    std::memcpy(static_cast<void*>(plugin), &nowhere, sizeof nowhere);
    CHECK(session.send(kCallerAccess, kSelectorReload, SPAccessMessage{}) == kNoErr);
    CHECK(thePlugin == plugin);
    CHECK(session.send(kCallerMenu, kSelectorGo, AIMenuMessage{}) == kNoErr);
    CHECK(plugin->toolHandle != nullptr); // what was registered is still known
}

TEST_CASE("a reload without an unload before it fetches the suites anew and counts none twice") {
    Session session;
    session.host.start();
    FacettaPlugin* const plugin = thePlugin;
    ai::suites = {}; // as a freshly loaded library has them
    thePlugin = nullptr;
    CHECK(session.send(kCallerAccess, kSelectorReload, SPAccessMessage{}) == kNoErr);
    CHECK(thePlugin == plugin);
    CHECK(ai::suites.menu != nullptr);
    CHECK(ai::suites.text.back() != nullptr);
}

namespace {

/// A host that cannot hold a plug-in in memory, and so unloads it at will, has started Facetta. The
/// panel is shown; the tool holds a reference of the host's; a setting has been changed.
struct Unheld {
    Unheld() : session({}, {.strictAccessMessages = true, .recordMessages = false}) {
        easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                    .call = 1,
                                    .function = "SP Access Suite.AcquirePlugin",
                                    .code = kSPCantAcquirePluginError});
        session.host.start();
        easel::session().calls.disarm();
        session.openDocument();
        session.host.chooseMenuItem(thePlugin->menuItems.panel);
        REQUIRE(ai::suites.artSet->NewArtSet(thePlugin->tool.repositionArt.put()) == kNoErr);
        thePlugin->preferences.count = 7;
        plugin = thePlugin;
    }
    Session session;
    FacettaPlugin* plugin;
};

} // namespace

TEST_CASE("a reload that is refused its suites is made up for as soon as there are some") {
    Unheld unheld;
    Session& session = unheld.session;
    session.host.reload(session.plugin);
    CHECK_FALSE(unheld.plugin->hasSuites());
    CHECK(session.host.user.alerts.empty());

    SUBCASE("by the next message") {
        AIToolMessage message{};
        message.tool = unheld.plugin->toolHandle;
        CHECK(session.send(kCallerTool, kSelectorSelect, message) == kNoErr);
        CHECK(unheld.plugin->tool.toolSelected);
        CHECK(unheld.plugin->panel.has_value());
        CHECK(unheld.plugin->panel->isVisible());
    }
    SUBCASE("by shutting down") {}
    CHECK(session.send(kCallerInterface, kSelectorShutdown) == kNoErr);
    CHECK(storedCount(session) == 7);
}

TEST_CASE("settings outlive a host that goes on refusing suites") {
    Unheld unheld;
    Session& session = unheld.session;
    const AIArtSet leftBehind = unheld.plugin->tool.repositionArt.get();
    session.send(kCallerAccess, kSelectorUnload, SPAccessMessage{});
    easel::sessionWithSuites().suites.renumber("AI Mesh Suite", 5, 6);
    CHECK(session.send(kCallerAccess, kSelectorReload, SPAccessMessage{}) == kSPSuiteNotFoundError);
    CHECK(session.send(kCallerMenu, kSelectorGo, AIMenuMessage{}) == kNoErr);
    CHECK(session.send(kCallerInterface, kSelectorShutdown) == kNoErr);
    CHECK(storedCount(session) == 7);
    easel::sessionWithSuites().suites.renumber("AI Mesh Suite", 6, 5);

    // The host frees what no suite can release when it ends.
    const void* const functions =
        easel::sessionWithSuites().suites.functions(kAIArtSetSuite, kAIArtSetSuiteVersion);
    AIArtSet set = leftBehind;
    static_cast<const AIArtSetSuite*>(functions)->DisposeArtSet(&set);
}

TEST_CASE("the library is held from the panel's making to its end") {
    Session session;
    session.host.start();
    CHECK(session.record().accessCount == 1);
    CHECK_THROWS_AS(session.host.reload(session.plugin), ai::Error);

    // The host quits, but somebody still calls the library: all stays as it is.
    SPAccessMessage terminal{};
    terminal.when = kAccessAtTerminal;
    CHECK(session.send(kCallerAccess, kSelectorUnload, terminal) == kNoErr);
    CHECK(thePlugin != nullptr);
    CHECK(thePlugin->panel.has_value());
    CHECK(session.record().accessCount == 1);

    session.host.quit();
    CHECK(session.record().accessCount == 0);
}

TEST_CASE("locks nest: the library is held from the first to the last") {
    Session session;
    session.host.start();
    const bool locks[] = {true, true, false, true, false, false, false, true, false};
    const ai::int32 held[] = {1, 1, 1, 1, 1, 0, 0, 1, 0};
    thePlugin->LockPlugin(false); // the panel's own
    for (std::size_t i = 0; i < std::size(locks); ++i) {
        INFO("step ", i);
        CHECK(thePlugin->LockPlugin(locks[i]) == kNoErr);
        CHECK(session.record().accessCount == held[i]);
    }
    thePlugin->LockPlugin(true);
}

TEST_CASE("the name is cut to the buffer it is given") {
    Session session;
    session.host.start();
    char buffer[] = "xxxxxxxxxxxx";
    CHECK(thePlugin->GetPluginName(buffer, 5) == kNoErr);
    CHECK(std::string_view(buffer) == "Face");
    CHECK(buffer[5] == 'x');
    CHECK(thePlugin->GetPluginName(buffer, sizeof buffer) == kNoErr);
    CHECK(std::string_view(buffer) == "Facetta");
    CHECK(thePlugin->GetPluginName(buffer, 0) == kBadParameterErr);
}

TEST_CASE("what the licence refuses is not done") {
    SUBCASE("start-up: the suites only, and stored settings stay as they are") {
        Session session({LicenceState::Licensed, {GuardedAction::StartUp}});
        session.host.preferences.put("Facetta", "FTCount", ai::int32{9});
        session.host.start();
        REQUIRE(thePlugin != nullptr);
        CHECK(thePlugin->toolHandle == nullptr);
        CHECK(session.host.menus.items.count() == 0);
        session.host.quit();
        CHECK(storedCount(session) == 9);
    }
    SUBCASE("expired: help, but no panel, notifiers, annotator or tool") {
        Session session({LicenceState::Expired, {}});
        session.host.start();
        CHECK(thePlugin->menuItems.help.back() != nullptr);
        CHECK(thePlugin->menuItems.panel == nullptr);
        CHECK(thePlugin->notifiers.front() == nullptr);
        CHECK(thePlugin->annotator == nullptr);
        CHECK(thePlugin->toolHandle == nullptr);
    }
    SUBCASE("reload before start-up: refused without a word") {
        Session session({LicenceState::Licensed, {GuardedAction::Reload}});
        CHECK(session.send(kCallerAccess, kSelectorReload, SPAccessMessage{}) ==
              kSPCantAcquirePluginError);
        CHECK(session.host.user.alerts.empty());
    }
}
