/// What the plug-in's own dialogs cost, filled as the plug-in fills them.

#include "tests/tool/Drawing.h"
#include "tests/toolkit/win/Census.h"

#include "tool/axes/Reposition.h"
#include "toolkit/ImplCommon/CoADMDialog.h"

#include <algorithm>

using namespace NRDM::tests;
using namespace facetta;
using facetta::tests::Drawing;

namespace {

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
    {"about", [](Drawing& s) { s.host.chooseMenuItem(thePlugin->menuItems.about); }},
};

} // namespace

TEST_CASE(
    "200 openings of each of the plug-in's dialogs leave nothing, each in a tenth of a second") {
    for (const Row& row : kDialogs) {
        Drawing session(/*selected*/ false);
        double least = 1e9;
        checkLeavesNothing(row.name, 200, [&] {
            SetTimer(nullptr, 0, USER_TIMER_MINIMUM, closeDialog);
            const double begun = processorMilliseconds();
            row.open(session);
            least = std::min(least, paintedAt - begun);
        });
        MESSAGE(row.name << ": " << least << " ms of work to open");
        CHECK(least < 100);
    }
}
