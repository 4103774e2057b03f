/// What the plug-in's own dialogs cost, filled as the plug-in fills them: objects of the system
/// that they leave behind, and the time they take to open.

#include "tests/tool/Drawing.h"
#include "tests/toolkit/win/Census.h"

#include "tool/axes/Reposition.h"
#include "toolkit/ImplCommon/CoADMDialog.h"

#include <string>

using namespace NRDM::tests;
using namespace facetta;
using facetta::tests::Drawing;

namespace {

constexpr int kRounds = 200;

/// The mean counts: the processor's clock goes in steps of several milliseconds.
void checkIsQuick(const std::string& what, double spent) {
    MESSAGE(what << ": " << spent / kRounds << " ms of work to open");
    CHECK(spent / kRounds < 100);
}

double paintedAt = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global*): a timer has no other way

/// Comes when the dialog has been painted: a timer's turn is after painting.
void CALLBACK closeDialog(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    paintedAt = processorMilliseconds();
    NRDM::Dialogs::current().open().back()->closeRequested();
}

/// Runs `act` in a message's surroundings.
template <typename Act> void run(Drawing& session, Act act) {
    session.host.edit("Look", [&](easel::Document&) {
        const platform::KeyState noKeys;
        ToolSession lent = thePlugin->toolSession(noKeys);
        act(lent);
    });
}

struct Row {
    const char* name;
    void (*open)(Drawing&);
};

constexpr Row kDialogs[] = {
    {"preferences",
     [](Drawing& s) { run(s, [](ToolSession& lent) { lent.dialogs.preferences(lent); }); }},
    {"numbers", [](Drawing& s) { run(s, [](ToolSession& lent) { lent.dialogs.editAxes(lent); }); }},
    {"numbers, with the art",
     [](Drawing& s) {
         if (!axesOnLayer(s.tool())) s.makeLive();
         run(s, [](ToolSession& lent) {
             beginReposition(lent.state);
             lent.dialogs.editAxes(lent);
             happen(lent.state, Event::LayerArtReleased);
         });
     }},
    {"about", [](Drawing& s) { s.host.chooseMenuItem(thePlugin->menuItems.about); }},
};

} // namespace

TEST_CASE("an object that is left behind is counted") {
    struct LeftBehind {
        HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
        HMENU menu = CreatePopupMenu();
        HWND window = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, HWND_MESSAGE,
                                      nullptr, nullptr, nullptr);
        ~LeftBehind() {
            DeleteObject(brush);
            DestroyMenu(menu);
            DestroyWindow(window);
        }
    };
    { const LeftBehind first; } // what the system makes for the first of them
    const Census before;
    const LeftBehind left;
    const Census after;
    CHECK(after.gdi == before.gdi + 1);
    CHECK(after.menuCount == before.menuCount + 1);
    CHECK(after.windowCount == before.windowCount + 1);
}

TEST_CASE(
    "200 openings of each of the plug-in's dialogs leave nothing, each in a tenth of a second") {
    for (const Row& row : kDialogs) {
        Drawing session(/*selected*/ false);
        double spent = 0;
        checkLeavesNothing(row.name, kRounds, [&] {
            SetTimer(nullptr, 0, USER_TIMER_MINIMUM, closeDialog);
            const double begun = processorMilliseconds();
            row.open(session);
            spent += paintedAt - begun;
        });
        checkIsQuick(row.name, spent);
    }
}

TEST_CASE("200 times shown and hidden, painted each time, the panel leaves nothing") {
    Drawing session(/*selected*/ false);
    Hands hands;
    const AIPanelRef panel = session.host.panels.named(U"Facetta");
    const NRDM::CoADMDialog& dialog = *NRDM::Dialogs::current().open().front();
    double spent = 0;
    checkLeavesNothing("panel", kRounds, [&] {
        hands.forgetPaints();
        const double begun = processorMilliseconds();
        session.host.showPanel(panel, true);
        hands.pump();
        spent += processorMilliseconds() - begun;
        for (const auto& item : dialog.items())
            if (item->view().visible)
                CHECK(hands.paintsOf(static_cast<HWND>(item->peer()->window())) == 1);
        session.host.showPanel(panel, false);
        hands.pump();
    });
    checkIsQuick("panel", spent);
}

TEST_CASE("a host that starts and quits again and again gets back all that its panel takes") {
    checkLeavesNothing("panel of a session", 12, [] {
        Drawing session(/*selected*/ false);
        Hands hands;
        session.host.panels.show(session.host.panels.named(U"Facetta"), true);
        hands.pump();
        CHECK(hands.paints() > 0);
    });
}
