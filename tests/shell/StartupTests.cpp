#include "tests/shell/RearrangedTable.h"
#include "tests/shell/Session.h"

#include "host/suites/AIToolSuite.h"

#include <algorithm>

using namespace facetta;
using namespace facetta::tests;

namespace {

/// Calls in a row of one host function.
struct Calls {
    std::string function;
    int times;
    bool operator==(const Calls&) const = default;
};

doctest::String toString(const std::vector<Calls>& list) {
    std::string text;
    for (const auto& [function, times] : list)
        text += "\n    " + function + " x" + std::to_string(times);
    return text.c_str();
}

/// What was registered, read and named, in order; looking things up and strings are left out.
std::vector<Calls> recordedCalls() {
    const char* const kept[] = {"Suite.Add", "Suite.Set", "Preference Suite.", "Plug-ins",
                                "IUAIRealToString"};
    std::vector<Calls> list;
    for (const easel::SlotRecord* slot : easel::session().calls.recorded()) {
        const auto isIn = [&](const char* part) {
            return slot->name.find(part) != std::string::npos;
        };
        if (std::ranges::none_of(kept, isIn)) continue;
        if (list.empty() || list.back().function != slot->name)
            list.push_back({slot->name, 1});
        else
            ++list.back().times;
    }
    return list;
}

} // namespace

TEST_CASE("start-up goes step by step") {
    const std::vector<Calls> expected = {
        {"AI Notifier Suite.AddNotifier", 3}, // the toolkit's
        {"SP Plug-ins Suite.GetPluginName", 1},
        {"AI Notifier Suite.AddNotifier", 1}, // for the end of the host's start-up
        {"AI Preference Suite.GetBooleanPreference", 1},
        {"AI Preference Suite.GetRealPreference", 2}, // the constrain angle, and ours
        {"AI Preference Suite.GetIntegerPreference", 3},
        {"AI Preference Suite.GetBooleanPreference", 6},
        {"AI Preference Suite.GetRealPreference", 1},
        {"AI Preference Suite.GetBooleanPreference", 1},
        {"AI Preference Suite.GetIntegerPreference", 1},
        {"AI Menu Suite.AddMenuItem", 2}, // about, the vendor's
        {"AI Menu Suite.AddMenuGroupAsSubMenu", 1},
        {"AI Menu Suite.AddMenuItem", 1},
        {"AI Menu Suite.AddMenuGroupAsSubMenu", 1},
        {"AI Menu Suite.AddMenuItem", 7}, // six of help, show all panels
        {"AI User Suite.IUAIRealToString", 1},
        {"AI Menu Suite.AddMenuItem", 1},
        {"AI Menu Suite.AddMenuGroupAsSubMenu", 1},
        {"AI Menu Suite.AddMenuItem", 1},
        {"AI Notifier Suite.AddNotifier", 27},
        {"AI Annotator Suite.AddAnnotator", 1},
        {"AI Annotator Suite.SetAnnotatorOptions", 1},
        {"AI Tool Suite.AddTool", 1},
        {"AI Tool Suite.SetToolInfoVars", 1},
        {"AI Panel Suite.SetVisibilityChangedNotifyProc", 1},
        {"AI Panel Suite.SetSizeChangedNotifyProc", 1},
        {"AI Panel Suite.SetStateChangedNotifyProc", 1},
        {"AI Panel Suite.SetFlyoutMenuPreVisibilityProc", 1},
        {"AI Panel Suite.SetFlyoutMenuProc", 1},
    };
    Session session;
    easel::session().calls.setRecording(true);
    CHECK(session.send("SP Interface", "Startup") == kNoErr);
    easel::session().calls.setRecording(false);
    std::vector<Calls> calls = recordedCalls();
    REQUIRE(calls.size() > expected.size()); // the panel is filled
    calls.resize(expected.size());
    CHECK(calls == expected);
    session.send("SP Interface", "Shutdown");
}

TEST_CASE("menus, notifiers, annotator and tool are registered under their names") {
    Session session;
    session.host.start();

    struct ItemRow {
        const char* label;
        const char* group;
        AIMenuItemHandle item;
    };
    const MenuItems& own = thePlugin->menuItems;
    const ItemRow items[] = {
        {"About Facetta...", "About", own.about},
        {"Help...", "FacettaHelpGroup", own.help[0]},
        {"Tutorial Movies...", "FacettaHelpGroup", own.help[1]},
        {"Check for Updates...", "FacettaHelpGroup", own.help[2]},
        {"Licensing...", "FacettaHelpGroup", own.help[3]},
        {"Buy/Upgrade License...", "FacettaHelpGroup", own.help[4]},
        {"Licensing Help...", "FacettaHelpGroup", own.help[5]},
        {"Show All Norvane Graphics Panels", "Tool Palettes", own.showAllPanels},
        {"Facetta Panel", "FacettaWindowGroup", own.panel},
    };
    const auto& menus = session.host.menus;
    for (const auto& row : items) {
        INFO(row.label);
        const easel::MenuItem& found = menus.items.at(row.item);
        const std::string_view wanted(row.label);
        CHECK(found.text == std::u32string(wanted.begin(), wanted.end()));
        CHECK(menus.groups.at(found.group).name == row.group);
        CHECK(found.options == (row.item == own.panel ? kMenuItemWantsUpdateOption : 0));
    }
    CHECK(menus.itemNamed("NorvaneShowAllPanels") == own.showAllPanels);
    CHECK(menus.itemNamed("Facetta Panel Menu Item") == own.panel);

    // The submenus hang on items of their own.
    struct SubmenuRow {
        const char* item;
        const char* label;
        const char* group;
    };
    const SubmenuRow submenus[] = {
        {"com.norvane.graphics", "Norvane Graphics", "Help Menu"},
        {"FacettaHelpGroup", "Facetta", "com.norvane.graphics"},
        {"FacettaWindowGroup", "Facetta", "Tool Palettes"},
    };
    for (const auto& [name, label, group] : submenus) {
        INFO(name);
        const easel::MenuItem& opener = menus.items.at(menus.itemNamed(name));
        const std::string_view wanted(label);
        CHECK(opener.text == std::u32string(wanted.begin(), wanted.end()));
        CHECK(menus.groups.at(opener.group).name == group);
    }

    const std::vector<std::string> notifierTypes = {
        "Facetta Licence Changed Notifier",
        "AI Preference Changed Notifier",
        "AI Document Opened Notifier",
        "AI Document Closed Notifier",
        "AI Document Changed Notifier",
        "AI Document View Changed Notifier",
        "AI Document View Style Active View Changed Notifier",
        "AI Document Write Preprocess Notifier",
        "AI Art Selection Changed Notifier",
        "AI Art Properties Changed Notifier",
        "AI Current Layer Notifier",
        "AI Layer Set Notifier",
        "AI Layer Options Notifier",
        "AI Command Notifier: After Undo",
        "AI Command Notifier: After Redo",
        "AI Command Notifier: After Lock",
        "AI Command Notifier: After Unlock All",
        "AI Document Ruler Unit Changed Notifier",
        "AI Tool Suspend Notifier",
        "AI Tool Resume Notifier",
        "AI Tool Suspended by Cmd Key Notifier",
        "AI Tool Resumed by Cmd Key Notifier",
        "AI Tool Suspended by Spacebar Notifier",
        "AI Tool Resumed by Spacebar Notifier",
        "AI Current Coordinate System Changed Notifier",
        "AI Document Ruler Origin Changed Notifier",
        "Norvane Show All Panels Notifier",
    };
    std::vector<std::string> registered;
    for (const auto& [handle, notifier] : session.host.notifiers)
        if (notifier->name == "FacettaPlugin") registered.push_back(notifier->type);
    CHECK(registered == notifierTypes);
    CHECK(session.host.notifiers.findIf([](const easel::Notifier& each) {
        return each.name == "Facetta App Started Notifier" &&
               each.type == "AI Application Started Notifier";
    }) != nullptr);

    const easel::Tool& tool = session.host.tools.tools.at(thePlugin->toolHandle);
    CHECK(tool.name == "Facetta Tool");
    CHECK(tool.title == "Facetta Tool");
    CHECK(tool.tooltip == "Facetta Tool");
    CHECK(tool.lightIcon == 2100);
    CHECK(tool.darkIcon == 3100);
    CHECK(tool.options == 33);
    CHECK(tool.group == tool.number); // a group and a toolset of its own
    CHECK(tool.toolset == tool.number);
    CHECK(tool.infoVariables == std::vector<ai::int32>{15, 16, 2, 3, 4, 5});
    const easel::Annotator& annotator = session.host.annotators.annotators.at(thePlugin->annotator);
    CHECK(annotator.name == "Norvane FT Annotator");
    CHECK(annotator.options == 4);
    CHECK(thePlugin->decimalSeparator == u'.');
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
