#include "easel/script/System.h"

#include <windows.h>

#include <array>

namespace easel {

/// Plug-ins answer their messages on this thread, whose key state the system keeps for it alone.
void holdKeys(const HeldKeys& keys) {
    constexpr BYTE kDown = 0x80;
    std::array<BYTE, 256> bytes{};
    for (std::size_t key = 0; key < bytes.size(); ++key)
        if (keys[key]) bytes[key] = kDown;
    SetKeyboardState(bytes.data());
}

void letTimePass(std::int64_t milliseconds) { Sleep(static_cast<DWORD>(milliseconds)); }

} // namespace easel
