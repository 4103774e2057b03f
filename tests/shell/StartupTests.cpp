#include "tests/shell/RearrangedTable.h"
#include "tests/shell/Session.h"

#include "host/suites/AIToolSuite.h"

#include <algorithm>

using namespace facetta;
using namespace facetta::tests;

TEST_CASE(
    "submenus hang on items of their own, and the tool has a group and a toolset of its own") {
    Session session;
    session.host.start();
    struct Row {
        std::u32string text;
        const char* group;
        AIMenuItemHandle item;
    };
    const auto& menus = session.host.menus;
    const MenuItems& own = thePlugin->menuItems;
    const Row rows[] = {
        {U"Norvane Graphics", "Help Menu", menus.itemNamed("com.norvane.graphics")},
        {U"Facetta", "com.norvane.graphics", menus.itemNamed("FacettaHelpGroup")},
        {U"Help...", "FacettaHelpGroup", own.help.front()},
        {U"Licensing Help...", "FacettaHelpGroup", own.help.back()},
        {U"Show All Norvane Graphics Panels", "Tool Palettes", own.showAllPanels},
        {U"Facetta", "Tool Palettes", menus.itemNamed("FacettaWindowGroup")},
        {U"Facetta Panel", "FacettaWindowGroup", own.panel},
    };
    for (const Row& row : rows) {
        CAPTURE(&row - rows);
        const easel::MenuItem& item = menus.items.at(row.item);
        CHECK(item.text == row.text);
        CHECK(menus.groups.at(item.group).name == row.group);
        CHECK(item.options == (row.item == own.panel ? kMenuItemWantsUpdateOption : 0));
    }
    const easel::Tool& tool = session.host.tools.tools.at(thePlugin->toolHandle);
    CHECK(tool.group == tool.number);
    CHECK(tool.toolset == tool.number);
}

TEST_CASE("where the tool suite lacks its second function, the others are found all the same") {
    const RearrangedTable shorter(
        kAIToolSuite, kAIToolSuiteVersion, sizeof(AIToolSuite),
        [](std::span<void*> slots) { std::shift_left(slots.begin() + 1, slots.end(), 1); });
    Session session;
    session.host.start();
    const easel::Tool& tool = session.host.tools.tools.at(thePlugin->toolHandle);
    CHECK(tool.infoVariables == std::vector<ai::int32>{15, 16, 2, 3, 4, 5});
    for (int round = 0; round < 2; ++round) {
        const char* current = nullptr;
        session.host.selectTool(thePlugin->toolHandle);
        CHECK(ai::suites.tool->GetCurrentToolName(&current) == kNoErr);
        CHECK(std::string_view(current) == "Facetta Tool");
        session.send("SP Access", "Unload", SPAccessMessage{});
        CHECK(session.send("SP Access", "Reload", SPAccessMessage{}) == kNoErr);
    }
}

TEST_CASE("beside another plug-in of the vendor shared menus are not made twice") {
    Session session;
    auto& menus = session.host.menus;
    menus.groups.add({.name = "com.norvane.graphics"});
    const AIMenuItemHandle shared = menus.items.add({.plugin = session.plugin,
                                                     .key = "NorvaneShowAllPanels",
                                                     .text = U"Show",
                                                     .group = menus.groupNamed("Tool Palettes")});
    session.host.start();
    CHECK(menus.itemNamed("com.norvane.graphics") == nullptr);
    CHECK(thePlugin->menuItems.showAllPanels == shared);
    CHECK(menus.itemNamed("FacettaHelpGroup") != nullptr);
    CHECK(thePlugin->toolHandle != nullptr);
}

TEST_CASE("a failing registration keeps what depends on it from being registered") {
    struct Row {
        const char* function;
        std::uint64_t call; ///< the one that fails, counted from 1
        bool panelItem;
        std::size_t notifiers;
        bool annotator;
        bool tool;
    };
    const Row rows[] = {
        {"AI Menu Suite.AddMenuItem", 1, true, 27, true, true},    // about
        {"AI Menu Suite.AddMenuItem", 3, true, 27, true, true},    // help
        {"AI Menu Suite.AddMenuItem", 10, false, 0, true, true},   // show all panels
        {"AI Menu Suite.AddMenuItem", 11, false, 0, false, false}, // our group of panels
        {"AI Menu Suite.AddMenuItem", 12, false, 0, true, true},   // the panel's item
        {"AI Notifier Suite.AddNotifier", 4 + 6, true, 5, true, true},
        {"AI Annotator Suite.AddAnnotator", 1, true, 27, false, false},
        {"AI Annotator Suite.SetAnnotatorOptions", 1, true, 27, true, false},
        {"AI Tool Suite.AddTool", 1, true, 27, true, false},
    };
    for (const auto& row : rows) {
        INFO(row.function, " ", row.call);
        Session session;
        easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                    .call = row.call,
                                    .function = row.function,
                                    .code = kBadParameterErr});
        CHECK(session.send("SP Interface", "Startup") == kNoErr);
        easel::session().calls.disarm();
        const auto& handles = thePlugin->notifiers;
        CHECK((thePlugin->menuItems.panel != nullptr) == row.panelItem);
        CHECK(handles.size() - static_cast<std::size_t>(std::ranges::count(handles, nullptr)) ==
              row.notifiers);
        CHECK((thePlugin->annotator != nullptr) == row.annotator);
        CHECK((thePlugin->toolHandle != nullptr) == row.tool);
        CHECK(session.host.user.alerts.empty());
        session.send("SP Interface", "Shutdown");
    }
}
