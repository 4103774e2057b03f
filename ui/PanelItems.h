#pragma once

/// The items of the panel: what they are, where they lie, what they say. What they do is in
/// PanelActions.h.

#include "ui/Adm.h"

#include <string>

namespace facetta {

/// The ids of the panel's items. 21 is not used.
namespace panel_item {
constexpr ADMInt32 kSelectionMode = 1;
constexpr ADMInt32 kLayerMode = 2;
constexpr ADMInt32 kActive = 3;
constexpr ADMInt32 kUpdate = 4;
constexpr ADMInt32 kApply = 5;
constexpr ADMInt32 kCancel = 6;
constexpr ADMInt32 kOriginX = 9;
constexpr ADMInt32 kOriginY = 11;
constexpr ADMInt32 kAngle = 13;
constexpr ADMInt32 kCount = 15;
constexpr ADMInt32 kOverlay = 16;
constexpr ADMInt32 kOverlayIcon = 17;
constexpr ADMInt32 kOpacitySlider = 18;
constexpr ADMInt32 kOpacityScale = 19;
constexpr ADMInt32 kOpacity = 20;
constexpr ADMInt32 kStatusLine = 24;
} // namespace panel_item

constexpr ADMInt32 kPanelWidth = 240;
/// Indexed by whether the panel is compact.
constexpr ADMInt32 kPanelHeights[] = {188, 83};
/// Where the licence's status line begins, indexed the same way; it is 50 high.
constexpr ADMInt32 kStatusLineTops[] = {69, 17};
constexpr ADMInt32 kStatusLineHeight = 50;

/// Creates every item, with text, tip and pictures, in the order of the table, which is that of
/// Tab. `notified` hears of all but the slider, which `slid` follows while it is dragged.
void createPanelItems(const Adm& adm, ADMDialogRef dialog, ADMItemNotifyProc notified,
                      ADMItemNotifyProc slid);

/// Shows the items, or, when the licence forbids the panel's use, its status line in their place.
void showUsable(const Adm& adm, ADMDialogRef dialog, bool usable, const std::string& statusLine);

/// The status line begins further up in a compact panel.
void placeStatusLine(const Adm& adm, ADMDialogRef dialog, bool compact);

} // namespace facetta
