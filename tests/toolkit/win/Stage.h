#pragma once

#include "tests/toolkit/win/Hands.h"

#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/SuiteTables.h"

#include <optional>

namespace NRDM::tests {

/// Dialogs made through the suites, in real windows, and hands to use them with. The host has a
/// main window and says that the resources are this program's; it has nothing else.
class Stage final : public Hands {
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// A floating one. Closed with the stage, as all are.
    ADMDialogRef dialog();
    /// One for `run`.
    ADMDialogRef modalDialog();

    /// An item 100 wide in the next row of 30; what it tells its client is written down.
    ADMItemRef add(ADMDialogRef dialog, int id, const char* type, const char* text = "");
    /// The same with a number within limits.
    ADMItemRef addNumber(ADMDialogRef dialog, int id, const char* type, float value, float lowest,
                         float highest);

    void show(ADMDialogRef dialog);
    /// Shows a modal dialog, and lets a user act while it runs.
    int run(ADMDialogRef dialog, std::function<void()> act);

    [[nodiscard]] static HWND window(ADMDialogRef dialog);
    [[nodiscard]] static HWND window(ADMItemRef item);
    /// The edit inside a field.
    [[nodiscard]] static HWND field(ADMItemRef item);
    /// What the edit inside a field shows.
    [[nodiscard]] static std::wstring shown(ADMItemRef item);
    [[nodiscard]] static int activeId(ADMDialogRef dialog);

    void setTheme(const Theme& theme);

    Owner host;
    Themes themes;
    std::optional<Dialogs> dialogs;
    int failures = 0; ///< exceptions that reached a window procedure

    /// What clients were told since last time: "user 4 = 72".
    [[nodiscard]] Log takeHeard() { return std::exchange(heard_, {}); }

private:
    ADMDialogRef make(ADMDialogStyle style);
    static std::unique_ptr<Peers> makePeers(void* stage);
    static void itemHears(ADMItemRef item, ADMNotifierRef notifier);

    Log heard_;
    int rows_ = 0;
};

} // namespace NRDM::tests
