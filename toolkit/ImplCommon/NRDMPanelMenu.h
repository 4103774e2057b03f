#pragma once

#include "host/suites/AIPanelFlyoutMenuSuite.h"
#include "toolkit/ImplCommon/INRDMList.h"

#include <string>
#include <vector>

namespace NRDM {

/// An entry as the host's menu shows it.
struct PanelMenuEntry {
    std::string text;
    bool separator = false;
    bool enabled = true;
    bool checked = false;
};

/// A panel's flyout menu in the host, which mirrors a list. The host knows each entry by its
/// position and one, for its 0 means that nothing was chosen.
class NRDMPanelMenu {
public:
    /// Empty at first. Throws `NRDMResourceException` when the host gives no menu.
    explicit NRDMPanelMenu(const AIPanelFlyoutMenuSuite& suite);
    ~NRDMPanelMenu();
    NRDMPanelMenu(const NRDMPanelMenu&) = delete;
    NRDMPanelMenu& operator=(const NRDMPanelMenu&) = delete;

    [[nodiscard]] AIPanelFlyoutMenuRef reference() const noexcept { return menu_; }

    /// Brings the host's menu to what `list` holds. Throws `ai::Error`.
    void show(const INRDMList& list);

    /// The position of what the host calls `id`; -1 for 0.
    [[nodiscard]] static int positionOf(ai::uint32 id) { return static_cast<int>(id) - 1; }

private:
    void rebuild(const std::vector<PanelMenuEntry>& entries);
    void setState(ai::uint32 index, const PanelMenuEntry& entry);

    const AIPanelFlyoutMenuSuite& suite_;
    AIPanelFlyoutMenuRef menu_ = nullptr;
    std::vector<PanelMenuEntry> shown_;
};

} // namespace NRDM
