#include "easel/document/HandleTable.h"

#include <cassert>

namespace easel {

void* HandleTable::add(HandleKind kind, void* object) {
    if (firstFree_ == 0) {
        slots_.push_back(Slot{nullptr, 0, 0});
        firstFree_ = static_cast<std::uint32_t>(slots_.size() - 1);
    }
    const std::uint32_t index = firstFree_;
    Slot& slot = slots_[index];
    firstFree_ = slot.nextFree;
    const std::uint32_t generation = (slot.tag >> kKindBits) + 1;
    slot = {object, generation << kKindBits | static_cast<std::uint32_t>(kind), 0};
    ++used_;
    return reinterpret_cast<void*>(std::uintptr_t{slot.tag} << kTagShift | index);
}

void HandleTable::remove(const void* handle) noexcept {
    const auto index =
        static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(handle) & kIndexMask);
    Slot& slot = slots_[index];
    assert(slot.object != nullptr);
    // The kind is cleared, so that the old handle fails on its tag; the generation stays.
    slot = {nullptr, slot.tag & ~static_cast<std::uint32_t>(kKindMask), firstFree_};
    firstFree_ = index;
    --used_;
}

void* HandleTable::withKind(const void* handle, HandleKind kind) noexcept {
    if (handle == nullptr) return nullptr;
    const auto bits = reinterpret_cast<std::uintptr_t>(handle);
    const auto other = (bits & ~(kKindMask << kTagShift)) | static_cast<std::uintptr_t>(kind)
                                                                << kTagShift;
    return reinterpret_cast<void*>(other);
}

} // namespace easel
