#pragma once

#include "host/Handles.h"
#include "host/SuiteId.h"
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
    /// To be given back with `Destroy`.
    AIErr (*Create)(AIPanelFlyoutMenuRef& menu);
    AIErr (*Destroy)(AIPanelFlyoutMenuRef menu);
    AIErr (*Size)(AIPanelFlyoutMenuRef menu, ai::uint32& count);
    /// Ids are unique and not 0.
    AIErr (*AppendItem)(AIPanelFlyoutMenuRef menu, ai::uint32 id, const ai::UnicodeString& text);
    /// Separators have ids, too.
    AIErr (*AppendSeparator)(AIPanelFlyoutMenuRef menu, ai::uint32 id);
    AIErr (*InsertItem)(AIPanelFlyoutMenuRef, ai::uint32 beforeId, ai::uint32 id,
                        const ai::UnicodeString&);
    AIErr (*InsertSeparator)(AIPanelFlyoutMenuRef, ai::uint32 beforeId, ai::uint32 id);
    AIErr (*RemoveItem)(AIPanelFlyoutMenuRef menu, ai::uint32 id);
    AIErr (*SetItemEnabled)(AIPanelFlyoutMenuRef menu, ai::uint32 id, AIBoolean enabled);
    AIErr (*GetItemEnabled)(AIPanelFlyoutMenuRef, ai::uint32, AIBoolean&);
    /// 0 none, 1 check, 2 bullet, 3 dash.
    AIErr (*SetItemMark)(AIPanelFlyoutMenuRef menu, ai::uint32 id, AIPanelFlyoutMenuItemMark mark);
    AIErr (*GetItemMark)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuItemMark&);
    AIErr (*SetItemText)(AIPanelFlyoutMenuRef menu, ai::uint32 id, const ai::UnicodeString& text);
    AIErr (*GetItemText)(AIPanelFlyoutMenuRef, ai::uint32, ai::UnicodeString&);
    AIErr (*IsItemSeparator)(AIPanelFlyoutMenuRef, ai::uint32, AIBoolean&);
    AIErr (*SetItemSubMenu)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuRef);
    AIErr (*GetItemSubMenu)(AIPanelFlyoutMenuRef, ai::uint32, AIPanelFlyoutMenuRef&);
    AIErr (*DetachItemSubMenu)(AIPanelFlyoutMenuRef, ai::uint32);
    AIErr (*SetItemID)(AIPanelFlyoutMenuRef, ai::uint32, ai::uint32 id);
    AIErr (*GetItemID)(AIPanelFlyoutMenuRef, ai::uint32, ai::uint32& id);
};

template <>
struct ai::SuiteId<AIPanelFlyoutMenuSuite>
    : ai::SuiteIdentity<kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion,
                        kAIPanelFlyoutMenuSuiteFallbacks> {};
