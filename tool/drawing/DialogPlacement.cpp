#include "tool/drawing/DialogPlacement.h"

namespace facetta {
namespace {

constexpr ai::int32 kTopMargin = 16;

} // namespace

DialogPosition centredIn(const AIRect& view) {
    // 50 and not half the height: the drawn rows end two pixels above the dialog's lower edge.
    return {(view.right - view.left) / 2 - kDialogWidth / 2, (view.bottom - view.top) / 2 - 50};
}

DialogPosition placedIn(const AIRect& view, DialogPosition dialog) {
    if (dialog.x == kNeverPlaced) return centredIn(view);
    if (dialog.x > view.right - kDialogWidth) // a stored place may be any number
        dialog.x = view.right - kDialogWidth;
    else if (dialog.x < view.left)
        dialog.x = view.left;
    if (dialog.y < view.top)
        dialog.y = view.top + kTopMargin;
    else if (dialog.y > view.bottom - kDialogHeight)
        dialog.y = view.bottom - kDialogHeight;
    return dialog;
}

} // namespace facetta
