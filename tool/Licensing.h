#pragma once

/// The one seam between Facetta and whatever decides what its licence allows. The shell, the tool,
/// the panel and the about box ask it; it never asks them.
///
/// The library may be loaded at another address between two messages, and a table of virtual
/// functions with it: nobody keeps a licence beyond the message or the event it was lent for. The
/// plug-in object is given it anew with every message.

#include "host/Messages.h"

#include <functional>
#include <string>

namespace facetta {

/// The type of the notification that a licence sends when its state has changed.
inline constexpr char kLicenceChangedNotifier[] = "Facetta Licence Changed Notifier";

enum class LicenceState { Licensed, Expired };

/// What is asked for before it is done. What is refused changes nothing.
enum class GuardedAction : unsigned {
    StartUp,
    Reload,
    ToolMouseDown,
    ToolMouseUp,
    ApplyToSelection,
    ApplyToLayer,
    PasteToLayer,
    UsePanel, ///< while refused, the panel shows the status line and nothing else
};

/// The texts of the about box's buttons that deal with the licence. A button without a text is not
/// shown.
struct LicenceButtons {
    std::string buy;
    std::string activate;
};

class Licensing {
public:
    [[nodiscard]] virtual LicenceState state() const noexcept = 0;
    [[nodiscard]] virtual bool allows(GuardedAction action) const noexcept = 0;

    // Texts are plain ASCII.

    /// What the licence is, in a line of the about box or a few of the panel.
    [[nodiscard]] virtual std::string statusLine() const = 0;
    [[nodiscard]] virtual LicenceButtons buttons() const = 0;
    /// What the addresses of the vendor's pages say about it, as "&key=value"; may be empty.
    [[nodiscard]] virtual std::string pageFragment() const = 0;

    /// Its own dialog, for the menu and the about box. May throw `ai::Error`.
    virtual void openDialog() const = 0;

    // What the host tells the plug-in, handed on. May throw `ai::Error`.

    virtual void applicationStarted(SPPluginRef self) const = 0;
    virtual void notified(const AINotifierMessage& message) const = 0;
    /// Calls `changed` if the state of the licence has changed in the meantime.
    virtual void timerWentOff(const AITimerMessage& message,
                              const std::function<void()>& changed) const = 0;

protected:
    ~Licensing() = default; // whoever borrows a licence never destroys it
};

} // namespace facetta
