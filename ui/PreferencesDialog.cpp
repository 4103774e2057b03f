#include "ui/PreferencesDialog.h"

#include "tool/CurrentView.h"
#include "ui/ModalSession.h"

namespace facetta {
namespace {

constexpr char kDialogName[] = "FacettaPreferenceDLOG";
constexpr ADMInt32 kLayout = 16001;
constexpr ADMInt32 kOk = 1;

/// In the order in which the values are stored.
struct Row {
    ADMInt32 item;
    bool Preferences::*setting;
    const char* tip;
};

constexpr Row kRows[] = {
    {3, &Preferences::initialDragMovesOrigin,
     "When creating new axes, the initial drag positions the origin rather than changing the angle "
     "of the axes"},
    {4, &Preferences::snapPerpendicular,
     "Snaps the dragged axis to positions along a path where the path is perpendicular to it "
     "(override with the Ctrl key)"},
    {5, &Preferences::useAnnotationDialog,
     "Shows an on-screen dialog allowing axes application without using the panel"},
    {6, &Preferences::removePoints,
     "When mirroring a selection or removing layer axes, removes the points created at the axes "
     "intersections when they do not change the path shape"},
};

void store(ModalSession& session) {
    Preferences& preferences = session.tool.preferences;
    const Preferences before = preferences;
    for (const Row& row : kRows)
        preferences.*row.setting = session.adm.item->GetBooleanValue(session.item(row.item)) != 0;
    try {
        // The host may have closed the drawing, or changed to another, under the dialog.
        if (isCurrent(session.tool.view)) redrawOverlay(session.tool.view);
    } catch (...) {
        preferences = before;
        throw;
    }
}

void confirm(ADMItemRef ok, ADMNotifierRef notifier) {
    ModalSession session(Adm().item->GetDialog(ok));
    if (isUserChange(session.adm, notifier)) store(session);
    session.adm.item->DefaultNotify(ok, notifier); // ends the dialog
}

ADMErr fill(ADMDialogRef dialog) {
    const ModalSession session(dialog);
    const Adm& adm = session.adm;
    adm.item->SetNotifyProc(session.item(kOk), confirm);
    for (const Row& row : kRows) {
        const ADMItemRef box = session.item(row.item);
        adm.item->SetTipString(box, row.tip);
        adm.item->SetBooleanValue(box, session.tool.preferences.*row.setting ? 1 : 0);
    }
    return kNoErr;
}

} // namespace

DialogResult showPreferencesDialog(ToolSession& session) {
    return runModal(session, kDialogName, kLayout, fill);
}

} // namespace facetta
