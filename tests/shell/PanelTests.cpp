#include "tests/shell/Session.h"

#include "host/MessageNames.h"

using namespace facetta;
using namespace facetta::tests;

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
    session.host.chooseMenuItem(thePlugin->menuItems.panel);
    session.host.chooseMenuItem(thePlugin->menuItems.showAllPanels);
    session.host.openMenus();
    CHECK_FALSE(session.host.menus.items.at(thePlugin->menuItems.panel).checked);
}
