#include "tests/easel/runtime/TestPlugin.h"

#include "easel/core/SuiteServer.h"
#include "easel/suites/Suites.h"
#include "host/References.h"
#include "host/UnicodeString.h"
#include "host/suites/AIArtSuite.h"
#include "host/suites/AIModalParentSuite.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIPanelFlyoutMenuSuite.h"
#include "host/suites/AIPanelSuite.h"
#include "host/suites/AIUIThemeSuite.h"

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

    explicit PanelFixture(bool resizable = false) {
        told().clear();
        host.start();
        plugin.run([&] { make(resizable); });
    }
    ~PanelFixture() {
        if (panel != nullptr) plugin.run([&] { giveBack(); });
        host.quit();
    }

    void make(bool resizable) {
        REQUIRE(menus.Create(menu) == kNoErr);
        menus.AppendItem(menu, 1, ai::UnicodeString("One"));
        menus.AppendSeparator(menu, 2);
        menus.AppendItem(menu, 3, ai::UnicodeString("Two"));
        REQUIRE(panels.Create(plugin.self(), ai::UnicodeString("mine"), ai::UnicodeString("Mine"),
                              2, {240, 188}, resizable ? 1 : 0, menu, this, panel) == kNoErr);
        panels.SetVisibilityChangedNotifyProc(panel, [](AIPanelRef, AIBoolean visible) {
            told().push_back(visible != 0 ? "shown" : "hidden");
        });
        panels.SetSizeChangedNotifyProc(panel, [](AIPanelRef) { told().emplace_back("size"); });
        panels.SetStateChangedNotifyProc(panel, [](AIPanelRef, ai::int16 state) {
            told().push_back("state " + std::to_string(state));
        });
        panels.SetClosedNotifyProc(panel, [](AIPanelRef) { told().emplace_back("closed"); });
        panels.SetFlyoutMenuProc(panel, [](AIPanelRef, ai::uint32 item) {
            told().push_back("item " + std::to_string(item));
        });
    }
    void giveBack() {
        CHECK(panels.Destroy(panel) == kNoErr);
        CHECK(menus.Destroy(menu) == kNoErr);
    }
    [[nodiscard]] AISize size() const {
        AISize size{};
        panels.GetSize(panel, size);
        return size;
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

    host.showPanel(panel, true);
    host.showPanel(panel, true); // already shown
    host.cyclePanel(panel);
    host.cyclePanel(panel); // round
    panels.SetCurrentState(panel, 2);
    panels.SetCurrentState(panel, 2);
    panels.SetSize(panel, {240, 83});
    panels.SetSize(panel, {240, 83});
    host.closePanel(panel);
    CHECK(told() == std::vector<std::string>{"shown", "state 2", "state 1", "state 2", "size",
                                             "hidden", "closed"});
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

TEST_CASE("sizes stay within their limits") {
    PanelFixture fixed;
    fixed.host.resizePanel(fixed.panel, {500, 500}); // the user cannot
    CHECK(fixed.size().height == 188);
    fixed.panels.SetSize(fixed.panel, {240, 83});
    CHECK(fixed.host.panels.at(fixed.panel).sizes.least.height == 83);
}

TEST_CASE("a resizable panel grows by whole steps") {
    PanelFixture fixture(/*resizable*/ true);
    easel::PanelSizes& sizes = fixture.host.panels.at(fixture.panel).sizes;
    sizes.greatest = {300, 400};
    sizes.step = 20;
    struct Row {
        AISize wanted;
        AISize got;
    };
    const Row rows[] = {
        {{260, 229}, {260, 228}}, {{100, 100}, {240, 188}}, {{900, 900}, {300, 388}}};
    for (const auto& row : rows) {
        INFO(row.wanted.width, " x ", row.wanted.height);
        fixture.host.resizePanel(fixture.panel, row.wanted);
        CHECK(fixture.size().width == row.got.width);
        CHECK(fixture.size().height == row.got.height);
    }
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

TEST_CASE("items of submenus are chosen by their ids; a menu that leads to itself ends") {
    PanelFixture fixture;
    auto& [host, plugin, panels, menus, panel, menu] = fixture;
    AIPanelFlyoutMenuRef inner = nullptr;
    menus.Create(inner);
    menus.AppendItem(inner, 11, ai::UnicodeString("Inner"));
    menus.AppendItem(inner, 12, ai::UnicodeString("Back"));
    CHECK(menus.SetItemSubMenu(menu, 2, inner) == kNoErr);
    CHECK(menus.SetItemSubMenu(inner, 1, menu) == kNoErr);
    CHECK(menus.SetItemSubMenu(inner, 0, inner) == kBadParameterErr);
    for (const ai::uint32 item : {11U, 3U, 99U}) // 3 only opens the submenu
        host.chooseFlyoutItem(panel, item);
    menus.Destroy(inner);
    host.chooseFlyoutItem(panel, 3); // an item like any other again
    CHECK(told() == std::vector<std::string>{"item 11", "item 0", "item 0", "item 3"});
}

TEST_CASE("flyout items are found by index and never share an id") {
    PanelFixture fixture;
    const AIPanelFlyoutMenuSuite& menus = fixture.menus;
    const AIPanelFlyoutMenuRef menu = fixture.menu;
    const ai::UnicodeString text("New");
    CHECK(menus.AppendItem(menu, 3, text) == kBadParameterErr);
    CHECK(menus.AppendItem(menu, 0, text) == kBadParameterErr);
    CHECK(menus.RemoveItem(menu, 1) == kNoErr);
    const auto& items = fixture.host.panels.menu(menu).items;
    CHECK(items.size() == 2);
    CHECK(items[1].id == 3);
    CHECK(menus.RemoveItem(menu, 2) == kBadParameterErr);
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

TEST_CASE("the interface turns dark and says so; dialogs have an owner while they are open") {
    PanelFixture fixture;
    const auto& themes = suite<AIUIThemeSuite>(kAIUIThemeSuite, kAIUIThemeSuiteVersion);
    AINotifierHandle notifier = nullptr;
    fixture.plugin.run([&] {
        ai::suites.notifier->AddNotifier(fixture.plugin.self(), "x",
                                         "AI UI Brightness Changed Notifier", &notifier);
    });
    fixture.plugin.received.clear();
    for (int i = 0; i < 2; ++i) // the second time is no change
        fixture.host.setDarkTheme(true);
    CHECK(fixture.plugin.received == std::vector<std::string>{"AI UI Brightness Changed Notifier"});
    CHECK(themes.IsUIThemeDark() == 1);

    const auto& parents =
        suite<AIModalParentSuite>(kAIModalParentSuite, kAIModalParentSuiteVersion);
    int window = 0;
    CHECK(parents.SetParent(reinterpret_cast<AIWindowRef>(&window)) == kNoErr);
    CHECK(fixture.host.user.modalParents.size() == 1);
    CHECK(parents.RemoveParent() == kNoErr);
    CHECK(parents.RemoveParent() == kBadParameterErr);
}

} // namespace facetta::tests
