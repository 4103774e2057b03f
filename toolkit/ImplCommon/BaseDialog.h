#pragma once

#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/HostPanel.h"
#include "toolkit/ImplCommon/Notifier.h"
#include "toolkit/ImplCommon/Peers.h"

#include <array>
#include <memory>
#include <string>

namespace NRDM {

/// A client's procedures for a dialog; null where the dialog is to do as it does by itself.
struct DialogProcedures {
    ADMDialogNotifyProc notify = nullptr;
    ADMDialogDrawProc draw = nullptr;
    ADMDialogTrackProc track = nullptr;
    ADMDialogDestroyProc destroy = nullptr;
};

class ModalParent;

/// A dialog without regard to what is in it: its identity, its window, its place in a host's panel,
/// its modal loop.
class BaseDialog {
public:
    BaseDialog(Dialogs& dialogs, const DialogRequest& request);
    virtual ~BaseDialog();
    BaseDialog(const BaseDialog&) = delete;
    BaseDialog& operator=(const BaseDialog&) = delete;

    [[nodiscard]] Dialogs& dialogs() const noexcept { return dialogs_; }
    [[nodiscard]] SPPluginRef plugin() const noexcept { return plugin_; }
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    /// The resource its layout is in.
    [[nodiscard]] int id() const noexcept { return id_; }
    [[nodiscard]] ADMDialogStyle style() const noexcept { return style_; }
    [[nodiscard]] const DialogView& view() const noexcept { return view_; }
    [[nodiscard]] bool isModal() const noexcept { return view_.kind == DialogKind::Modal; }

    DialogProcedures procedures;
    ADMUserData userData = nullptr;
    ADMActionMask mask = 0; ///< of the events that reach the track procedure
    /// Pictures of the folded panel: normal, rolled over. They are kept and not shown: the host's
    /// functions for icons take other arguments in each of its builds, and do not say which.
    std::array<int, 2> icons{};

    void setTitle(std::string title);
    void setFont(ADMFont font);
    void show(bool shown);
    /// What the host says of a panel, for it may lie behind another.
    [[nodiscard]] bool isVisible() const;
    void enable(bool enabled);
    [[nodiscard]] bool isEnabled() const noexcept { return view_.enabled; }
    void activate();

    /// Of the client area. A panel asks its host for it, once a change.
    void setSize(Extent size);
    /// On the screen, in its pixels; the host decides where a panel is.
    [[nodiscard]] Bounds screenBounds() const;
    void setScreenBounds(const Bounds& bounds);
    void moveTo(Place corner);

    /// Of a panel, as the host counts them from 1; 0 for others.
    [[nodiscard]] int panelState() const;
    void setPanelState(int state);

    /// Records what the modal loop ends with, and asks it to end once the handlers that run have
    /// returned; until then everything stays as it is. The last result counts. False when no loop
    /// runs.
    bool endModal(int result);
    [[nodiscard]] bool isRunning() const noexcept { return running_; }

    [[nodiscard]] DialogPeer* peer() const noexcept { return peer_.get(); }

protected:
    /// Runs the loop of a modal dialog whose peer is there. When the dialog is closed meanwhile,
    /// all that it was made in may be gone on return.
    int runLoop();
    void attach(std::unique_ptr<DialogPeer> peer) { peer_ = std::move(peer); }
    /// Takes the window away.
    void detach();
    void changed();
    /// A panel needs more of it on a display of finer pixels.
    void askHostForRoom();

    DialogView view_;
    std::unique_ptr<HostPanel> panel_; ///< of a panel
    int knownState_ = 1;               ///< of the panel; hosts tell us of our own changes too

private:
    Dialogs& dialogs_;
    SPPluginRef plugin_;
    std::string name_;
    int id_;
    ADMDialogStyle style_;
    std::shared_ptr<DialogPeer> peer_; ///< kept by a loop that runs in it
    std::unique_ptr<ModalParent> modalParent_;
    bool running_ = false;
    int result_ = 0;
};

} // namespace NRDM
