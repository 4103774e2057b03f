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

/// One owner for each kind of reference that the host counts or wants disposed of.

namespace ai {

struct DictionaryTraits {
    using Ref = AIDictionaryRef;
    static void release(Ref ref) noexcept { suites.dictionary->Release(ref); }
};
using Dictionary = Owned<DictionaryTraits>;

struct EntryTraits {
    using Ref = AIEntryRef;
    static void release(Ref ref) noexcept { suites.entry->Release(ref); }
};
/// The entry suite's `To...` and `As...` calls and `Dictionary::Set` consume an entry: pass them
/// `release()`.
using Entry = Owned<EntryTraits>;

struct ArrayTraits {
    using Ref = AIArrayRef;
    static void release(Ref ref) noexcept { suites.array->Release(ref); }
};
using Array = Owned<ArrayTraits>;

struct ArtSetTraits {
    using Ref = AIArtSet;
    static void release(Ref ref) noexcept { suites.artSet->DisposeArtSet(&ref); }
};
using ArtSet = Owned<ArtSetTraits>;

struct HitTraits {
    using Ref = AIHitRef;
    static void release(Ref ref) noexcept { suites.hitTest->Release(ref); }
};
using Hit = Owned<HitTraits>;

struct PluginAccessTraits {
    using Ref = SPAccessRef;
    static void release(Ref ref) noexcept { suites.access->ReleasePlugin(ref); }
};
/// Keeps the plug-in's library loaded.
using PluginAccess = Owned<PluginAccessTraits>;

/// The host's application context for this plug-in, pushed for the life of the object: fixes the
/// current document and makes what is changed meanwhile one undo step. Contexts nest strictly.
/// Throws `Error`.
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
