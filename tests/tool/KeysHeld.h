#pragma once

#include "platform/Platform.h"

#include <initializer_list>

namespace facetta::tests {

/// Just these keys are down on the keyboard that `platform::readKeys` reads; none with an empty
/// list.
void holdKeys(std::initializer_list<platform::Key> held);

/// Keys held down for the life of the object.
class KeysHeld {
public:
    KeysHeld(std::initializer_list<platform::Key> held) { holdKeys(held); }
    ~KeysHeld() { holdKeys({}); }
    KeysHeld(const KeysHeld&) = delete;
    KeysHeld& operator=(const KeysHeld&) = delete;
};

} // namespace facetta::tests
