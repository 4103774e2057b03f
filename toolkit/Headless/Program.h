#pragma once

#include "platform/DialogDoor.h"

namespace NRDM {

/// The program that runs this code, and sees and serves its dialogs; null when it wants none of
/// them. Tests put their own here.
[[nodiscard]] facetta::door::Program*& program();

} // namespace NRDM
