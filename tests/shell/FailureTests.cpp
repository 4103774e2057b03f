#include "tests/shell/Session.h"

#include "host/MessageNames.h"

using namespace facetta;
using namespace facetta::tests;

TEST_CASE("a failure is shown once, and again for another code") {
    Session session;
    session.host.start();
    session.openDocument();
    const auto failWith = [&](AIErr code) {
        easel::session().calls.arm({.mode = easel::FaultPlan::Mode::FromThenOn,
                                    .call = 1,
                                    .function = "AI Layer Suite.GetCurrentLayer",
                                    .code = code});
        AIToolMessage message{};
        message.tool = thePlugin->toolHandle;
        CHECK(session.send(kCallerTool, kSelectorSelect, message) == code);
        easel::session().calls.disarm();
    };
    const auto& alerts = session.host.user.alerts;
    failWith(kOutOfMemoryErr);
    REQUIRE(alerts.size() == 1);
    CHECK(alerts.front().text.find("!MEM") != std::string::npos);
    failWith(kOutOfMemoryErr); // within five seconds
    CHECK(alerts.size() == 1);
    failWith(kBadParameterErr);
    CHECK(alerts.size() == 2);
    failWith(kCanceledErr); // silent
    CHECK(alerts.size() == 2);
    failWith(kBadParameterErr); // a silent code is not remembered as the last one shown
    CHECK(alerts.size() == 2);
}
