#include "tests/tool/KeysHeld.h"

#include "platform/Headless.h"

namespace facetta::tests {

void holdKeys(std::initializer_list<platform::Key> held) {
    platform::KeyState& keys = platform::headless::surroundings().keys;
    keys = {};
    for (const platform::Key key : held)
        keys.down.at(static_cast<unsigned char>(key)) = true;
}

} // namespace facetta::tests
