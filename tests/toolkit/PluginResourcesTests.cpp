/// The plug-in as built, in a host: that its library holds what it names to the host.

#include "easel/core/HostCalls.h"
#include "easel/runtime/Host.h"
#include "easel/suites/Suites.h"
#include "toolkit/ImplCommon/PictureResources.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <doctest/doctest.h>

#include <string>

namespace {

constexpr ai::int32 kArrow = -4;
constexpr ai::int32 kBase = 16021;

struct PluginInHost {
    easel::Host host{easel::sessionWithSuites()};

    PluginInHost() {
        host.addPlugins(FACETTA_LIBRARY);
        host.start();
        host.open(std::make_unique<easel::Document>(easel::session(), AISize{1000, 800}));
    }
    ~PluginInHost() { host.quit(); }

    [[nodiscard]] SPPlatformAccessRef library() const {
        return host.plugins.at(host.plugins.nth(0)).library->native();
    }
    [[nodiscard]] AIToolHandle tool() const {
        return host.tools.tools.findIf(
            [](const auto& each) { return each.name == "Facetta Tool"; });
    }
};

} // namespace

TEST_CASE("the library holds the icons that the tool is registered with, and what dialogs need") {
    const PluginInHost plugin;
    const auto& tool = plugin.host.tools.tools.at(plugin.tool());
    for (const ai::uint32 icon : {tool.lightIcon, tool.darkIcon})
        for (const auto density : {NRDM::PictureDensity::One, NRDM::PictureDensity::OneAndHalf,
                                   NRDM::PictureDensity::Two})
            CHECK_FALSE(
                NRDM::findPicture(plugin.library(), static_cast<int>(icon), density).empty());
    CHECK(NRDM::readMenu(plugin.library(), 701).has_value());
    CHECK(NRDM::readString(plugin.library(), 17101).has_value());
    CHECK_FALSE(NRDM::findResource(plugin.library(), NRDM::ResourceKind::Layout, 16001).empty());
}

TEST_CASE("over the document the host shows the tool's cursor") {
    PluginInHost plugin;
    CHECK(plugin.host.user.cursor == kArrow);
    plugin.host.selectTool(plugin.tool());
    plugin.host.track({.at = {100, -100}});
    CHECK(plugin.host.user.cursor == kBase);
    CHECK(plugin.host.user.cursorManagers.count() == 1);
    plugin.host.quit();
    CHECK(plugin.host.user.cursorManagers.count() == 0);
}

TEST_CASE("a host that cannot show cursors is asked no further, and the system shows them") {
    for (const char* broken :
         {"AI User Suite.GetDateAndTime", // laid out otherwise, perhaps
          "AI User Suite.SetCursor", "AI User Suite.CreateCursorResourceMgr"}) {
        INFO(std::string(broken));
        easel::session().calls.arm({easel::FaultPlan::Mode::FromThenOn, 1, broken});
        PluginInHost plugin;
        plugin.host.selectTool(plugin.tool());
#ifdef _WIN32
        const HCURSOR before = SetCursor(nullptr);
        plugin.host.track({.at = {100, -100}});
        CHECK(GetCursor() != nullptr);
        SetCursor(before);
#else
        plugin.host.track({.at = {100, -100}});
#endif
        CHECK(plugin.host.user.cursor == kArrow);
        easel::session().calls.disarm();
        plugin.host.quit();
        CHECK(plugin.host.user.cursorManagers.count() == 0);
    }
}
