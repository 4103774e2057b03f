#pragma once

#include "platform/Headless.h"

#include <initializer_list>

namespace facetta::tests {

/// Keys held down for the life of the object, where there is no keyboard.
class KeysHeld {
public:
    KeysHeld(std::initializer_list<platform::Key> held) {
        for (const platform::Key key : held)
            keys().down.at(static_cast<unsigned char>(key)) = true;
    }
    ~KeysHeld() { keys() = {}; }
    KeysHeld(const KeysHeld&) = delete;
    KeysHeld& operator=(const KeysHeld&) = delete;

private:
    static platform::KeyState& keys() { return platform::headless::surroundings().keys; }
};

} // namespace facetta::tests
