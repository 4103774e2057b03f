#pragma once

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AIAppContextSuite.h"

namespace facetta {

/// While it lives the host lets changes through to objects inside locked or hidden groups and
/// layers. Copies may lie there, and must be reached to be deleted or released. Throws `ai::Error`.
class AllChangesAllowed {
public:
    AllChangesAllowed() { ai::check(ai::suites.appContext->AllowAllChanges(true, &before_)); }
    ~AllChangesAllowed() { ai::suites.appContext->AllowAllChanges(before_, &ignored_); }
    AllChangesAllowed(const AllChangesAllowed&) = delete;
    AllChangesAllowed& operator=(const AllChangesAllowed&) = delete;

private:
    AIBoolean before_ = false;
    AIBoolean ignored_ = false;
};

} // namespace facetta
