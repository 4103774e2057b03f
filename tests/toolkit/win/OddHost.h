#pragma once

#include "tests/toolkit/win/Hands.h"

#include "toolkit/SuiteTables.h"
#include "toolkit/Toolkit.h"

#include <optional>

namespace NRDM::tests {

/// Has the toolkit find the suites of a host with that main window. Resources are this program's.
void offerOddSuites(HWND mainWindow);

/// A host whose panels behave otherwise than Easel's, as its interface leaves it free to: it shows
/// them by itself, destroys and remakes their windows without a word, hooks itself into windows
/// that are not its own, gives panels colours of their own, and may end while a modal dialog runs.
class OddHost : public Hands {
public:
    OddHost();
    ~OddHost();
    OddHost(const OddHost&) = delete;
    OddHost& operator=(const OddHost&) = delete;

    /// A panel with the items that `fill` makes.
    ADMDialogRef panel(ADMDialogInitProc fill);

    // What the host does to the panel.
    void restore();                     ///< shows it, as its workspace says
    void remakeWindow();                ///< tells nobody
    static void tellWindow(bool tells); ///< or answers an error instead
    void tellVisibility();
    void tellSize();
    void tellState(ai::int16 state);
    void openMenu();

    /// Puts a procedure of somebody else's before that of each window of the panel, and leaves it.
    void hookWindows();

    /// Ends the toolkit, whatever runs.
    void end() { toolkit.reset(); }

    [[nodiscard]] HWND client() const; ///< what the host gives the panel
    [[nodiscard]] HWND child() const;  ///< what lies in it
    [[nodiscard]] static bool hasContext();

    /// The host's main window, and in it what has the keyboard while the user draws.
    Owner main;
    HWND document;
    std::optional<Toolkit> toolkit;
};

} // namespace NRDM::tests
