#pragma once

#include "host/Handles.h"
#include "host/Owned.h"
#include "host/Suites.h"
#include "host/suites/AIAppContextSuite.h"
#include "host/suites/AIArraySuite.h"
#include "host/suites/AIArtSetSuite.h"
#include "host/suites/AIDictionarySuite.h"
#include "host/suites/AIEntrySuite.h"
#include "host/suites/AIHitTestSuite.h"
#include "host/suites/SPAccessSuite.h"

#include <type_traits>

/// One owner for each kind of reference that the host counts or wants disposed of.

namespace ai {

/// What the table `Table` of `suites` lends and takes back by `Release`. Without the table, as
/// after a reload that was refused its suites, a reference can only be left to the host.
template <typename Reference, auto Table, auto Release> struct LentBySuite {
    using Ref = Reference;
    static void release(Ref ref) noexcept {
        const auto* const functions = suites.*Table;
        if (functions == nullptr) return;
        if constexpr (std::is_invocable_v<decltype(functions->*Release), Ref*>)
            (functions->*Release)(&ref);
        else
            (functions->*Release)(ref);
    }
};

using Dictionary =
    Owned<LentBySuite<AIDictionaryRef, &Suites::dictionary, &AIDictionarySuite::Release>>;

/// The entry suite's `To...` and `As...` calls and `Dictionary::Set` consume an entry: pass them
/// `release()`.
using Entry = Owned<LentBySuite<AIEntryRef, &Suites::entry, &AIEntrySuite::Release>>;

using Array = Owned<LentBySuite<AIArrayRef, &Suites::array, &AIArraySuite::Release>>;

using ArtSet = Owned<LentBySuite<AIArtSet, &Suites::artSet, &AIArtSetSuite::DisposeArtSet>>;

using Hit = Owned<LentBySuite<AIHitRef, &Suites::hitTest, &AIHitTestSuite::Release>>;

/// Keeps the plug-in's library loaded.
using PluginAccess =
    Owned<LentBySuite<SPAccessRef, &Suites::access, &SPAccessSuite::ReleasePlugin>>;

/// The host's application context for this plug-in, pushed for the life of the object: fixes the
/// current document and makes what is changed meanwhile one undo step. Contexts nest strictly.
/// Throws `Error`, also while there are no suites.
class AppContext {
public:
    explicit AppContext(SPPluginRef self);
    ~AppContext();
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

private:
    AIAppContextHandle context_ = nullptr;
};

} // namespace ai
