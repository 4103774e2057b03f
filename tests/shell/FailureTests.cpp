#include "tests/Seed.h"
#include "tests/shell/Session.h"

#include "host/MessageNames.h"

#include <random>

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

TEST_CASE("random callers, selectors and records do no harm") {
    Session session;
    session.host.start();
    session.openDocument();
    constexpr const char* kWords[] = {
        "AI Tool",       "AI Menu",         "AI Notifier",    "AI Annotation",   "AI Timer",
        "AI Clipboard",  "AI Filter",       "AI File Format", "AI Plugin Group", "Action Manager",
        "SP Cache",      "AI Go",           "AI Update",      "AI Notify",       "AI Mouse Down",
        "AI Mouse Drag", "AI Mouse Up",     "AI Select",      "AI Deselect",     "AI Track Cursor",
        "AI Draw",       "AI Edit Options", "Do Action",      "Plug-in Purge",   "About",
    };
    std::mt19937_64 random(seed());
    const auto word = [&] {
        std::string text = kWords[random() % std::size(kWords)];
        const auto kind = random() % 8;
        if (kind == 0) text.resize(random() % (text.size() + 1));
        if (kind == 1) text.push_back(static_cast<char>(random()));
        if (kind == 2 && !text.empty()) text[random() % text.size()] ^= 0x20;
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        AIToolMessage message{};
        message.tool = random() % 2 == 0 ? thePlugin->toolHandle : nullptr;
        message.cursor = {static_cast<AIReal>(random() % 3000) - 1000.0F,
                          static_cast<AIReal>(random() % 3000) - 1000.0F};
        const std::string caller = word();
        const std::string selector = word();
        CAPTURE(caller);
        CAPTURE(selector);
        // A notification holds a text where a tool message holds the cursor. The host sees a text
        // up to its first zero, which may be a random one.
        const SPErr result =
            std::string_view(caller.c_str()) == kCallerNotifier
                ? session.send(caller.c_str(), selector.c_str(), AINotifierMessage{})
                : session.send(caller.c_str(), selector.c_str(), message);
        REQUIRE(result == kNoErr);
    }
}
