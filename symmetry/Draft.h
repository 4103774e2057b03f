#pragma once

#include "host/Error.h"
#include "host/Handles.h"
#include "host/Owned.h"
#include "host/Suites.h"
#include "host/suites/AIArtSuite.h"

namespace facetta {

struct DraftTraits {
    using Ref = AIArtHandle;
    static void release(Ref art) noexcept { ai::suites.art->DisposeArt(art); }
};

/// New art that is disposed of again unless it is released: so a path that turns out too long
/// leaves nothing behind.
using Draft = ai::Owned<DraftTraits>;

} // namespace facetta
