#include "tests/easel/runtime/TestPlugin.h"

#include "easel/core/SuiteServer.h"
#include "easel/suites/Suites.h"
#include "host/References.h"
#include "host/UnicodeString.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIPanelFlyoutMenuSuite.h"
#include "host/suites/AIPanelSuite.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace facetta::tests {
namespace {

/// What the panel's callbacks have been told, in order.
std::vector<std::string>& told() {
    static std::vector<std::string> all;
    return all;
}

template <typename Suite> const Suite& suite(const char* name, ai::int32 version) {
    return *static_cast<const Suite*>(easel::sessionWithSuites().suites.functions(name, version));
}

/// A plug-in with one panel of two states and a flyout menu of "One", a separator and "Two".
struct PanelFixture {
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};
    const AIPanelSuite& panels = suite<AIPanelSuite>(kAIPanelSuite, kAIPanelSuiteVersion);
    const AIPanelFlyoutMenuSuite& menus =
        suite<AIPanelFlyoutMenuSuite>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion);
    AIPanelRef panel = nullptr;
    AIPanelFlyoutMenuRef menu = nullptr;

    PanelFixture() {
        told().clear();
        host.start();
        plugin.run([&] { make(); });
    }
    ~PanelFixture() {
        if (panel != nullptr) plugin.run([&] { giveBack(); });
        host.quit();
    }

    void make() {
        REQUIRE(menus.Create(menu) == kNoErr);
        menus.AppendItem(menu, 1, ai::UnicodeString("One"));
        menus.AppendSeparator(menu, 2);
        menus.AppendItem(menu, 3, ai::UnicodeString("Two"));
        REQUIRE(panels.Create(plugin.self(), ai::UnicodeString("mine"), ai::UnicodeString("Mine"),
                              2, {240, 188}, 0, menu, nullptr, panel) == kNoErr);
        panels.SetVisibilityChangedNotifyProc(panel, [](AIPanelRef, AIBoolean visible) {
            told().push_back(visible != 0 ? "shown" : "hidden");
        });
        panels.SetSizeChangedNotifyProc(panel, [](AIPanelRef) { told().emplace_back("size"); });
        panels.SetStateChangedNotifyProc(panel, [](AIPanelRef, ai::int16 state) {
            told().push_back("state " + std::to_string(state));
        });
        panels.SetFlyoutMenuProc(panel, [](AIPanelRef, ai::uint32 item) {
            told().push_back("item " + std::to_string(item));
        });
    }
    void giveBack() {
        CHECK(panels.Destroy(panel) == kNoErr);
        CHECK(menus.Destroy(menu) == kNoErr);
    }
};

} // namespace

TEST_CASE("a panel starts hidden in its first state; its callbacks tell what happens to it") {
    PanelFixture fixture;
    auto& [host, plugin, panels, menus, panel, menu] = fixture;
    AIBoolean shown = 1;
    ai::int16 state = 0;
    CHECK(panels.IsShown(panel, shown) == kNoErr);
    CHECK(panels.GetCurrentState(panel, state) == kNoErr);
    CHECK(shown == 0);
    CHECK(state == 1);
    for (int twice = 0; twice < 2; ++twice) { // only what changes is told
        host.showPanel(panel, true);
        panels.SetCurrentState(panel, 2);
        panels.SetSize(panel, {240, 83});
    }
    host.cyclePanel(panel); // round
    host.showPanel(panel, false);
    CHECK(told() == std::vector<std::string>{"shown", "state 2", "size", "state 1", "hidden"});
    CHECK(panels.SetCurrentState(panel, 3) == kBadParameterErr);
    CHECK(panels.SetCurrentState(panel, 0) == kBadParameterErr);
}

TEST_CASE("a panel's callbacks come outside any context, as the user's clicks in it do") {
    PanelFixture fixture;
    auto& [host, plugin, panels, menus, panel, menu] = fixture;
    host.open(std::make_unique<easel::Document>(easel::session(), AISize{100, 100}));
    static std::vector<AIErr> codes;
    static SPPluginRef self = nullptr;
    codes.clear();
    self = plugin.self();
    const auto draw = [](AIPanelRef, ai::int16) {
        const auto newPath = [] {
            AIArtHandle made = nullptr;
            return ai::suites.art->NewArt(kPathArt, kPlaceAboveAll, nullptr, &made);
        };
        codes.push_back(newPath());
        const ai::AppContext context{self};
        codes.push_back(newPath());
    };
    panels.SetStateChangedNotifyProc(panel, draw);
    host.cyclePanel(panel);
    CHECK(codes == std::vector<AIErr>{kNoDocumentErr, kNoErr});
    CHECK(host.undo());
    CHECK(easel::session().document().state().currentLayer->firstChild() == nullptr);
    // While the plug-in answers a message, the host's context is there.
    codes.clear();
    plugin.run([&] { panels.SetCurrentState(panel, 1); });
    CHECK(codes == std::vector<AIErr>{kNoErr, kNoErr});
}

TEST_CASE("the flyout menu is brought up to date before it opens") {
    PanelFixture fixture;
    auto& [host, plugin, panels, menus, panel, menu] = fixture;
    panels.SetFlyoutMenuPreVisibilityProc(panel, [](AIPanelRef opened) {
        const auto& menuSuite =
            suite<AIPanelFlyoutMenuSuite>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion);
        AIPanelFlyoutMenuRef itsMenu = easel::session().host->panels.at(opened).flyout;
        menuSuite.SetItemEnabled(itsMenu, 2, 0);
        menuSuite.SetItemText(itsMenu, 0, ai::UnicodeString("Eins"));
        menuSuite.SetItemMark(itsMenu, 0, AIPanelFlyoutMenuItemMark::Check);
    });
    CHECK(menus.AppendItem(menu, 3, ai::UnicodeString("Twin")) == kBadParameterErr);
    const easel::FlyoutMenu& open = host.openFlyout(panel);
    REQUIRE(open.items.size() == 3);
    CHECK(open.items[0].text == U"Eins");
    CHECK(open.items[0].mark == AIPanelFlyoutMenuItemMark::Check);
    CHECK(open.items[2].enabled == 0);
    for (const ai::uint32 item : {1U, 2U, 3U, 9U})
        host.chooseFlyoutItem(panel, item);
    CHECK(told() == std::vector<std::string>{"item 1", "item 0", "item 0", "item 0"});
    panels.SetFlyoutMenu(panel, nullptr);
    CHECK_THROWS_AS(host.openFlyout(panel), ai::Error);
}

TEST_CASE("references that lead nowhere are refused, left ones are told of") {
    {
        PanelFixture fixture;
        AIPanelRef twin = nullptr;
        CHECK(fixture.panels.Create(fixture.plugin.self(), ai::UnicodeString("mine"),
                                    ai::UnicodeString("Twin"), 1, {10, 10}, 0, nullptr, nullptr,
                                    twin) == kBadParameterErr);
        const AIPanelRef panel = fixture.panel;
        const AIPanelFlyoutMenuRef menu = fixture.menu;
        fixture.giveBack();
        fixture.panel = nullptr;
        CHECK(fixture.panels.Show(panel, 1) == kInvalidPanelErr);
        CHECK(fixture.panels.Show(nullptr, 1) == kInvalidPanelErr);
        CHECK(fixture.menus.RemoveItem(menu, 0) == kInvalidPanelErr);
        fixture.host.quit();
        CHECK(fixture.host.complaints() == std::vector<std::string>{});
    }
    PanelFixture fixture;
    fixture.panel = nullptr;
    fixture.host.quit();
    const auto problems = fixture.host.complaints();
    REQUIRE(problems.size() == 2);
    CHECK(problems[0] == "panel \"mine\" outlives its plug-in");
}

TEST_CASE("the interface turns dark and says so, once") {
    PanelFixture fixture;
    AINotifierHandle notifier = nullptr;
    fixture.plugin.run([&] {
        ai::suites.notifier->AddNotifier(fixture.plugin.self(), "x",
                                         "AI UI Brightness Changed Notifier", &notifier);
    });
    fixture.plugin.received.clear();
    for (int i = 0; i < 2; ++i) // the second time is no change
        fixture.host.setDarkTheme(true);
    CHECK(fixture.plugin.received == std::vector<std::string>{"AI UI Brightness Changed Notifier"});
}

} // namespace facetta::tests
