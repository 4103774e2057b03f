#include "tests/shell/Session.h"
#include "tests/ui/DialogUser.h"

#include "Web.h"

#include "platform/Headless.h"

using namespace facetta;
using namespace facetta::tests;

namespace {

constexpr int kBuy = 1;
constexpr int kActivate = 3;
constexpr int kHelp = 5;

/// How often the panel was told to look at the state again.
int refreshes = 0;

/// A host with a web, and somebody who chooses "About Facetta...".
class About : public Session {
public:
    About() {
        host.start();
        host.user.browserAvailable = true;
        thePlugin->updatePanel = [] { ++refreshes; };
        refreshes = 0;
        surroundings().opened.clear();
    }
    ~About() { surroundings() = {}; }
    About(const About&) = delete;
    About& operator=(const About&) = delete;

    void open(DialogUser::Act act) {
        user.act = std::move(act);
        host.chooseMenuItem(thePlugin->menuItems.about);
    }
    static platform::headless::Surroundings& surroundings() {
        return platform::headless::surroundings();
    }

    DialogUser user;
};

} // namespace

TEST_CASE("the about box opens the vendor's page by its default button, and by no other") {
    struct Row {
        std::string what;
        DialogUser::Act act;
        bool buys;
    };
    const Row rows[] = {
        {"Buy Now", [](DialogUser& user) { user.click(kBuy); }, true},
        {"Enter", [](DialogUser& user) { user.press(door::Key::Enter); }, true},
        {"Help", [](DialogUser& user) { user.click(kHelp); }, false},
    };
    for (const Row& row : rows) {
        INFO(row.what);
        About session;
        session.open(row.act);
        CHECK(session.user.met == 1);
        const auto& pages = About::surroundings().opened;
        REQUIRE(pages.size() == (row.buys ? 1 : 0));
        if (!row.buys) continue;
        const std::string page(pages.front().begin(), pages.front().end());
        CHECK(page.starts_with(FACETTA_WEB_ENDPOINT "?"));
        CHECK(page.ends_with("&level=1&source=aboutMenu"));
    }
}

TEST_CASE(
    "the licence names the buttons; \"Activate...\" asks it, and the box shows what came of it") {
    About session;
    session.open([](DialogUser& user) {
        CHECK(user.text(kBuy) == "Buy Now");
        CHECK_FALSE(user.item(kActivate).shown); // it has no name
    });
    session.licence.buttonTexts = {"Buy Now", "Activate..."};
    session.open([&](DialogUser& user) {
        CHECK(user.item(kActivate).shown);
        session.licence.buttonTexts = {"Upgrade...", "Deactivate..."};
        user.click(kActivate);
        CHECK(session.licence.dialogs == 1);
        CHECK(user.text(kActivate) == "Deactivate...");
        CHECK(user.text(kBuy) == "Upgrade...");
        refreshes = 0;
        thePlugin->licenceChanged = true;
    });
    CHECK(refreshes > 0);
    refreshes = 0;
    session.open(nullptr);
    CHECK(refreshes == 0);
}
