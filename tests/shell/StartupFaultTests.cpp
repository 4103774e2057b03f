#include "tests/shell/Session.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace facetta;
using namespace facetta::tests;

namespace {

/// The names of the calls that start-up makes and that can fail, in order.
std::vector<std::string> fallibleCalls() {
    Session session;
    easel::session().calls.setRecording(true);
    session.host.start();
    easel::session().calls.setRecording(false);
    std::vector<std::string> names;
    for (const easel::SlotRecord* slot : easel::session().calls.recorded())
        if (slot->returnsError) names.push_back(slot->name);
    return names;
}

} // namespace

TEST_CASE("whichever host call of start-up fails, nothing is kept, and the host starts again") {
    const std::vector<std::string> names = fallibleCalls();
    REQUIRE(names.size() > 100);
    for (std::size_t call = 1; call <= names.size(); ++call) {
        INFO(names[call - 1], ", host call ", call);
        {
            Session session;
            session.startUpMayFail = true;
            easel::session().calls.arm({.mode = easel::FaultPlan::Mode::Once,
                                        .call = call,
                                        .function = {},
                                        .code = kOutOfMemoryErr});
            session.host.start();
            CHECK(easel::session().calls.fired());
            easel::session().calls.disarm();
            session.openDocument();
            CHECK(session.host.user.alerts.size() <= 1);
        }
    }
    Session afterwards;
    afterwards.host.start();
    CHECK(thePlugin->toolHandle != nullptr);
}
