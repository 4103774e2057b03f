#include "tests/tool/KeysHeld.h"

#include <windows.h>

#include <array>

namespace facetta::tests {

/// The system keeps a key state for this thread alone, on which the plug-in answers its messages.
void holdKeys(std::initializer_list<platform::Key> held) {
    constexpr BYTE kDown = 0x80;
    std::array<BYTE, 256> bytes{};
    for (const platform::Key key : held)
        bytes.at(static_cast<unsigned char>(key)) = kDown;
    SetKeyboardState(bytes.data());
}

} // namespace facetta::tests
