#pragma once

#include "host/Handles.h"
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
    /// Id, title, number of states, least size, resizable, flyout menu or null.
    AIErr (*Create)(SPPluginRef, const ai::UnicodeString&, const ai::UnicodeString&, ai::int16,
                    const AISize&, AIBoolean, AIPanelFlyoutMenuRef, AIPanelUserData, AIPanelRef&);
    AIErr (*Destroy)(AIPanelRef);
    AIErr (*GetPlatformWindow)(AIPanelRef, AIPanelPlatformWindow&);
    AIErr (*Show)(AIPanelRef, AIBoolean);
    AIErr (*IsShown)(AIPanelRef, AIBoolean&);
    AIErr (*GetUserData)(AIPanelRef, AIPanelUserData&);
    AIErr (*SetUserData)(AIPanelRef, AIPanelUserData);
    AIErr (*SetTitle)(AIPanelRef, const ai::UnicodeString&);
    AIErr (*GetTitle)(AIPanelRef, ai::UnicodeString&);
    ReservedSlot SetIcon; // their arguments differ between builds of the host
    ReservedSlot SetIconResourceID;
    AIErr (*GetSize)(AIPanelRef, AISize&);
    AIErr (*SetMinimumSize)(AIPanelRef, const AISize&);
    AIErr (*GetMinimumSize)(AIPanelRef, AISize&);
    AIErr (*SetMaximumSize)(AIPanelRef, const AISize&);
    AIErr (*GetMaximumSize)(AIPanelRef, AISize&);
    AIErr (*SetPreferredSizes)(AIPanelRef, const AISize&);
    /// Least, floating, docked, greatest.
    AIErr (*SetSizes)(AIPanelRef, const AISize&, const AISize&, const AISize&, const AISize&);
    /// All four of a panel that cannot be resized, the preferred ones of another.
    AIErr (*SetSize)(AIPanelRef, const AISize&);
    AIErr (*GetPreferredConstrainedSize)(AIPanelRef, AISize&);
    AIErr (*GetPreferredUnconstrainedSize)(AIPanelRef, AISize&);
    AIErr (*SetCurrentState)(AIPanelRef, ai::int16);
    AIErr (*GetCurrentState)(AIPanelRef, ai::int16&);
    AIErr (*SetStateCount)(AIPanelRef, ai::int16);
    AIErr (*GetStateCount)(AIPanelRef, ai::int16&);
    AIErr (*SetVerticalStepSize)(AIPanelRef, AIReal);
    AIErr (*GetVerticalStepSize)(AIPanelRef, AIReal&);
    AIErr (*SetFlyoutMenu)(AIPanelRef, AIPanelFlyoutMenuRef);
    AIErr (*GetFlyoutMenu)(AIPanelRef, AIPanelFlyoutMenuRef&);
    AIErr (*IsMinimized)(AIPanelRef, AIBoolean&);
    AIErr (*ChangeIsMinimized)(AIPanelRef, AIBoolean);
    AIErr (*Move)(AIPanelRef, AIPoint);
    AIErr (*SetFlyoutMenuPreVisibilityProc)(AIPanelRef, AIPanelFlyoutMenuPreVisibilityProc);
    AIErr (*SetFlyoutMenuProc)(AIPanelRef, AIPanelFlyoutMenuProc);
    AIErr (*SetVisibilityChangedNotifyProc)(AIPanelRef, AIPanelVisibilityChangedNotifyProc);
    AIErr (*SetSizeChangedNotifyProc)(AIPanelRef, AIPanelSizeChangedNotifyProc);
    AIErr (*SetStateChangedNotifyProc)(AIPanelRef, AIPanelStateChangedNotifyProc);
    AIErr (*SetClosedNotifyProc)(AIPanelRef, AIPanelClosedNotifyProc);
};
