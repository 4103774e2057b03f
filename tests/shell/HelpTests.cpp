#include "tests/shell/Session.h"

#include "Web.h"

#include "host/suites/AIUserSuite.h"
#include "platform/Headless.h"
#include "tests/shell/RearrangedTable.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace facetta;
using namespace facetta::tests;

namespace {

/// The surroundings of one test: what it sets is undone at its end.
class Desktop {
public:
    Desktop() = default;
    ~Desktop() { platform::headless::surroundings() = {}; }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    platform::headless::Surroundings* operator->() const {
        return &platform::headless::surroundings();
    }
};

/// A folder with a library and, if asked for, a manual beside it.
class PluginFolder {
public:
    explicit PluginFolder(bool withManual) {
        std::filesystem::create_directories(path);
        if (withManual) std::ofstream(manual()) << "manual";
    }
    ~PluginFolder() { std::filesystem::remove_all(path); }
    PluginFolder(const PluginFolder&) = delete;
    PluginFolder& operator=(const PluginFolder&) = delete;

    [[nodiscard]] std::filesystem::path manual() const { return path / "Facetta User Manual.pdf"; }
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / "facetta-help-tests \u00e9";
};

std::u16string page(std::string_view topic) {
    const std::string address = FACETTA_WEB_ENDPOINT
                                "?platform=w&version=1.1.0&host=16&level=1&source=" +
                                std::string(topic);
    return {address.begin(), address.end()};
}

} // namespace

TEST_CASE("the help item opens the manual that lies beside the library, and is silent without") {
    struct Row {
        const char* what;
        bool manual;
        std::size_t nameLength; ///< of the library; 0: a short one
        std::size_t opened;
    };
    const Row rows[] = {{"there", true, 0, 1},
                        {"missing", false, 0, 0},
                        {"a name of 299 characters", true, 299, 1},
                        {"a name of 300 characters", true, 300, 0}};
    for (const auto& row : rows) {
        INFO(row.what);
        const Desktop desktop;
        const PluginFolder folder(row.manual);
        std::u16string library = (folder.path / "facetta.aip").u16string();
        if (row.nameLength > library.size()) library.append(row.nameLength - library.size(), u'x');
        desktop->moduleFileName = library;
        Session session;
        session.host.start();
        session.host.chooseMenuItem(thePlugin->menuItems.help[0]);
        const auto& launched = session.host.user.launched;
        REQUIRE(launched.size() == row.opened);
        if (row.opened != 0) CHECK(launched.front() == folder.manual());
        CHECK(session.host.user.alerts.empty());
        CHECK(desktop->shownMessages.empty());
    }
}

TEST_CASE("where the user suite is laid out otherwise, the desktop opens the manual") {
    const Desktop desktop;
    const PluginFolder folder(/*withManual*/ true);
    desktop->moduleFileName = (folder.path / "facetta.aip").u16string();
    const RearrangedTable older(
        kAIUserSuite, kAIUserSuiteVersion, sizeof(AIUserSuite),
        [](std::span<void*> slots) { std::shift_right(slots.begin() + 11, slots.end(), 2); });
    Session session;
    session.host.start();
    session.host.chooseMenuItem(thePlugin->menuItems.help[0]);
    CHECK(session.host.user.launched.empty());
    CHECK(desktop->opened == std::vector{folder.manual().u16string()});
}

TEST_CASE("web items open their pages; without a web the user learns whom to ask") {
    struct Row {
        std::size_t item;
        const char* topic;
    };
    const Row rows[] = {
        {1, "tutorialmovies"}, {2, "checkforupdates"}, {4, "buyupgrade"}, {5, "licensinghelp"}};
    for (const auto& row : rows) {
        INFO(row.topic);
        const Desktop desktop;
        Session session;
        session.host.start();
        const AIMenuItemHandle handle = thePlugin->menuItems.help[row.item];
        session.host.chooseMenuItem(handle);
        CHECK(desktop->opened.empty());
        REQUIRE(session.host.user.alerts.size() == 1);
        CHECK(session.host.user.alerts.front().text.find(FACETTA_CONTACT_PAGE) !=
              std::string::npos);

        session.host.user.browserAvailable = true;
        session.host.chooseMenuItem(handle);
        CHECK(desktop->opened == std::vector{page(row.topic)});
    }
}

TEST_CASE("a page learns of the licence what that tells") {
    const Desktop desktop;
    Session session;
    session.licence.fragment = "&licence=loan";
    session.host.start();
    session.host.user.browserAvailable = true;
    session.host.chooseMenuItem(thePlugin->menuItems.help[4]);
    REQUIRE(desktop->opened.size() == 1);
    CHECK(desktop->opened.front().find(u"&licence=loan&level=1") != std::u16string::npos);
}

TEST_CASE("a version's first start with a web is welcomed, once") {
    struct Row {
        const char* lastVersion; ///< in the store; null: never run
        bool welcomed;
    };
    const Row rows[] = {{nullptr, true},  {"1.0.9", true}, {"0.12.3", true}, {"garbage", true},
                        {"1.1.0", false}, {"1.10", false}, {"2", false}};
    for (const auto& row : rows) {
        INFO((row.lastVersion == nullptr ? "never" : row.lastVersion));
        const Desktop desktop;
        Session session;
        session.host.user.browserAvailable = true;
        if (row.lastVersion != nullptr)
            session.host.preferences.put("FacettaLicensing", "LastVersion",
                                         std::string(row.lastVersion));
        for (int run = 0; run < 2; ++run) {
            session.host.start();
            session.host.quit();
        }
        CHECK(desktop->opened.size() == (row.welcomed ? 1 : 0));
        if (row.welcomed) CHECK(desktop->opened.front() == page("welcome"));
    }
}

TEST_CASE("show all panels is broadcast to every plug-in, and other items do nothing") {
    Session session({}, {.strictAccessMessages = false, .recordMessages = true});
    session.host.start();
    const auto broadcasts = [&] {
        return std::ranges::count(session.host.sent, "Norvane Show All Panels Notifier",
                                  &easel::SentMessage::detail);
    };
    session.host.chooseMenuItem(thePlugin->menuItems.showAllPanels);
    CHECK(broadcasts() == 1);
    CHECK(session.host.panels.at(session.host.panels.named(U"Facetta")).shown != 0);
    for (const AIMenuItemHandle item :
         {thePlugin->menuItems.help[3], thePlugin->menuItems.panel, thePlugin->menuItems.about})
        session.host.chooseMenuItem(item);
    session.host.openMenus();
    CHECK(broadcasts() == 1);
    CHECK(std::ranges::all_of(session.host.sent,
                              [](const auto& message) { return message.result == kNoErr; }));
}
