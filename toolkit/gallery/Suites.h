#pragma once

#include "host/Error.h"
#include "host/SuiteHolder.h"
#include "toolkit/suites/ADMDialogSuite.h"
#include "toolkit/suites/ADMDrawerSuite.h"
#include "toolkit/suites/ADMEntrySuite.h"
#include "toolkit/suites/ADMItemSuite.h"
#include "toolkit/suites/ADMListSuite.h"

namespace NRDM::gallery {

/// The toolkit's suites, acquired as any client acquires them.
struct Suites {
    Suites() {
        ai::check(dialog.acquire());
        ai::check(item.acquire());
        ai::check(list.acquire());
        ai::check(entry.acquire());
        ai::check(drawer.acquire());
    }

    ai::SuiteLease<ADMDialogSuite> dialog;
    ai::SuiteLease<ADMItemSuite> item;
    ai::SuiteLease<ADMListSuite> list;
    ai::SuiteLease<ADMEntrySuite> entry;
    ai::SuiteLease<ADMDrawerSuite> drawer;
};

} // namespace NRDM::gallery
