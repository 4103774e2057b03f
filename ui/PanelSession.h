#pragma once

#include "tool/ToolSession.h"
#include "ui/Adm.h"
#include "ui/OriginFields.h"
#include "ui/PanelItems.h"

namespace facetta {

/// What the panel's handlers work on for the length of one event.
struct PanelSession {
    const Adm& adm;
    ADMDialogRef dialog;
    ToolSession& tool;
    SymmetryAxes& copiedAxes; ///< what "Copy Axes" stored; none when the count is 0

    [[nodiscard]] ADMItemRef item(ADMInt32 id) const { return adm.dialog->GetItem(dialog, id); }
    [[nodiscard]] OriginItems originItems() const {
        return {item(panel_item::kOriginX), item(panel_item::kOriginY)};
    }
};

} // namespace facetta
