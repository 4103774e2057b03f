#include "easel/window/Keys.h"

#include "easel/script/Arguments.h"

#include <array>

namespace easel::window {

std::string heldKeys() {
    constexpr BYTE kDown = 0x80;
    std::array<BYTE, 256> all{};
    GetKeyboardState(all.data()); // key by key takes twenty times as long
    std::string words;
    for (std::size_t key = 0; key < all.size(); ++key)
        if ((all.at(key) & kDown) != 0)
            if (const std::string name = script::nameOfKey(key); !name.empty()) words += ' ' + name;
    return words.empty() ? words : " with" + words;
}

bool isNamedKey(WPARAM virtualKey) { return !script::nameOfKey(virtualKey).empty(); }

bool isDown(int virtualKey) { return GetKeyState(virtualKey) < 0; }

} // namespace easel::window
