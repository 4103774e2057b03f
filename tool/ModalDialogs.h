#pragma once

namespace facetta {

struct ToolSession;

/// How a modal dialog was left.
enum class DialogResult : int {
    Ok = 1,
    Cancel = 2,
};

/// The tool's way to the dialogs it opens: this room knows no windows. Until somebody provides
/// dialogs every one of them is cancelled.
struct ModalDialogs {
    DialogResult (*editAxes)(ToolSession&) = [](ToolSession&) { return DialogResult::Cancel; };
    DialogResult (*preferences)(ToolSession&) = [](ToolSession&) { return DialogResult::Cancel; };
    bool open = false; ///< that of the axes is on screen: the on-canvas dialog stays away meanwhile
};

} // namespace facetta
