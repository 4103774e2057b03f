#include "tests/shell/Session.h"

#include "host/MessageNames.h"

#include <algorithm>

using namespace facetta;
using namespace facetta::tests;

namespace {

/// How often the panel was told to look at the state again.
int refreshes = 0;

class RefreshedSession : public Session {
public:
    RefreshedSession() {
        host.start();
        thePlugin->updatePanel = [] { ++refreshes; };
        refreshes = 0;
    }
};

} // namespace

TEST_CASE("the licence hears that the host has started, and of whatever the plug-in hears") {
    Session session;
    session.host.start();
    CHECK(session.licence.starts == 1);
    session.licence.heard.clear();
    session.host.notifiers.notify(kLicenceChangedNotifier, nullptr);
    CHECK(session.licence.heard == std::vector<std::string>{kLicenceChangedNotifier});
    AINotifierMessage message{};
    message.type = "of nobody's handle";
    CHECK(session.send(kCallerNotifier, kSelectorNotify, message) == kNoErr);
    CHECK(session.licence.heard.back() == "of nobody's handle");
}

TEST_CASE("a licence that has changed is noted and the panel told, however it comes to light") {
    for (const bool byTimer : {true, false}) {
        RefreshedSession session;
        session.licence.changesOnTimer = byTimer;
        if (byTimer)
            CHECK(session.send(kCallerTimer, "AI Go", AITimerMessage{}) == kNoErr);
        else
            session.host.notifiers.notify(kLicenceChangedNotifier, nullptr);
        CHECK(session.licence.timers == (byTimer ? 1 : 0));
        CHECK(thePlugin->licenceChanged);
        CHECK(refreshes > 0);
    }
}

TEST_CASE("\"Licensing...\" opens the licence's own dialog and has the panel look again") {
    RefreshedSession session;
    session.host.chooseMenuItem(thePlugin->menuItems.help[3]);
    CHECK(session.licence.dialogs == 1);
    CHECK(refreshes > 0);
}
