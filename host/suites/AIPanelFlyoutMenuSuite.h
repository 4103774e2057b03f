#pragma once

#include "host/Handles.h"
#include "host/Types.h"

#include <array>

inline constexpr char kAIPanelFlyoutMenuSuite[] = "AI Panel Flyout Menu Suite";
inline constexpr ai::int32 kAIPanelFlyoutMenuSuiteVersion = 1;
/// A newer version, numbered anew because of reals, of which this suite has none.
inline constexpr std::array<ai::int32, 1> kAIPanelFlyoutMenuSuiteFallbacks{2};

/// What stands before the text of an item.
enum class AIPanelFlyoutMenuItemMark : ai::int32 {
    None = 0,
    Check = 1,
    Bullet = 2,
    Dash = 3,
};

/// Items have an id of their own, never 0, separators too. Where nothing else is said, the number
/// after the menu is the item's index, from 0.
struct AIPanelFlyoutMenuSuite {
    AIErr (*Create)(AIPanelFlyoutMenuRef&);
    AIErr (*Destroy)(AIPanelFlyoutMenuRef);
    AIErr (*Size)(AIPanelFlyoutMenuRef, ai::uint32&);
    AIErr (*AppendItem)(AIPanelFlyoutMenuRef, ai::uint32 id, const ai::UnicodeString&);
    AIErr (*AppendSeparator)(AIPanelFlyoutMenuRef, ai::uint32 id);
    AIErr (*InsertItem)(AIPanelFlyoutMenuRef, ai::uint32 beforeId, ai::uint32 id,
                        const ai::UnicodeString&);
    AIErr (*InsertSeparator)(AIPanelFlyoutMenuRef, ai::uint32 beforeId, ai::uint32 id);
    AIErr (*RemoveItem)(AIPanelFlyoutMenuRef, ai::uint32);
    AIErr (*SetItemEnabled)(AIPanelFlyoutMenuRef, ai::uint32, AIBoolean);
    AIErr (*GetItemEnabled)(AIPanelFlyoutMenuRef, ai::uint32, AIBoolean&);
    AIErr (*SetItemMark)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuItemMark);
    AIErr (*GetItemMark)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuItemMark&);
    AIErr (*SetItemText)(AIPanelFlyoutMenuRef, ai::uint32, const ai::UnicodeString&);
    AIErr (*GetItemText)(AIPanelFlyoutMenuRef, ai::uint32, ai::UnicodeString&);
    AIErr (*IsItemSeparator)(AIPanelFlyoutMenuRef, ai::uint32, AIBoolean&);
    AIErr (*SetItemSubMenu)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuRef);
    AIErr (*GetItemSubMenu)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuRef&);
    AIErr (*DetachItemSubMenu)(AIPanelFlyoutMenuRef, ai::uint32);
    AIErr (*SetItemID)(AIPanelFlyoutMenuRef, ai::uint32, ai::uint32 id);
    AIErr (*GetItemID)(AIPanelFlyoutMenuRef, ai::uint32, ai::uint32& id);
};
