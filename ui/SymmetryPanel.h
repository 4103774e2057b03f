#pragma once

#include "host/References.h"
#include "host/SuiteHolder.h"
#include "toolkit/suites/ADMDialogSuite.h"

namespace facetta {

/// The panel in its frame of the host's, from the end of start-up to shut-down.
class SymmetryPanel {
public:
    /// Creates the dialog, hidden until the host or the user shows it. Throws `ai::Error` with the
    /// code -1 when there is none to be had.
    explicit SymmetryPanel(SPPluginRef self);
    /// The dialog may be gone before: the toolkit closes what is open when the host ends.
    ~SymmetryPanel();
    SymmetryPanel(const SymmetryPanel&) = delete;
    SymmetryPanel& operator=(const SymmetryPanel&) = delete;

    /// False also behind another panel's tab.
    [[nodiscard]] bool isVisible() const;
    void show(bool shown);

private:
    ai::SuiteLease<ADMDialogSuite, kADMDialogSuite, kADMDialogSuiteVersion> dialogs_;
    ADMDialogRef dialog_ = nullptr;
};

} // namespace facetta
