#pragma once

#include "toolkit/ImplCommon/Peers.h"

namespace NRDM {

// In pixels of the screen; empty where there is none.

/// The screen that `place` is on, or the nearest one.
[[nodiscard]] Bounds screenAt(Place place);

/// The main screen without what the system keeps of it.
[[nodiscard]] Bounds workspaceBounds();

/// Where the pointer is.
[[nodiscard]] Place pointer();

} // namespace NRDM
