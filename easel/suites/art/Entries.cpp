#include "easel/suites/art/Entries.h"

#include "easel/document/Session.h"
#include "host/Error.h"

namespace easel {

AIEntryRef lendEntry(Value value) {
    const Ref<HeldEntry> entry(new HeldEntry(std::move(value)));
    return static_cast<AIEntryRef>(entry->lend());
}

HeldEntry& entryOf(AIEntryRef entry) {
    if (entry == nullptr) throw ai::Error{kNoSuchEntry};
    return static_cast<HeldEntry&>(counted(HandleKind::Entry, Lent::Entry, entry));
}

Value consume(AIEntryRef entry) {
    HeldEntry& body = entryOf(entry);
    Value value = body.value;
    body.takeBack();
    return value;
}

Dictionary& dictionaryOf(ConstAIDictionaryRef dictionary) {
    return static_cast<Dictionary&>(counted(HandleKind::Dictionary, Lent::Dictionary, dictionary));
}

Array& arrayOf(AIArrayRef array) {
    return static_cast<Array&>(counted(HandleKind::Array, Lent::Array, array));
}

AIDictionaryRef lend(const Ref<Dictionary>& dictionary) {
    return static_cast<AIDictionaryRef>(dictionary->lend());
}

void throwWrongEntryType() {
    throw ai::Error{switches().wrongEntryTypeHasOwnCode ? kWrongEntryType : kBadParameterErr};
}

} // namespace easel
