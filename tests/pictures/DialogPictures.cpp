/// dialog_pictures.exe FOLDER: writes each dialog of the plug-in, as the plug-in fills it, in light
/// and dark, at 1x, 1.5x and 2x.

#include "easel/runtime/Host.h"
#include "easel/suites/Suites.h"
#include "shell/Entry.h"
#include "shell/FacettaPlugin.h"
#include "shell/LicensedToAll.h"
#include "tool/axes/Reposition.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplWin/WinPeers.h"
#include "toolkit/gallery/Snapshot.h"

#include <cstdio>
#include <string>

namespace {

using namespace facetta;

SPErr entry(const char* caller, const char* selector, void* message) {
    static constexpr LicensedToAll kLicence;
    return handleMessage(kLicence, caller, selector, message);
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
    for (const Row& row : kDialogs)
        for (const bool dark : {false, true})
            for (const Scale& scale : kScales)
                all = writePicture(row, dark, scale, argv[1]) && all;
    return all ? 0 : 1;
}
