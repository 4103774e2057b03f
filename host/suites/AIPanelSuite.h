#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
#include "host/Types.h"

inline constexpr char kAIPanelSuite[] = "AI Panel Suite";
inline constexpr ai::int32 kAIPanelSuiteVersion = 1;

/// What the plug-in keeps with a panel.
using AIPanelUserData = void*;
/// The window of a panel's client area; null where there are no windows.
using AIPanelPlatformWindow = AIWindowRef;

// The host calls these outside any message, so that the plug-in sets up its context itself.
/// Before the flyout menu opens: the time to enable, disable and rename its items.
using AIPanelFlyoutMenuPreVisibilityProc = void (*)(AIPanelRef);
/// After the flyout menu has closed; the item chosen, or 0.
using AIPanelFlyoutMenuProc = void (*)(AIPanelRef, ai::uint32);
using AIPanelVisibilityChangedNotifyProc = void (*)(AIPanelRef, AIBoolean);
using AIPanelSizeChangedNotifyProc = void (*)(AIPanelRef);
using AIPanelStateChangedNotifyProc = void (*)(AIPanelRef, ai::int16);
/// The user closed it by its close button.
using AIPanelClosedNotifyProc = void (*)(AIPanelRef);

/// Sizes are those of the client area in pixels, unscaled. States count from 1.
struct AIPanelSuite {
    /// Hidden until the host or `Show` shows it. The host keeps place and docking by `id`; `flyout`
    /// may be null. To be given back with `Destroy` when the application shuts down.
    AIErr (*Create)(SPPluginRef self, const ai::UnicodeString& id, const ai::UnicodeString& title,
                    ai::int16 stateCount, const AISize& minimum, AIBoolean resizable,
                    AIPanelFlyoutMenuRef flyout, AIPanelUserData userData, AIPanelRef& panel);
    AIErr (*Destroy)(AIPanelRef panel);
    /// The area for our own child window; may be another one after docking.
    AIErr (*GetPlatformWindow)(AIPanelRef panel, AIPanelPlatformWindow& window);
    /// Acts on all panels of its tab group.
    AIErr (*Show)(AIPanelRef panel, AIBoolean shown);
    /// False behind another panel's tab.
    AIErr (*IsShown)(AIPanelRef panel, AIBoolean& shown);
    AIErr (*GetUserData)(AIPanelRef panel, AIPanelUserData& data);
    AIErr (*SetUserData)(AIPanelRef panel, AIPanelUserData data);
    AIErr (*SetTitle)(AIPanelRef panel, const ai::UnicodeString& title);
    AIErr (*GetTitle)(AIPanelRef, ai::UnicodeString&);
    ReservedSlot SetIcon; // their arguments differ between builds of the host
    ReservedSlot SetIconResourceID;
    /// Of the inner area, in pixels, as all sizes here.
    AIErr (*GetSize)(AIPanelRef panel, AISize& size);
    AIErr (*SetMinimumSize)(AIPanelRef, const AISize&);
    AIErr (*GetMinimumSize)(AIPanelRef, AISize&);
    AIErr (*SetMaximumSize)(AIPanelRef, const AISize&);
    AIErr (*GetMaximumSize)(AIPanelRef, AISize&);
    AIErr (*SetPreferredSizes)(AIPanelRef panel, const AISize& size);
    /// Least, floating, docked, greatest.
    AIErr (*SetSizes)(AIPanelRef, const AISize&, const AISize&, const AISize&, const AISize&);
    /// All four of a panel that cannot be resized, the preferred ones of another.
    AIErr (*SetSize)(AIPanelRef panel, const AISize& size);
    AIErr (*GetPreferredConstrainedSize)(AIPanelRef, AISize&);
    AIErr (*GetPreferredUnconstrainedSize)(AIPanelRef, AISize&);
    AIErr (*SetCurrentState)(AIPanelRef panel, ai::int16 state);
    /// From 1.
    AIErr (*GetCurrentState)(AIPanelRef panel, ai::int16& state);
    AIErr (*SetStateCount)(AIPanelRef, ai::int16);
    AIErr (*GetStateCount)(AIPanelRef, ai::int16&);
    AIErr (*SetVerticalStepSize)(AIPanelRef, AIReal);
    AIErr (*GetVerticalStepSize)(AIPanelRef, AIReal&);
    AIErr (*SetFlyoutMenu)(AIPanelRef panel, AIPanelFlyoutMenuRef menu);
    AIErr (*GetFlyoutMenu)(AIPanelRef, AIPanelFlyoutMenuRef&);
    AIErr (*IsMinimized)(AIPanelRef, AIBoolean&);
    AIErr (*ChangeIsMinimized)(AIPanelRef, AIBoolean);
    /// In screen coordinates; does nothing to a docked panel.
    AIErr (*Move)(AIPanelRef panel, AIPoint place);
    /// Called outside messages, as all of these, before the menu shows.
    AIErr (*SetFlyoutMenuPreVisibilityProc)(AIPanelRef panel,
                                            AIPanelFlyoutMenuPreVisibilityProc proc);
    /// Called with the id that was chosen, or 0, after the menu has closed.
    AIErr (*SetFlyoutMenuProc)(AIPanelRef panel, AIPanelFlyoutMenuProc proc);
    AIErr (*SetVisibilityChangedNotifyProc)(AIPanelRef panel,
                                            AIPanelVisibilityChangedNotifyProc proc);
    AIErr (*SetSizeChangedNotifyProc)(AIPanelRef panel, AIPanelSizeChangedNotifyProc proc);
    AIErr (*SetStateChangedNotifyProc)(AIPanelRef panel, AIPanelStateChangedNotifyProc proc);
    /// By the panel's close button only.
    AIErr (*SetClosedNotifyProc)(AIPanelRef panel, AIPanelClosedNotifyProc proc);
};

template <>
struct ai::SuiteId<AIPanelSuite> : ai::SuiteIdentity<kAIPanelSuite, kAIPanelSuiteVersion> {};
