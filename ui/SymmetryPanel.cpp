#include "ui/SymmetryPanel.h"

#include "host/Error.h"

namespace facetta {
namespace {

constexpr char kPanelName[] = "Facetta";
constexpr ADMInt32 kPanelLayout = 16005; // the resources hold none: items are made in code
constexpr AIErr kNoPanelErr = -1;

} // namespace

SymmetryPanel::SymmetryPanel(SPPluginRef self) {
    ai::check(dialogs_.acquire());
    const AIErr err = ai::codeOf([&] {
        dialog_ = dialogs_->Create(self, kPanelName, kPanelLayout, kADMTabbedFloatingDialogStyle,
                                   nullptr, this, 0);
        return kNoErr;
    });
    if (err != kNoErr || dialog_ == nullptr) throw ai::Error(kNoPanelErr);
    dialogs_->SetDestroyProc(dialog_, [](ADMDialogRef dialog) {
        ai::SuiteLease<ADMDialogSuite, kADMDialogSuite, kADMDialogSuiteVersion> dialogs;
        ai::check(dialogs.acquire());
        static_cast<SymmetryPanel*>(dialogs->GetUserData(dialog))->dialog_ = nullptr;
    });
}

SymmetryPanel::~SymmetryPanel() {
    if (dialog_ != nullptr) dialogs_->Destroy(dialog_);
}

bool SymmetryPanel::isVisible() const {
    return dialog_ != nullptr && dialogs_->IsVisible(dialog_) != 0;
}

void SymmetryPanel::show(bool shown) {
    if (dialog_ != nullptr) dialogs_->Show(dialog_, shown);
}

} // namespace facetta
