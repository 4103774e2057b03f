#include "tests/shell/RearrangedTable.h"
#include "tests/shell/Session.h"

#include "host/Error.h"
#include "host/MessageNames.h"
#include "host/suites/AIUIThemeSuite.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/Toolkit.h"

using namespace facetta;
using namespace facetta::tests;

TEST_CASE("the toolkit follows the interface's brightness until the host closes") {
    Session session;
    session.host.start();
    NRDM::Toolkit toolkit(session.plugin, nullptr);
    CHECK_FALSE(toolkit.theme().dark);
    const float light = toolkit.theme().background.red;

    /// What the host would send for the registration of that type made last: the toolkit's own.
    const auto serve = [&](std::string_view type) {
        AINotifierHandle own = nullptr;
        for (const auto& [handle, notifier] : session.host.notifiers)
            if (notifier->type == type) own = handle;
        return toolkit.serve(own);
    };
    session.host.user.darkTheme = true;
    CHECK(serve(kUIBrightnessChangedNotifier));
    CHECK(toolkit.theme().dark);
    CHECK(toolkit.theme().background.red < light);
    CHECK(toolkit.theme().text.red > toolkit.theme().background.red);

    session.host.user.darkTheme = false;
    CHECK_FALSE(serve("AI Preference Changed Notifier"));
    CHECK_FALSE(toolkit.serve(nullptr));
    CHECK(toolkit.theme().dark); // none of those was its own
    CHECK(serve(kAllPluginsStartedNotifier));
    CHECK_FALSE(toolkit.theme().dark);

    session.host.user.darkTheme = true;
    CHECK(serve(kApplicationShutdownNotifier));
    CHECK(serve(kUIBrightnessChangedNotifier));
    CHECK_FALSE(toolkit.theme().dark); // nothing is drawn any more
}

TEST_CASE("a colour that the host cannot tell stays as it was") {
    const RearrangedTable failing(
        kAIUIThemeSuite, kAIUIThemeSuiteVersion, sizeof(AIUIThemeSuite),
        [](std::span<void*> slots) {
            constexpr auto fail = [](ai::int32, ai::int32, AIUIThemeColor& color) -> AIErr {
                color = {0, -1, -1, -1};
                return kBadParameterErr;
            };
            AIErr (*const function)(ai::int32, ai::int32, AIUIThemeColor&) = fail;
            slots[0] = reinterpret_cast<void*>(function);
        });
    Session session;
    session.host.start();
    const NRDM::Toolkit toolkit(session.plugin, nullptr);
    CHECK(toolkit.theme().text.red == NRDM::Theme{}.text.red);
    CHECK(toolkit.theme().background.alpha == NRDM::Theme{}.background.alpha);
}

TEST_CASE("what a panel's procedure lets out is shown to the user once, and goes no further") {
    Session session;
    session.host.start();
    const auto& open = NRDM::Dialogs::current().open();
    REQUIRE(open.size() == 1);
    open.front()->procedures.notify = [](ADMDialogRef, ADMNotifierRef) {
        throw ai::Error(kBadParameterErr);
    };
    const AIPanelRef panel = session.host.panels.named(U"Facetta");
    session.host.cyclePanel(panel);
    session.host.cyclePanel(panel);
    REQUIRE(session.host.user.alerts.size() == 1);
    CHECK(session.host.user.alerts.front().text.find("PARM") != std::string::npos);
}
