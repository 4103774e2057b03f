#include "tests/shell/Session.h"

#include "host/MessageNames.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

bool isShown(const Session& session) {
    const AIPanelRef panel = session.host.panels.named(U"Facetta");
    return panel != nullptr && session.host.panels.at(panel).shown != 0;
}

void choose(Session& session, AIMenuItemHandle item) { session.host.chooseMenuItem(item); }

/// Is the item checked when the menus open?
bool isChecked(Session& session, AIMenuItemHandle item) {
    session.host.openMenus();
    return session.host.menus.items.at(item).checked;
}

} // namespace

TEST_CASE("the panel comes and goes by its menu item, which shows whether it is there") {
    Session session;
    session.host.start();
    const MenuItems& items = thePlugin->menuItems;
    CHECK_FALSE(isShown(session));
    CHECK_FALSE(isChecked(session, items.panel));
    choose(session, items.panel);
    CHECK(isShown(session));
    CHECK(isChecked(session, items.panel));
    CHECK_FALSE(isChecked(session, items.about)); // left alone
    choose(session, items.panel);
    CHECK_FALSE(isShown(session));
    CHECK_FALSE(isChecked(session, items.panel));
    choose(session, items.showAllPanels);
    CHECK(isShown(session));
    choose(session, items.showAllPanels);
    CHECK(isShown(session));
}

TEST_CASE("the panel goes with the library and comes back as it was") {
    for (const bool shown : {false, true}) {
        CAPTURE(shown);
        Session session;
        session.host.start();
        if (shown) choose(session, thePlugin->menuItems.panel);
        CHECK(session.send(kCallerAccess, kSelectorUnload, SPAccessMessage{}) == kNoErr);
        CHECK(session.host.panels.named(U"Facetta") == nullptr);
        CHECK(session.send(kCallerAccess, kSelectorReload, SPAccessMessage{}) == kNoErr);
        CHECK(session.host.panels.named(U"Facetta") != nullptr);
        CHECK(isShown(session) == shown);
    }
}

TEST_CASE("menu commands succeed whatever the host makes of them") {
    Session session;
    session.host.start();
    AIMenuMessage message{};
    message.menuItem = thePlugin->menuItems.panel;
    for (const char* function : {"AI Panel Suite.Show", "AI Menu Suite.CheckItem"}) {
        INFO(function);
        easel::session().calls.arm({.mode = easel::FaultPlan::Mode::FromThenOn,
                                    .call = 1,
                                    .function = function,
                                    .code = kBadParameterErr});
        CHECK(session.send(kCallerMenu, kSelectorGo, message) == kNoErr);
        CHECK(session.send(kCallerMenu, kSelectorUpdate, message) == kNoErr);
        CHECK(easel::session().calls.fired());
        easel::session().calls.disarm();
    }
    CHECK(session.host.user.alerts.empty());
}

TEST_CASE("without a panel the tool works, and the user is told") {
    Session session;
    easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                .call = 1,
                                .function = "AI Panel Suite.Create",
                                .code = kOutOfMemoryErr});
    session.host.start();
    CHECK(easel::session().calls.fired());
    easel::session().calls.disarm();
    CHECK(thePlugin->toolHandle != nullptr);
    REQUIRE(session.host.user.alerts.size() == 1);
    CHECK(session.host.user.alerts.front().text.find("-1") != std::string::npos);
    choose(session, thePlugin->menuItems.panel);
    choose(session, thePlugin->menuItems.showAllPanels);
    CHECK_FALSE(isChecked(session, thePlugin->menuItems.panel));
}
