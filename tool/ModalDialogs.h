#pragma once

namespace facetta {

/// How a modal dialog was left.
enum class DialogResult : int {
    Ok = 1,
    Cancel = 2,
};

/// The tool's way to the dialogs it opens: this room knows no windows. Until somebody provides
/// dialogs every one of them is cancelled.
struct ModalDialogs {
    DialogResult (*editAxes)() = [] { return DialogResult::Cancel; };
    DialogResult (*preferences)() = [] { return DialogResult::Cancel; };
    bool open = false; ///< one of them is on screen: the on-canvas dialog stays away meanwhile
};

} // namespace facetta
