#include "easel/core/Registry.h"

namespace easel {

std::uintptr_t nextHandleValue() noexcept {
    // Unaligned and far from any real address, so that following one faults at once.
    constexpr std::uintptr_t kFirst = 0x5EA5E10000000001;
    constexpr std::uintptr_t kStep = 16;
    static std::uintptr_t issued = 0;
    return kFirst + kStep * issued++;
}

} // namespace easel
