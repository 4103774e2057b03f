#pragma once

#include "host/References.h"
#include "tool/ToolSession.h"
#include "ui/Adm.h"

namespace facetta {

/// What the procedures of a modal dialog work on for the length of one event: the dialog, and the
/// session of the message that opened it.
struct ModalSession {
    explicit ModalSession(ADMDialogRef ofDialog)
        : dialog(ofDialog), context(adm.dialog->GetPluginRef(dialog)),
          tool(*static_cast<ToolSession*>(adm.dialog->GetUserData(dialog))) {}

    [[nodiscard]] ADMItemRef item(ADMInt32 id) const { return adm.dialog->GetItem(dialog, id); }

    Adm adm;
    ADMDialogRef dialog;
    ai::AppContext context;
    ToolSession& tool;
};

/// Shows the dialog of that layout until it is closed. Throws what making it throws, and what its
/// procedures throw: it is gone then.
inline DialogResult runModal(ToolSession& tool, const char* name, ADMInt32 layout,
                             ADMDialogInitProc fill) {
    const Adm adm;
    const ADMInt32 result =
        adm.dialog->Modal(tool.self, name, layout, kADMModalDialogStyle, fill, &tool, 0);
    constexpr auto kOk = static_cast<ADMInt32>(DialogResult::Ok);
    return result == kOk ? DialogResult::Ok : DialogResult::Cancel;
}

} // namespace facetta
