#include "easel/suites/Suites.h"
#include "tests/easel/runtime/TestPlugin.h"
#include "toolkit/Cursors.h"

#include <doctest/doctest.h>

#include <optional>

using namespace facetta::tests;

namespace {

constexpr ai::int32 kArrow = -4;
constexpr ai::int32 kMove = 16022;
constexpr ai::int32 kFinger = 16024;

/// The cursors of a plug-in that a host has started.
struct CursorsInUse {
    easel::Host host{easel::sessionWithSuites()};
    TestPlugin plugin{host};
    std::optional<NRDM::Cursors> cursors;

    CursorsInUse() {
        plugin.on("SP Interface/Startup", [this](SPMessageData& message) {
            ai::basicSuite = message.basic;
            cursors.emplace(message.self);
            return kNoErr;
        });
        plugin.on("SP Interface/Shutdown", [this](SPMessageData&) {
            cursors.reset();
            ai::basicSuite = nullptr;
            return kNoErr;
        });
        host.start();
    }

    void show(ai::int32 id) {
        plugin.run([&] { cursors->show(id); });
    }
    void close() {
        plugin.run([&] { cursors->close(); });
    }
};

} // namespace

TEST_CASE("a host that cannot show cursors is asked no further") {
    for (const char* broken : {"AI User Suite.GetDateAndTime", "AI User Suite.SetCursor",
                               "AI User Suite.CreateCursorResourceMgr"}) {
        INFO(std::string(broken));
        easel::session().calls.arm({easel::FaultPlan::Mode::FromThenOn, 1, broken});
        CursorsInUse use;
        use.show(kMove);
        CHECK(use.host.user.cursor == kArrow);
        easel::session().calls.disarm();
        use.host.quit();
        CHECK(use.host.user.cursorManagers.handles().empty());
    }
}
