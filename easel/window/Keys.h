#pragma once

#include <windows.h>

#include <string>

namespace easel::window {

/// The keys that are down now and that scripts have names for, as a line ends with them:
/// " with shift 3"; empty when there is none.
[[nodiscard]] std::string heldKeys();
/// Has a script a name for it?
[[nodiscard]] bool isNamedKey(WPARAM virtualKey);
[[nodiscard]] bool isDown(int virtualKey);

} // namespace easel::window
