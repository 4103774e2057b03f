#include "easel/suites/art/Entries.h"

#include "easel/document/Session.h"
#include "host/Error.h"

namespace easel {

AIEntryRef lendEntry(Value value) {
    const Ref<HeldEntry> entry(new HeldEntry(std::move(value)));
    return static_cast<AIEntryRef>(entry->lend(session()));
}

HeldEntry& entryOf(AIEntryRef entry) {
    if (entry == nullptr) throw ai::Error{kNoSuchEntry};
    return static_cast<HeldEntry&>(session().counted(HandleKind::Entry, Lent::Entry, entry));
}

Value consume(AIEntryRef entry) {
    HeldEntry& body = entryOf(entry);
    Value value = body.value;
    body.takeBack(session());
    return value;
}

Dictionary& dictionaryOf(ConstAIDictionaryRef dictionary) {
    return static_cast<Dictionary&>(
        session().counted(HandleKind::Dictionary, Lent::Dictionary, dictionary));
}

AIDictionaryRef lend(const Ref<Dictionary>& dictionary) {
    return static_cast<AIDictionaryRef>(dictionary->lend(session()));
}

void throwWrongEntryType() {
    throw ai::Error{session().switches.wrongEntryTypeHasOwnCode ? kWrongEntryType
                                                                : kBadParameterErr};
}

} // namespace easel
