/// dialog_pictures.exe FOLDER: writes the panel and each dialog of the plug-in, as the plug-in
/// fills them, in light and dark, at 1x, 1.5x and 2x.

#include "easel/runtime/Host.h"
#include "easel/suites/Suites.h"
#include "shell/Entry.h"
#include "shell/FacettaPlugin.h"
#include "shell/LicensedToAll.h"
#include "tests/shell/TestLicence.h"
#include "tool/axes/Reposition.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/gallery/Snapshot.h"
#include "ui/PanelItems.h"

#include <cstdio>
#include <string>

namespace {

using namespace facetta;

constexpr LicensedToAll kLicensed;
const Licensing& licensed() { return kLicensed; }

/// Refuses the panel to whoever has tried the product long enough.
const Licensing& trialIsOver() {
    static const tests::TestLicence licence = [] {
        tests::TestLicence made(LicenceState::Licensed, {GuardedAction::UsePanel});
        made.status =
            "The trial of Facetta ended on Friday. \"Licensing...\" in the menu says more.";
        return made;
    }();
    return licence;
}

/// That of the plug-in that runs.
const Licensing* current = &kLicensed; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

SPErr entry(const char* caller, const char* selector, void* message) {
    return handleMessage(*current, caller, selector, message);
}

/// The plug-in over a document, with axes that wait to be applied.
class Plugin {
public:
    Plugin(bool dark, double scale) {
        host.addPlugin("Facetta", entry);
        host.user.browserAvailable = false;
        host.user.darkTheme = dark;
        host.start();
        NRDM::WinPeers::current().screen().fixedScale = NRDM::Scale{scale};
        host.open(std::make_unique<easel::Document>(easel::session(), AISize{800, 600}));
        host.selectTool(thePlugin->toolHandle);
        host.press({.at = {400, -300}});
        host.drag({.at = {500, -260}});
        host.release({.at = {500, -260}});
    }
    ~Plugin() { host.quit(); }
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    /// Runs `act` in a message's surroundings.
    template <typename Act> void run(Act act) {
        host.edit("Look", [&](easel::Document&) {
            const platform::KeyState noKeys;
            ToolSession session = thePlugin->toolSession(noKeys);
            act(session);
        });
    }

    easel::Host host{easel::sessionWithSuites()};
};

struct Row {
    const char* name; ///< of its picture files
    void (*open)(Plugin&);
};

constexpr Row kDialogs[] = {
    {"preferences",
     [](Plugin& plugin) { plugin.run([](ToolSession& s) { s.dialogs.preferences(s); }); }},
    {"edit-axes",
     [](Plugin& plugin) { plugin.run([](ToolSession& s) { s.dialogs.editAxes(s); }); }},
    {"reposition-axes",
     [](Plugin& plugin) {
         plugin.host.editToolOptions(); // the axes go on the layer
         plugin.run([](ToolSession& s) {
             beginReposition(s.state);
             s.dialogs.editAxes(s);
         });
     }},
    {"about", [](Plugin& plugin) { plugin.host.chooseMenuItem(thePlugin->menuItems.about); }},
};

NRDM::CoADMDialog& panel() { return *NRDM::Dialogs::current().open().front(); }
NRDM::CoADMItem& item(int id) { return *panel().item(id); }

void editLayerAxes(Plugin& plugin) {
    plugin.host.editToolOptions(); // they go on the layer
    item(panel_item::kOverlay).clicked();
    item(panel_item::kAngle).typed("247.5");
    item(panel_item::kAngle).commit();
}

struct PanelRow {
    const char* name; ///< of its picture files
    const Licensing& (*licence)();
    void (*prepare)(Plugin&);
};

constexpr PanelRow kPanels[] = {
    {"layer", licensed, editLayerAxes},
    {"selection", licensed, [](Plugin&) { item(panel_item::kSelectionMode).clicked(); }},
    {"compact", licensed,
     [](Plugin& plugin) {
         editLayerAxes(plugin);
         plugin.host.cyclePanel(plugin.host.panels.named(U"Facetta"));
     }},
    {"refused", trialIsOver, [](Plugin&) {}},
};

struct Scale {
    double factor;
    const char* name;
};
constexpr Scale kScales[] = {{1, "1x"}, {1.5, "1.5x"}, {2, "2x"}};

/// The file that the modal dialog about to run is written to, and whether it was.
std::wstring wanted;  // NOLINT(cppcoreguidelines-avoid-non-const-global*): a timer has no other way
bool written = false; // NOLINT(cppcoreguidelines-avoid-non-const-global*)

/// Comes when the dialog has been painted: a timer's turn is after painting.
void CALLBACK takePicture(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    NRDM::CoADMDialog& dialog = *NRDM::Dialogs::current().open().back();
    written = NRDM::gallery::savePicture(static_cast<HWND>(dialog.peer()->window()), wanted);
    dialog.closeRequested();
}

void showPanel(Plugin& plugin) {
    plugin.host.showPanel(plugin.host.panels.named(U"Facetta"), true);
    for (MSG message{}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0;)
        DispatchMessageW(&message); // it is painted
}

bool writePanel(const PanelRow& row, bool dark, const Scale& scale, const std::string& folder) {
    const std::string file =
        folder + "/panel-" + row.name + (dark ? "-dark-" : "-light-") + scale.name + ".png";
    current = &row.licence();
    Plugin plugin(dark, scale.factor);
    row.prepare(plugin);
    showPanel(plugin);
    const bool saved = NRDM::gallery::savePicture(static_cast<HWND>(panel().peer()->window()),
                                                  std::wstring(file.begin(), file.end()));
    current = &kLicensed;
    if (!saved) std::fprintf(stderr, "cannot write %s\n", file.c_str());
    return saved;
}

/// Comes when the menu has been painted.
void CALLBACK takeMenuPicture(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    const HWND frame = GetAncestor(static_cast<HWND>(panel().peer()->window()), GA_ROOT);
    const HWND menu = FindWindowW(L"#32768", nullptr);
    written = menu != nullptr && NRDM::gallery::savePictureWithMenu(frame, menu, wanted);
    EndMenu();
}

/// At one scale only: frame and menu are the host's, which does not scale them.
bool writeFlyout(bool dark, const std::string& folder) {
    const std::string file = folder + "/panel-flyout-" + (dark ? "dark" : "light") + "-1x.png";
    wanted.assign(file.begin(), file.end());
    written = false;
    Plugin plugin(dark, 1);
    editLayerAxes(plugin);
    item(panel_item::kApply).clicked();
    showPanel(plugin);
    const HWND frame = GetAncestor(static_cast<HWND>(panel().peer()->window()), GA_ROOT);
    constexpr WPARAM kFlyoutButton = 1;
    SetTimer(nullptr, 0, 100, takeMenuPicture);
    SendMessageW(frame, WM_COMMAND, kFlyoutButton, 0);
    if (!written) std::fprintf(stderr, "cannot write %s\n", file.c_str());
    return written;
}

bool writePicture(const Row& row, bool dark, const Scale& scale, const std::string& folder) {
    const std::string file =
        folder + "/dialog-" + row.name + (dark ? "-dark-" : "-light-") + scale.name + ".png";
    wanted.assign(file.begin(), file.end());
    written = false;
    Plugin plugin(dark, scale.factor);
    SetTimer(nullptr, 0, USER_TIMER_MINIMUM, takePicture);
    row.open(plugin);
    if (!written) std::fprintf(stderr, "cannot write %s\n", file.c_str());
    return written;
}

} // namespace

int main(int argc, char** argv) {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    if (argc != 2) {
        std::fprintf(stderr, "dialog_pictures FOLDER\n");
        return 2;
    }
    bool all = true;
    for (const bool dark : {false, true}) {
        all = writeFlyout(dark, argv[1]) && all;
        for (const Scale& scale : kScales) {
            for (const Row& row : kDialogs)
                all = writePicture(row, dark, scale, argv[1]) && all;
            for (const PanelRow& row : kPanels)
                all = writePanel(row, dark, scale, argv[1]) && all;
        }
    }
    return all ? 0 : 1;
}
