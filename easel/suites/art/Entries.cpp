#include "easel/suites/art/Entries.h"

#include "easel/document/Session.h"
#include "host/Error.h"

#include <cstring>

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

AIArrayRef lend(const Ref<Array>& array) { return static_cast<AIArrayRef>(array->lend()); }

void throwWrongEntryType() {
    throw ai::Error{switches().wrongEntryTypeHasOwnCode ? kWrongEntryType : kBadParameterErr};
}

void copyBinary(const Binary& binary, void* buffer, std::size_t& size) {
    const std::size_t room = size;
    size = binary->size();
    if (buffer == nullptr) return;
    if (room < size) throw ai::Error{kBadParameterErr};
    if (size != 0) std::memcpy(buffer, binary->data(), size);
}

Value binaryValue(const void* bytes, std::size_t size) {
    if (bytes == nullptr && size != 0) throw ai::Error{kBadParameterErr};
    const auto* first = static_cast<const std::byte*>(bytes);
    return std::make_shared<const std::vector<std::byte>>(first, first + size);
}

} // namespace easel
