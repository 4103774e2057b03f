#pragma once

/// The panel, from the end of start-up to shut-down.
///
///   1. The constructor creates the dialog in a frame of the host's; its initialisation procedure
///      makes the items, the flyout menu and the icons, and shows the plug-in's state.
///   2. What the user does reaches the procedures in SymmetryPanel.cpp, each of which enters the
///      plug-in for the length of the event and passes on to PanelActions.h or PanelMenu.h.
///   3. `refresh` shows what the rest of the plug-in has changed.

#include "host/References.h"
#include "ui/PanelSession.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace facetta {

/// What the panel takes from the plug-in.
struct PanelOwner {
    /// Runs a function on the tool's state and what the plug-in lends it for one event.
    std::function<void(const std::function<void(ToolSession&)>&)> withTool;
    /// Keeps the plug-in, and with it the panel, while what it returns lives: the host may end it
    /// from the loop of a dialog.
    std::function<std::shared_ptr<const void>()> inUse;
    SymmetryAxes& copiedAxes;
};

class SymmetryPanel {
public:
    /// Hidden until the host or the user shows it. Throws `ai::Error` with the code -1 when there
    /// is no panel to be had.
    SymmetryPanel(SPPluginRef self, PanelOwner owner);
    /// The dialog may be gone before: the toolkit closes what is open when the host ends.
    ~SymmetryPanel();
    SymmetryPanel(const SymmetryPanel&) = delete;
    SymmetryPanel& operator=(const SymmetryPanel&) = delete;

    /// False also behind another panel's tab.
    [[nodiscard]] bool isVisible() const;
    void show(bool shown);

    /// Takes the dialog away for good.
    void close();

    /// Shows the axes and what can be done with them; or, while the licence forbids the panel's
    /// use, the licence's message in place of all items.
    void refresh(ToolSession& tool);

private:
    friend struct PanelProcedures;

    void build(ADMDialogRef dialog);
    void addIcons() const;
    void addMenu() const;
    void checkLicence(const ToolSession& tool);
    /// Runs `act` for an event of the dialog: what it fails in the middle of is taken back.
    void during(const std::function<void(PanelSession&)>& act);

    PanelOwner owner_;
    Adm adm_;
    ADMDialogRef dialog_ = nullptr;
    bool usable_ = true; ///< the licence allows the panel's use
    /// What is shown of the licence; nothing before the first look at it. Most refreshes have no
    /// other to show.
    std::optional<std::pair<bool, std::string>> shownLicence_;
};

} // namespace facetta
