#pragma once

#include "toolkit/suites/ADMBasicSuite.h"
#include "toolkit/suites/ADMDialogSuite.h"
#include "toolkit/suites/ADMDrawerSuite.h"
#include "toolkit/suites/ADMEntrySuite.h"
#include "toolkit/suites/ADMIconSuite.h"
#include "toolkit/suites/ADMImageSuite.h"
#include "toolkit/suites/ADMItemSuite.h"
#include "toolkit/suites/ADMListSuite.h"
#include "toolkit/suites/ADMNotifierSuite.h"
#include "toolkit/suites/ADMTrackerSuite.h"
#include "toolkit/suites/ADMWinHostSuite.h"

namespace NRDM {

// The toolkit's tables, each in the source of its name.
extern const ADMBasicSuite kBasicSuite;
extern const ADMDialogSuite kDialogSuite;
extern const ADMDrawerSuite kDrawerSuite;
extern const ADMEntrySuite kEntrySuite;
extern const ADMIconSuite kIconSuite;
extern const ADMImageSuite kImageSuite;
extern const ADMItemSuite kItemSuite;
extern const ADMListSuite kListSuite;
extern const ADMNotifierSuite kNotifierSuite;
extern const ADMTrackerSuite kTrackerSuite;
extern const ADMWinHostSuite kWinHostSuite;

} // namespace NRDM
