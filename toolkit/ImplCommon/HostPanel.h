#pragma once

#include "host/Handles.h"
#include "host/suites/AIPanelSuite.h"
#include "toolkit/ImplCommon/Peers.h"

#include <string>

namespace NRDM {

class CoADMDialog;

/// The host's panel that a dialog lies in: its frame, tab, place on the screen and flyout menu.
///
/// The host tells of its changes outside any message. Each time the dialog first makes sure that it
/// still lies in the panel's window (`CoADMDialog::followHost`). Then:
/// - another state: the dialog is notified as if its size had been cycled;
/// - another size: the dialog takes it over, and is notified when it did not ask for it;
/// - before the menu opens: the menu item's track procedure brings the entries up to date;
/// - an entry chosen: the menu item's entry is chosen.
class HostPanel {
public:
    /// With the title and size of the dialog's view, hidden at first. Throws
    /// `NRDMResourceException` when the host gives no panel.
    explicit HostPanel(CoADMDialog& dialog);
    ~HostPanel();
    HostPanel(const HostPanel&) = delete;
    HostPanel& operator=(const HostPanel&) = delete;

    [[nodiscard]] bool is(AIPanelRef panel) const noexcept { return panel == panel_; }

    /// What the dialog's window lies in; null where there are no windows. A host may destroy it and
    /// make another.
    [[nodiscard]] void* window() const;

    void setTitle(const std::string& title);
    void show(bool shown);
    /// False also behind another tab.
    [[nodiscard]] bool isShown() const;
    /// The host counts in pixels. It is asked again only when the number of these changes.
    void setSize(Extent size, double pixelsInUnit);
    [[nodiscard]] int state() const;
    void setState(int state);
    void setMenu(AIPanelFlyoutMenuRef menu);

private:
    const AIPanelSuite& suite_;
    AIPanelRef panel_ = nullptr;
    Extent asked_; ///< the host for, in pixels
};

} // namespace NRDM
