#include "host/suites/AICountedObjectSuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Counted.h"
#include "easel/suites/art/ArtSuites.h"

namespace easel {
namespace {

constexpr struct {
    HandleKind kind;
    Lent loan;
} kCountedKinds[] = {
    {HandleKind::Dictionary, Lent::Dictionary},
    {HandleKind::Array, Lent::Array},
    {HandleKind::Entry, Lent::Entry},
    {HandleKind::Hit, Lent::Hit},
};

Counted& objectOf(const void* handle) {
    const HandleKind claimed = HandleTable::kindOf(handle);
    for (const auto& [kind, loan] : kCountedKinds)
        if (kind == claimed) return counted(kind, loan, handle);
    throw ai::Error{kBadParameterErr};
}

ai::int32 addRef(void* handle) {
    if (handle == nullptr) return 0;
    Counted& object = objectOf(handle);
    static_cast<void>(object.lend());
    return static_cast<ai::int32>(object.owners());
}

ai::int32 release(void* handle) { return handle == nullptr ? 0 : objectOf(handle).takeBack(); }

} // namespace

void installCountedObjectSuite(SuiteServer& server) {
    using S = AICountedObjectSuite;
    auto table = server.table<S>(kAICountedObjectSuite, kAICountedObjectSuiteVersion);
    expose<&S::AddRef, addRef>(table);
    expose<&S::Release, release>(table);
}

} // namespace easel
