#pragma once

#include "host/SuiteHolder.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIModalParentSuite.h"
#include "host/suites/AIPanelFlyoutMenuSuite.h"
#include "host/suites/AIPanelSuite.h"
#include "toolkit/ImplCommon/CoADMIcon.h"
#include "toolkit/ImplCommon/Lent.h"
#include "toolkit/ImplCommon/Numbers.h"
#include "toolkit/ImplCommon/Peers.h"
#include "toolkit/ImplCommon/Theme.h"
#include "toolkit/layout/Layout.h"
#include "toolkit/suites/ADMTypes.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace NRDM {

/// What a client asks for when it creates a dialog.
struct DialogRequest {
    SPPluginRef plugin = nullptr;
    std::string name;
    int resource = 0; ///< of its layout; 0 for none
    ADMDialogStyle style = kADMModalDialogStyle;
    ADMDialogInitProc init = nullptr;
    ADMUserData userData = nullptr;
    int options = 0;
};

/// How far the arrows of a field go.
struct Increments {
    float small;
    float large;
};

/// The dialogs that are open, and what holds for all of them. The toolkit has one, which the
/// functions of the suites find as `current`.
class Dialogs {
public:
    /// Made for the owner of the dialogs. Nothing is kept in it, because the library may be loaded
    /// again at another place.
    using MakePeers = std::unique_ptr<Peers> (*)(void* owner);

    /// Windows are made by what `makePeers` gives once the first dialog wants one. `themes` are
    /// kept up to date by their owner. The host's suites are taken as far as the host has them.
    Dialogs(const Themes& themes, MakePeers makePeers, void* owner);
    /// Destroys what is left.
    ~Dialogs();
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;

    /// Throws `NRDMResourceException` while the toolkit is not running.
    [[nodiscard]] static Dialogs& current();

    /// The library has been loaded anew, with no dialog open: this is the current one again.
    void announce(MakePeers makePeers) noexcept;

    /// A dialog, or null when its init procedure refuses. Throws `NRDMResourceException` when its
    /// resources are missing; a panel does without a layout.
    CoADMDialog* create(const DialogRequest& request);
    /// The same with a layout that is no resource.
    CoADMDialog* create(const DialogRequest& request, const layout::Layout& layout);
    /// Creates, runs and destroys a modal dialog. Answers what it was ended with, 0 when its init
    /// procedure refused.
    int modal(const DialogRequest& request);
    void destroy(CoADMDialog& dialog);
    /// Also those that run: their loops end, and answer 0 without touching anything that may have
    /// gone meanwhile.
    void closeAll() noexcept;

    [[nodiscard]] Peers& peers();
    [[nodiscard]] const Themes& themes() const noexcept { return themes_; }
    /// Tells what is in flight, inside its handler, where no caller can be told.
    void fail() noexcept;
    /// The host's colours have changed.
    void themeChanged();
    [[nodiscard]] const std::vector<std::shared_ptr<CoADMDialog>>& open() const noexcept {
        return open_;
    }

    [[nodiscard]] Increments incrementsOf(ADMUnits units) const;
    void setIncrements(ADMUnits units, const Increments& increments);

    /// The host's main window; null where there is none.
    [[nodiscard]] void* hostWindow() const;
    /// What a new window belongs to: the modal dialog on top, or the host's main window.
    [[nodiscard]] void* ownerWindow() const;

    void enableTips(bool enabled);
    [[nodiscard]] bool areTipsEnabled() const noexcept { return tipsEnabled_; }

    NumberCustoms customs;
    Lent<CoADMIcon> icons;

    // The host's; empty in a host without them.
    ai::SuiteLease<AIPanelSuite> panels;
    ai::SuiteLease<AIPanelFlyoutMenuSuite> flyoutMenus;
    ai::SuiteLease<AIModalParentSuite> modalParent;
    ai::SuiteLease<AIAppContextSuite> appContext;

private:
    CoADMDialog* create(const DialogRequest& request, const layout::Layout* layout);

    const Themes& themes_;
    MakePeers makePeers_ = nullptr;
    void* owner_;
    std::unique_ptr<Peers> peers_;
    std::vector<std::shared_ptr<CoADMDialog>> open_;
    std::map<ADMUnits, Increments> increments_;
    bool tipsEnabled_ = true;
};

} // namespace NRDM
