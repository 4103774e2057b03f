#include "ui/EditAxesDialog.h"

#include "tool/axes/NumericEdit.h"
#include "ui/ModalSession.h"
#include "ui/OriginFields.h"

#include <algorithm>
#include <iterator>

namespace facetta {
namespace {

constexpr char kDialogName[] = "FTEditSymmetryAxes";
constexpr ADMInt32 kLayout = 16002;

constexpr ADMInt32 kOk = 1;
constexpr ADMInt32 kCancel = 2;
constexpr ADMInt32 kOriginX = 4;
constexpr ADMInt32 kOriginY = 6;
constexpr ADMInt32 kAngle = 8;
constexpr ADMInt32 kCountLabel = 10;
constexpr ADMInt32 kCount = 11;

constexpr double kDegreesPerRadian = 180.0 / kPi;

OriginItems originItems(const ModalSession& session) {
    return {session.item(kOriginX), session.item(kOriginY)};
}

const SymmetryAxes& axesOf(const ModalSession& session) { return session.tool.state.axes; }

void showAngle(const ModalSession& session) {
    const double degrees = axesOf(session).angle * kDegreesPerRadian;
    session.adm.item->SetFloatValue(session.item(kAngle), static_cast<float>(degrees));
}

void confirm(ModalSession& session) { session.adm.dialog->EndModal(session.dialog, kOk, false); }

void cancel(ModalSession& session) { session.adm.dialog->EndModal(session.dialog, kCancel, true); }

void moveOrigin(ModalSession& session, const SymmetryAxes& moved) {
    editOrigin(session.tool, hardOriginOf(moved));
    followRulers(session.adm, originItems(session), session.tool.host);
}

void changeOriginX(ModalSession& session) {
    moveOrigin(session, withOriginX(session.adm, session.item(kOriginX), axesOf(session)));
}

void changeOriginY(ModalSession& session) {
    moveOrigin(session, withOriginY(session.adm, session.item(kOriginY), axesOf(session),
                                    session.tool.host));
}

void changeAngle(ModalSession& session) {
    const auto degrees = static_cast<double>(session.adm.item->GetFloatValue(session.item(kAngle)));
    editAngle(session.tool, degrees / kDegreesPerRadian);
    showAngle(session);
}

void changeCount(ModalSession& session) {
    editCount(session.tool, session.adm.item->GetIntValue(session.item(kCount)));
}

struct Row {
    ADMInt32 item;
    void (*changed)(ModalSession&);
};

constexpr Row kRows[] = {
    {kOk, confirm},
    {kCancel, cancel},
    {kOriginX, changeOriginX},
    {kOriginY, changeOriginY},
    {kAngle, changeAngle},
    {kCount, changeCount},
};

void notified(ADMDialogRef dialog, ADMNotifierRef notifier) {
    ModalSession session(dialog);
    const ADMItemRef item = session.adm.notifier->GetItem(notifier);
    if (item == nullptr || !isUserChange(session.adm, notifier)) return;
    const auto row = std::ranges::find(kRows, session.adm.item->GetID(item), &Row::item);
    if (row != std::end(kRows)) row->changed(session);
}

void fillCount(const ModalSession& session) {
    const auto& item = *session.adm.item;
    const ADMItemRef count = session.item(kCount);
    item.SetPrecision(count, 0);
    item.SetMinIntValue(count, kFewestAxes);
    item.SetMaxIntValue(count, kMostAxes);
    item.SetIntValue(count, axesOf(session).axisCount);
    // Art that comes along can be moved and turned, not cut into another number of sectors.
    if (!repositionMode(session.tool.state)) return;
    item.Enable(session.item(kCountLabel), false);
    item.Enable(count, false);
}

ADMErr fill(ADMDialogRef dialog) {
    ModalSession session(dialog);
    const Adm& adm = session.adm;
    followRulers(adm, originItems(session), session.tool.host);
    showOrigin(adm, originItems(session), axesOf(session), session.tool.host);
    adm.item->SetUnits(session.item(kAngle), kADMNoUnits);
    adm.item->SetPrecision(session.item(kAngle), 3);
    showAngle(session);
    fillCount(session);
    adm.dialog->SetNotifyProc(dialog, notified);
    if (repositionMode(session.tool.state))
        adm.dialog->SetText(dialog, "Reposition Symmetry Axes");
    else
        showEditedAxes(session.tool);
    return kNoErr;
}

} // namespace

DialogResult showEditAxesDialog(ToolSession& session) {
    return runModal(session, kDialogName, kLayout, fill);
}

} // namespace facetta
