#pragma once

#include "host/Error.h"
#include "host/SuiteHolder.h"
#include "toolkit/suites/ADMDialogSuite.h"
#include "toolkit/suites/ADMEntrySuite.h"
#include "toolkit/suites/ADMIconSuite.h"
#include "toolkit/suites/ADMItemSuite.h"
#include "toolkit/suites/ADMListSuite.h"
#include "toolkit/suites/ADMNotifierSuite.h"

namespace facetta {

/// The toolkit's suites, acquired as any client acquires them: a lookup by name, quick enough for
/// each procedure to hold its own. Throws `ai::Error` when the toolkit is not running.
struct Adm {
    Adm() {
        ai::check(dialog.acquire());
        ai::check(item.acquire());
        ai::check(list.acquire());
        ai::check(entry.acquire());
        ai::check(notifier.acquire());
        ai::check(icon.acquire());
    }

    ai::SuiteLease<ADMDialogSuite> dialog;
    ai::SuiteLease<ADMItemSuite> item;
    ai::SuiteLease<ADMListSuite> list;
    ai::SuiteLease<ADMEntrySuite> entry;
    ai::SuiteLease<ADMNotifierSuite> notifier;
    ai::SuiteLease<ADMIconSuite> icon;
};

/// Is this a change that the user has completed?
[[nodiscard]] inline bool isUserChange(const Adm& adm, ADMNotifierRef notifier) {
    return adm.notifier->IsNotifierType(notifier, kADMUserChangedNotifier) != 0;
}

/// Shows `value` in `item`. One that it has already is left alone: setting it would drop what the
/// user is typing over it.
inline void showNumber(const Adm& adm, ADMItemRef item, double value) {
    const auto shown = static_cast<float>(value);
    if (adm.item->GetFloatValue(item) != shown) adm.item->SetFloatValue(item, shown);
}

/// The same for a box or a radio button.
inline void showChecked(const Adm& adm, ADMItemRef item, bool on) {
    if ((adm.item->GetBooleanValue(item) != 0) != on) adm.item->SetBooleanValue(item, on);
}

} // namespace facetta
