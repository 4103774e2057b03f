#include "ui/SymmetryPanel.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIUndoSuite.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/axes/FollowDocument.h"
#include "ui/PanelActions.h"
#include "ui/PanelMenu.h"
#include "ui/PanelShown.h"
#include "ui/PanelSize.h"

#include <utility>

namespace facetta {
namespace {

constexpr char kPanelName[] = "Facetta";
constexpr ADMInt32 kPanelLayout = 16005; // the resources hold none: items are made in code
constexpr AIErr kNoPanelErr = -1;
constexpr ADMInt32 kIcon = 2103;
constexpr ADMInt32 kRolloverIcon = 2105;
constexpr ADMInt32 kFlyoutMenu = 701;
constexpr char kFlyoutMenuName[] = "FTPanelPopupMenu";

/// What an event began with, for when a host call fails in the middle of it.
class Beginning {
public:
    explicit Beginning(const ToolSession& tool)
        : holding_(holdingOf(tool.state)), preferences_(tool.preferences) {}

    void takeBack(PanelSession& session) const {
        ToolState& state = session.tool.state;
        static_cast<void>(ai::suites.undo->UndoChanges());
        hold(state, holding_);
        if (state.toolSelected) happen(state, Event::ToolTaken); // during the event, perhaps
        session.tool.preferences = preferences_;
        offerUpdateByMode(session);
        showState(session);
        applyPanelSize(session.adm, session.dialog, preferences_);
        axesChanged(session.tool);
    }

private:
    Holding holding_;
    Preferences preferences_;
};

/// Follows the document: no message need have told of its changes. What the panel shows stays, or
/// the value that the user has just given would be gone before anybody has read it; but in another
/// document, or none, that value was not given. True when the panel must be brought up to date
/// afterwards.
bool followedUnseen(ToolSession& tool) {
    const Place before = tool.state.place;
    const auto updatePanel = std::exchange(tool.updatePanel, [] {});
    followDocument(tool);
    tool.updatePanel = updatePanel;
    if (tool.state.place.document == before.document) return tool.state.place != before;
    updatePanel();
    return false;
}

} // namespace

/// What the toolkit calls.
struct PanelProcedures {
    static SymmetryPanel& panelOf(const Adm& adm, ADMDialogRef dialog) {
        return *static_cast<SymmetryPanel*>(adm.dialog->GetUserData(dialog));
    }

    /// One event: the suites, the host's context, and the panel whose turn it is.
    struct Turn {
        explicit Turn(ADMDialogRef dialog)
            : panel(panelOf(Adm(), dialog)), inUse(panel.owner_.inUse()),
              context(adm.dialog->GetPluginRef(dialog)) {}
        explicit Turn(ADMItemRef item) : Turn(Adm().item->GetDialog(item)) {}

        /// Nothing happens while the licence forbids the panel's use.
        template <typename Work> void act(Work work) const {
            if (panel.usable_) panel.during(work);
        }

        SymmetryPanel& panel;
        const std::shared_ptr<const void> inUse; ///< released last: the plug-in may go with it
        const Adm adm;
        const ai::AppContext context;
    };

    static ADMErr build(ADMDialogRef dialog) {
        const Turn turn(dialog);
        turn.panel.build(dialog);
        return kNoErr;
    }

    /// No context of the host's: it may be about to end.
    static void destroyed(ADMDialogRef dialog) {
        const Adm adm;
        panelOf(adm, dialog).dialog_ = nullptr;
    }

    static void itemNotified(ADMItemRef item, ADMNotifierRef notifier) {
        const Turn turn(item);
        turn.adm.item->DefaultNotify(item, notifier);
        if (!isUserChange(turn.adm, notifier)) return;
        turn.act([&](PanelSession& session) { actOnItem(session, turn.adm.item->GetID(item)); });
    }

    static void sliderNotified(ADMItemRef item, ADMNotifierRef notifier) {
        const Turn turn(item);
        turn.adm.item->DefaultNotify(item, notifier);
        turn.act(actOnSlider);
    }

    static void menuNotified(ADMItemRef item, ADMNotifierRef notifier) {
        const Turn turn(item);
        turn.adm.item->DefaultNotify(item, notifier);
        if (!isUserChange(turn.adm, notifier)) return;
        const ADMEntryRef chosen = turn.adm.list->GetActiveEntry(turn.adm.item->GetList(item));
        if (chosen == nullptr) return;
        turn.act([&](PanelSession& session) {
            choosePanelMenuEntry(session, turn.adm.entry->GetIndex(chosen));
        });
    }

    static ADMBoolean menuOpens(ADMItemRef item, ADMTrackerRef tracker) {
        const Turn turn(item);
        turn.act(
            [&](PanelSession& session) { updatePanelMenu(session, turn.adm.item->GetList(item)); });
        return turn.adm.item->DefaultTrack(item, tracker);
    }

    /// The host's frame is stepped through its sizes whatever the licence says.
    static void panelNotified(ADMDialogRef dialog, ADMNotifierRef notifier) {
        const Turn turn(dialog);
        turn.adm.dialog->DefaultNotify(dialog, notifier);
        if (turn.adm.notifier->IsNotifierType(notifier, kADMCycleNotifier) != 0)
            turn.panel.during(followHostPanelState);
    }
};

SymmetryPanel::SymmetryPanel(SPPluginRef self, PanelOwner owner) : owner_(std::move(owner)) {
    const AIErr err = ai::codeOf([&] {
        dialog_ = adm_.dialog->Create(self, kPanelName, kPanelLayout, kADMTabbedFloatingDialogStyle,
                                      PanelProcedures::build, this, 0);
        return kNoErr;
    });
    if (err != kNoErr || dialog_ == nullptr) throw ai::Error(kNoPanelErr);
    adm_.dialog->SetDestroyProc(dialog_, PanelProcedures::destroyed);
}

SymmetryPanel::~SymmetryPanel() { close(); }

void SymmetryPanel::close() {
    if (dialog_ != nullptr) adm_.dialog->Destroy(dialog_);
}

bool SymmetryPanel::isVisible() const {
    return dialog_ != nullptr && adm_.dialog->IsVisible(dialog_) != 0;
}

void SymmetryPanel::show(bool shown) {
    if (dialog_ != nullptr) adm_.dialog->Show(dialog_, shown ? 1 : 0);
}

void SymmetryPanel::during(const std::function<void(PanelSession&)>& act) {
    owner_.withTool([&](ToolSession& tool) {
        const bool moved = followedUnseen(tool);
        PanelSession session{adm_, dialog_, tool, owner_.copiedAxes};
        const Beginning beginning(tool);
        try {
            act(session);
            if (moved) tool.updatePanel();
        } catch (...) {
            if (dialog_ == nullptr) return; // the host has ended the plug-in
            static_cast<void>(ai::codeOf([&] {
                beginning.takeBack(session);
                return kNoErr;
            }));
            throw;
        }
    });
}

void SymmetryPanel::build(ADMDialogRef dialog) {
    dialog_ = dialog;
    addIcons();
    adm_.dialog->SetMask(dialog, adm_.dialog->GetMask(dialog) | kADMLeaveMask);
    createPanelItems(adm_, dialog, PanelProcedures::itemNotified, PanelProcedures::sliderNotified);
    adm_.dialog->SetNotifyProc(dialog, PanelProcedures::panelNotified);
    addMenu();
    owner_.withTool([this](ToolSession& tool) {
        PanelSession session{adm_, dialog_, tool, owner_.copiedAxes};
        applyPanelSize(adm_, dialog_, tool.preferences);
        offerUpdateByMode(session);
        showState(session);
        checkLicence(tool);
    });
}

void SymmetryPanel::addIcons() const {
    for (const auto& [rollover, resource] : {std::pair{0, kIcon}, std::pair{1, kRolloverIcon}}) {
        const ADMIconRef icon =
            adm_.icon->GetFromResource(adm_.dialog->GetPluginRef(dialog_), nullptr, resource, 0);
        adm_.dialog->SetIcon(dialog_, rollover, icon);
        adm_.icon->Destroy(icon);
    }
}

void SymmetryPanel::addMenu() const {
    const ADMItemRef menu = adm_.dialog->GetItem(dialog_, kADMMenuItemID);
    if (menu == nullptr) return;
    adm_.item->SetNotifyProc(menu, PanelProcedures::menuNotified);
    adm_.item->SetTrackProc(menu, PanelProcedures::menuOpens);
    adm_.list->SetMenuID(adm_.item->GetList(menu), adm_.dialog->GetPluginRef(dialog_), kFlyoutMenu,
                         kFlyoutMenuName);
}

void SymmetryPanel::checkLicence(const ToolSession& tool) {
    usable_ = tool.licence.allows(GuardedAction::UsePanel);
    std::pair licence{usable_, tool.licence.statusLine()};
    if (shownLicence_ == licence) return;
    showUsable(adm_, dialog_, usable_, licence.second);
    shownLicence_ = std::move(licence);
}

void SymmetryPanel::refresh(ToolSession& tool) {
    if (dialog_ == nullptr) return;
    checkLicence(tool);
    PanelSession session{adm_, dialog_, tool, owner_.copiedAxes};
    showState(session);
}

} // namespace facetta
