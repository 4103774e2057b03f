#include "host/suites/AIEntrySuite.h"

#include "easel/core/Expose.h"
#include "easel/document/Session.h"
#include "easel/suites/art/ArtSuites.h"
#include "easel/suites/art/Entries.h"

namespace easel {
namespace {

ai::int32 release(AIEntryRef entry) { return entryOf(entry).takeBack(session()); }

// Each of these consumes its entry before anything can fail.

template <typename T> T consumeAs(AIEntryRef entry) { return valueAs<T>(consume(entry)); }

void toString(AIEntryRef entry, const char** value) {
    const auto content = consumeAs<SharedText>(entry);
    required(value) = session().messageLoans.characters(content);
}

void toDict(AIEntryRef entry, AIDictionaryRef* value) {
    const auto content = consumeAs<Ref<Dictionary>>(entry);
    required(value) = lend(content);
}

AIEntryRef fromString(const char* value) { return lendEntry(textValue(&required(value))); }
AIEntryRef fromDict(AIDictionaryRef value) {
    return lendEntry(Ref<Dictionary>(&dictionaryOf(value)));
}

} // namespace

void installEntrySuite(SuiteServer& server) {
    using S = AIEntrySuite;
    expose<&S::Release, release>(server);
    expose<&S::ToString, toString, FailsConsuming>(server);
    expose<&S::FromString, fromString>(server);
    expose<&S::ToDict, toDict, FailsConsuming>(server);
    expose<&S::FromDict, fromDict>(server);
}

} // namespace easel
