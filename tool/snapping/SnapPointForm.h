#pragma once

#include "host/Types.h"

namespace facetta {

/// How this host takes the point of a cursor-snap call; it differs between generations.
enum class SnapPointForm : ai::uint8 { Unknown, Reference, Value };

} // namespace facetta
